#include "platform/ui/link_role.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace platform::ui {

void TellLink(wxWindow& control) {
    atk_object_set_role(gtk_widget_get_accessible(control.GetHandle()), ATK_ROLE_LINK);
}

} // namespace platform::ui
