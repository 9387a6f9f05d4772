#include "editors/busy_window.h"

#include "platform/ui/pump.h"

#include <wx/evtloop.h>

#include <wx/cursor.h>

namespace editors {

BusyWindow::BusyWindow(wxWindow& window)
    : window_(window), cursor_(window.GetCursor()), focus_(wxWindow::FindFocus()) {
    window_.SetCursor(wxCursor(wxCURSOR_WAIT));
    window_.Disable();
    // Not within another call of the kind: a press of the mouse may have led here, and its release
    // would be handled while the press still is.
    const wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    if (loop != nullptr && !loop->IsYielding()) {
        platform::ui::PumpEvents();
    }
}

BusyWindow::~BusyWindow() {
    window_.SetCursor(cursor_);
    window_.Enable();
    if (focus_ != nullptr && focus_->IsShownOnScreen() && focus_->IsEnabled()) {
        focus_->SetFocus();
    }
}

} // namespace editors
