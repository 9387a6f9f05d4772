#include "platform/ui/native_message_dialog.h"

#include <wx/modalhook.h>

#include <wx/msw/wrapwin.h>

namespace platform::ui {

namespace {

UINT ButtonFlags(long style) {
    if ((style & wxYES_NO) == wxYES_NO) {
        return (style & wxCANCEL) != 0 ? MB_YESNOCANCEL : MB_YESNO;
    }
    return MB_OK;
}

UINT IconFlags(long style) {
    if ((style & wxICON_ERROR) != 0) {
        return MB_ICONERROR;
    }
    if ((style & wxICON_QUESTION) != 0) {
        return MB_ICONQUESTION;
    }
    if ((style & wxICON_EXCLAMATION) != 0) {
        return MB_ICONWARNING;
    }
    return (style & wxICON_INFORMATION) != 0 ? MB_ICONINFORMATION : 0U;
}

int IdOf(int answer) {
    switch (answer) {
    case IDYES:
        return wxID_YES;
    case IDNO:
        return wxID_NO;
    case IDOK:
        return wxID_OK;
    default:
        return wxID_CANCEL;
    }
}

} // namespace

int NativeMessageDialog::ShowModal() {
    WX_HOOK_MODAL_DIALOG();
    wxWindow* const owner = GetParentForModalDialog();
    const long style = GetMessageDialogStyle();
    const UINT flags = ButtonFlags(style) | IconFlags(style) |
                       (owner == nullptr ? UINT{MB_TASKMODAL} : UINT{MB_APPLMODAL});
    const HWND handle = owner == nullptr ? nullptr : static_cast<HWND>(owner->GetHWND());
    return IdOf(::MessageBoxW(handle, m_message.wc_str(), m_caption.wc_str(), flags));
}

} // namespace platform::ui
