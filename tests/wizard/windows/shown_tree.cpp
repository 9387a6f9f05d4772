#include "tests/wizard/shown_tree.h"

#include <wx/treectrl.h>

#include <ostream>
#include <stdexcept>

namespace window_test {

namespace {

void Walk(const wxTreeCtrl& tree, const wxTreeItemId& parent, int depth,
          std::vector<ShownNode>& nodes) {
    wxTreeItemIdValue cookie = nullptr;
    for (wxTreeItemId item = tree.GetFirstChild(parent, cookie); item.IsOk();
         item = tree.GetNextChild(parent, cookie)) {
        nodes.push_back({tree.GetItemText(item).utf8_string(), depth, tree.IsExpanded(item)});
        Walk(tree, item, depth + 1, nodes);
    }
}

} // namespace

std::vector<ShownNode> ShownNodes(wxWindow* control) {
    const auto* const tree = dynamic_cast<wxTreeCtrl*>(control);
    if (tree == nullptr) {
        throw std::runtime_error("another kind of tree");
    }
    std::vector<ShownNode> nodes;
    Walk(*tree, tree->GetRootItem(), 0, nodes);
    return nodes;
}

void PrintTo(const ShownNode& node, std::ostream* out) {
    *out << node.depth << ' ' << node.text << (node.expanded ? " (expanded)" : "");
}

} // namespace window_test
