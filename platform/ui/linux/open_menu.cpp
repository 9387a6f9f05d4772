#include "platform/ui/open_menu.h"

#include <gtk/gtk.h>

namespace platform::ui {

void OpenMenu(wxFrame& /*frame*/, wxMenu& menu, int /*key*/) {
    gtk_widget_mnemonic_activate(menu.m_owner, FALSE);
}

} // namespace platform::ui
