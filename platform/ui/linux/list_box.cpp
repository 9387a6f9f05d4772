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

// A view is told of each row that comes or goes, and tells its accessible object, which costs many
// times what the row does.
RowsUnseen::RowsUnseen(wxListBox& list) {
    GtkTreeView* const view = GTK_TREE_VIEW(list.m_treeview);
    // The view is the only one that keeps the rows, and forgets with them where it searches.
    GtkTreeModel* const rows = gtk_tree_view_get_model(view);
    g_object_ref(rows);
    const int searched = gtk_tree_view_get_search_column(view);
    list.GTKDisableEvents();
    gtk_tree_view_set_model(view, nullptr);
    end_ = [&list, view, rows, searched] {
        gtk_tree_view_set_model(view, rows);
        g_object_unref(rows);
        gtk_tree_view_set_search_column(view, searched);
        list.GTKEnableEvents();
    };
}

} // namespace platform::ui
