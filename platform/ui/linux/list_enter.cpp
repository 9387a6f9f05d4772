#include "platform/ui/list_enter.h"

#include <gtk/gtk.h>
#include <wx/listbox.h>

#include <utility>

namespace platform::ui {

namespace {

using Handler = std::function<void()>;

bool IsEnter(const GdkEventKey& key) {
    const guint modifiers = key.state & gtk_accelerator_get_default_mod_mask();
    return modifiers == 0 && (key.keyval == GDK_KEY_Return || key.keyval == GDK_KEY_KP_Enter ||
                              key.keyval == GDK_KEY_ISO_Enter);
}

gboolean OnEvent(GtkWidget*, GdkEvent* event, gpointer data) {
    if (event->type != GDK_KEY_PRESS || !IsEnter(event->key)) {
        return FALSE;
    }
    (*static_cast<Handler*>(data))();
    return TRUE;
}

void Release(gpointer data, GClosure*) {
    delete static_cast<Handler*>(data);
}

} // namespace

// The general signal comes before the one for keys, in which the toolkit answers Enter by itself.
void OnListEnter(wxListBox& list, std::function<void()> handler) {
    GtkWidget* const rows = gtk_bin_get_child(GTK_BIN(list.GetHandle()));
    g_signal_connect_data(rows, "event", G_CALLBACK(OnEvent), new Handler(std::move(handler)),
                          Release, static_cast<GConnectFlags>(0));
}

} // namespace platform::ui
