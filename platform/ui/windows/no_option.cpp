#include "platform/ui/no_option.h"

namespace platform::ui {

// A hidden button that is selected would take Tab away from the whole group.
wxRadioButton* MakeNoOption(wxWindow* /*parent*/, const wxString& /*name*/) {
    return nullptr;
}

} // namespace platform::ui
