#include "platform/ui/text_inset.h"

#include <wx/msw/wrapwin.h>
#include <wx/textctrl.h>

namespace platform::ui {

int TextInset(const wxTextCtrl& field) {
    return LOWORD(::SendMessageW(field.GetHWND(), EM_GETMARGINS, 0, 0));
}

} // namespace platform::ui
