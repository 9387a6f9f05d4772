#include "platform/ui/accessible.h"

#include <wx/access.h>

namespace platform::ui {

namespace {

// Tells the control's name and leaves all else to what the system knows of its own controls.
class NamedAccessible : public wxAccessible {
public:
    NamedAccessible(wxWindow& control, const wxString& name)
        : wxAccessible(&control), name_(name) {}

    wxAccStatus GetName(int childId, wxString* name) override {
        if (childId != wxACC_SELF) {
            return wxACC_NOT_IMPLEMENTED;
        }
        *name = name_;
        return wxACC_OK;
    }

private:
    wxString name_;
};

} // namespace

void SetAccessible(wxWindow& control, const wxString&, const wxString& name) {
    if (!name.empty()) {
        // The control owns it.
        control.SetAccessible(new NamedAccessible(control, name));
    }
}

} // namespace platform::ui
