#include "tests/wizard/shown_tree.h"

#include <wx/dataview.h>

#include <ostream>
#include <stdexcept>

namespace window_test {

namespace {

void Walk(const wxDataViewTreeCtrl& tree, const wxDataViewItem& parent, int depth,
          std::vector<ShownNode>& nodes) {
    const int count = tree.GetChildCount(parent);
    for (int i = 0; i < count; ++i) {
        const wxDataViewItem item = tree.GetNthChild(parent, static_cast<unsigned>(i));
        nodes.push_back({tree.GetItemText(item).utf8_string(), depth, tree.IsExpanded(item)});
        Walk(tree, item, depth + 1, nodes);
    }
}

} // namespace

std::vector<ShownNode> ShownNodes(wxWindow* control) {
    const auto* const tree = dynamic_cast<wxDataViewTreeCtrl*>(control);
    if (tree == nullptr) {
        throw std::runtime_error("another kind of tree");
    }
    std::vector<ShownNode> nodes;
    Walk(*tree, wxDataViewItem(), 0, nodes);
    return nodes;
}

void PrintTo(const ShownNode& node, std::ostream* out) {
    *out << node.depth << ' ' << node.text << (node.expanded ? " (expanded)" : "");
}

} // namespace window_test
