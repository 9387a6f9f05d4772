// Text fields that hold one line, whatever is pasted into them.
#pragma once

#include <wx/window.h>

namespace platform::ui {

/// Of several lines pasted into this text box, or into the text of this drop-down, the first one
/// is taken. What the fields hold becomes lines of files.
void TakeOneLine(wxWindow& field);

} // namespace platform::ui
