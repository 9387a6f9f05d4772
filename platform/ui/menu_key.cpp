#include "platform/ui/menu_key.h"

#include "platform/ui/open_menu.h"

#include <wx/menu.h>

namespace platform::ui {

namespace {

int AccessKey(const wxString& caption) {
    const wxString marked = caption.AfterFirst('&').Upper();
    return marked.empty() ? 0 : static_cast<int>(marked[0].GetValue());
}

} // namespace

bool OpenMenuByKey(wxFrame& frame, int key) {
    const wxMenuBar* const bar = frame.GetMenuBar();
    if (bar == nullptr || key == 0) {
        return false;
    }
    for (size_t i = 0; i < bar->GetMenuCount(); ++i) {
        if (AccessKey(bar->GetMenuLabel(i)) == key) {
            OpenMenu(frame, *bar->GetMenu(i), key);
            return true;
        }
    }
    return false;
}

} // namespace platform::ui
