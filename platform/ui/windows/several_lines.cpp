#include "platform/ui/several_lines.h"

#include <wx/msw/wrapwin.h>
#include <wx/window.h>

namespace platform::ui {

void AllowSeveralLines(wxWindow& button) {
    HWND handle = button.GetHandle();
    const LONG_PTR style = ::GetWindowLongPtrW(handle, GWL_STYLE);
    ::SetWindowLongPtrW(handle, GWL_STYLE, style | BS_MULTILINE | BS_TOP);
}

} // namespace platform::ui
