// Tells the system's accessibility service that a control is a link.
#pragma once

class wxWindow;

namespace platform::ui {

/// `control` takes the focus and opens something; a screen reader says "link" after its name.
void TellLink(wxWindow& control);

} // namespace platform::ui
