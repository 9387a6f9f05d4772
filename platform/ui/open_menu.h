// The system's part of opening a menu by its access key.
#pragma once

#include <wx/frame.h>
#include <wx/menu.h>

namespace platform::ui {

/// Opens `menu`, a menu of the frame's menu bar whose access key is `key`.
void OpenMenu(wxFrame& frame, wxMenu& menu, int key);

} // namespace platform::ui
