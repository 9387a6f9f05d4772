#include "platform/ui/no_option.h"

#include <wx/radiobut.h>

namespace platform::ui {

wxRadioButton* MakeNoOption(wxWindow* parent, const wxString& name) {
    auto* const button = new wxRadioButton(parent, wxID_ANY, wxString(), wxDefaultPosition,
                                           wxDefaultSize, wxRB_GROUP);
    button->SetName(name);
    button->Hide();
    return button;
}

} // namespace platform::ui
