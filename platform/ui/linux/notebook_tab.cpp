#include "platform/ui/notebook_tab.h"

#include <gtk/gtk.h>
#include <wx/notebook.h>

namespace platform::ui {

void ShowTabAvailable(wxNotebook& notebook, std::size_t tab, bool available) {
    GtkWidget* const page = notebook.GetPage(tab)->GetHandle();
    GtkWidget* const label = gtk_notebook_get_tab_label(GTK_NOTEBOOK(notebook.GetHandle()), page);
    if (label != nullptr) {
        gtk_widget_set_sensitive(label, available ? TRUE : FALSE);
    }
}

} // namespace platform::ui
