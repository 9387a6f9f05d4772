#include "platform/ui/list_enter.h"

#include <wx/event.h>
#include <wx/listbox.h>

#include <utility>

namespace platform::ui {

void OnListEnter(wxListBox& list, std::function<void()> handler) {
    list.Bind(wxEVT_CHAR_HOOK, [handler = std::move(handler)](wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        if ((key == WXK_RETURN || key == WXK_NUMPAD_ENTER) && !event.HasAnyModifiers()) {
            handler();
        } else {
            event.Skip();
        }
    });
}

} // namespace platform::ui
