// Ids on the accessibility bus for the rows of a tree.
#pragma once

#include <functional>
#include <string>

#include <gtk/gtk.h>

namespace platform::ui {

using RowId = std::function<std::string(const GtkTreeIter&)>;

/// Gives the rows that are in no closed branch the ids that `idOf` tells. A row has its id until it
/// is removed or its branch closed: to be called anew when rows are added or a branch is opened.
void SetRowIds(GtkTreeView* view, const RowId& idOf);

} // namespace platform::ui
