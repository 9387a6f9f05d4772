// Stable names by which tests, tools and screen readers find a control.
#pragma once

#include <wx/window.h>

namespace platform::ui {

/// Gives `control` its name ("txtFromServer", "cmdNext(2)"): the toolkit's own, and on Linux the
/// accessible id. `label` is what a screen reader says; "" keeps the control's own text.
void NameControl(wxWindow& control, const wxString& name, const wxString& label = {});

} // namespace platform::ui
