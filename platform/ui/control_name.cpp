#include "platform/ui/control_name.h"

#include "platform/ui/accessible.h"

#include <wx/control.h>

namespace platform::ui {

namespace {

// "From Print &Server:" is read out as "From Print Server".
wxString Spoken(const wxString& label) {
    wxString spoken = wxControl::RemoveMnemonics(label);
    spoken.Trim();
    if (spoken.EndsWith(":", &spoken)) {
        spoken.Trim();
    }
    return spoken;
}

} // namespace

void NameControl(wxWindow& control, const wxString& name, const wxString& label) {
    control.SetName(name);
    SetAccessible(control, name, Spoken(label));
}

} // namespace platform::ui
