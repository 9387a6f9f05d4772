// Fields that are as high as their text.
#pragma once

#include <wx/window.h>

namespace platform::ui {

/// Gives a field of one line the height that a line of its font needs, where the toolkit's own
/// answer is less.
void RoomForLine(wxWindow& field);

} // namespace platform::ui
