#include "platform/ui/open_menu.h"

#include <wx/msw/wrapwin.h>

namespace platform::ui {

// Posted, because an open menu runs a loop of its own until it closes.
void OpenMenu(wxFrame& frame, wxMenu& /*menu*/, int key) {
    ::PostMessageW(static_cast<HWND>(frame.GetHWND()), WM_SYSCOMMAND, SC_KEYMENU, key);
}

} // namespace platform::ui
