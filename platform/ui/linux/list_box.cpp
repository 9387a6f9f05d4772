#include "platform/ui/list_box.h"

#include <gtk/gtk.h>

#include <algorithm>

namespace platform::ui {

namespace {

bool HasCursor(GtkTreeView* view) {
    GtkTreePath* path = nullptr;
    gtk_tree_view_get_cursor(view, &path, nullptr);
    const bool found = path != nullptr;
    gtk_tree_path_free(path);
    return found;
}

} // namespace

// A view without a cursor selects its first row as soon as it gets the focus, and one whose cursor
// was left behind goes on from there.
void PlaceListCursor(wxListBox& list, int row) {
    GtkTreeView* const view = GTK_TREE_VIEW(list.m_treeview);
    const int selected = list.GetSelection();
    if (list.IsEmpty() || (selected == wxNOT_FOUND && HasCursor(view))) {
        return;
    }
    const int place = selected == wxNOT_FOUND
                          ? std::clamp(row, 0, static_cast<int>(list.GetCount()) - 1)
                          : selected;
    list.GTKDisableEvents();
    GtkTreePath* const path = gtk_tree_path_new_from_indices(place, -1);
    gtk_tree_view_set_cursor(view, path, nullptr, FALSE);
    gtk_tree_path_free(path);
    if (selected == wxNOT_FOUND) {
        gtk_tree_selection_unselect_all(gtk_tree_view_get_selection(view));
    }
    list.GTKEnableEvents();
}

} // namespace platform::ui
