// The arrow keys in a group of option buttons.
#pragma once

#include <vector>

class wxRadioButton;

namespace platform::ui {

/// Lets the arrow keys select the button after or before the one that has the focus, going round at
/// the ends; the button tells of it as of a click. Not left to the systems, where moving the focus
/// may select a button or not, and may lead out of the group.
void SelectByArrowKeys(const std::vector<wxRadioButton*>& buttons);

} // namespace platform::ui
