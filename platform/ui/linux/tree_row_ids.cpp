#include "platform/ui/linux/tree_row_ids.h"

namespace platform::ui {

namespace {

// A row is a cell that holds two more, its picture and its text. The text has the row's name, so it
// bears the id as well.
void SetRowId(AtkObject* row, const std::string& id) {
    for (int i = 0; i < atk_object_get_n_accessible_children(row); ++i) {
        AtkObject* const part = atk_object_ref_accessible_child(row, i);
        if (ATK_IS_TEXT(part)) {
            atk_object_set_accessible_id(part, id.c_str());
        }
        g_object_unref(part);
    }
}

/// The rows of one branch and of the open ones in it, from top to bottom, as the bus counts them.
void SetIdsBelow(GtkTreeView* view, GtkTreeIter* parent, int& row, const RowId& idOf) {
    GtkTreeModel* const model = gtk_tree_view_get_model(view);
    AtkTable* const table = ATK_TABLE(gtk_widget_get_accessible(GTK_WIDGET(view)));
    GtkTreeIter node;
    gboolean more = gtk_tree_model_iter_children(model, &node, parent);
    while (more != FALSE) {
        AtkObject* const cell = atk_table_ref_at(table, row++, 0);
        if (cell != nullptr) {
            SetRowId(cell, idOf(node));
            g_object_unref(cell);
        }
        GtkTreePath* const path = gtk_tree_model_get_path(model, &node);
        if (gtk_tree_view_row_expanded(view, path) != FALSE) {
            SetIdsBelow(view, &node, row, idOf);
        }
        gtk_tree_path_free(path);
        more = gtk_tree_model_iter_next(model, &node);
    }
}

} // namespace

void SetRowIds(GtkTreeView* view, const RowId& idOf) {
    int row = 0;
    SetIdsBelow(view, nullptr, row, idOf);
}

} // namespace platform::ui
