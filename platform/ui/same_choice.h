// The user's choice of the item that is chosen already.
#pragma once

class wxChoice;
class wxComboBox;

namespace platform::ui {

/// Has the drop-down raise wxEVT_CHOICE whenever the user picks an item, the selected one included,
/// of which the toolkit on GTK says nothing.
void TellEveryChoice(wxChoice& choice);

/// The same for a drop-down with free text and wxEVT_COMBOBOX.
void TellEveryChoice(wxComboBox& combo);

} // namespace platform::ui
