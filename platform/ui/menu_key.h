// Menus opened by their access keys.
#pragma once

#include <wx/frame.h>

namespace platform::ui {

/// Opens the menu of the frame's menu bar that has the access key `key` (an upper-case letter), as
/// the key itself does. False when no menu has it.
///
/// A window asks this before its controls see the key: where a control has the same access key, the
/// systems disagree on which of the two is meant.
bool OpenMenuByKey(wxFrame& frame, int key);

} // namespace platform::ui
