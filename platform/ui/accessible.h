// What the system's accessibility service knows of a control.
#pragma once

#include <wx/window.h>

namespace platform::ui {

/// Sets the stable id, where the system has such a thing, and the name. An empty `name` leaves the
/// name to the system, which takes it from the control's own text and follows its changes.
void SetAccessible(wxWindow& control, const wxString& id, const wxString& name);

} // namespace platform::ui
