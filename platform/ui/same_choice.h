// The user's choice of the item that is chosen already.
#pragma once

class wxChoice;

namespace platform::ui {

/// Has the drop-down raise wxEVT_CHOICE whenever the user picks an item, the selected one included,
/// of which the toolkit on GTK says nothing.
void TellEveryChoice(wxChoice& choice);

} // namespace platform::ui
