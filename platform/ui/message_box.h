// Shows the program's messages as real modal boxes.
#pragma once

class wxWindow;

namespace platform::ui {

/// Makes platform::ShowMessage show native boxes, owned by the active window of the program.
void InstallMessageBoxes();

/// The top-level window that a box of now belongs to: the active one, else the newest shown; null
/// when there is none.
wxWindow* ActiveOwner();

} // namespace platform::ui
