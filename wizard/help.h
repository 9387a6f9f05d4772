// The help book, by topic or from its contents.
//
// The viewer is a window beside the main window, which it follows to the end. While a dialog is
// open no other window takes input, so from there the book opens in a dialog of its own. Nothing
// about the viewer is remembered.
#pragma once

namespace modWizard {

/// Shows the topic of this context number; -1 shows the topic of the last number asked for. A book
/// that cannot be shown is told in a message box.
void ShowHelpContext(int context);
void ShowHelpContents();

} // namespace modWizard
