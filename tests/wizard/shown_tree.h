// What the native tree control of each system shows.
#pragma once

#include <wx/window.h>

#include <string>
#include <vector>

namespace window_test {

struct ShownNode {
    std::string text;
    int depth; ///< 0 for a top-level node
    bool expanded;
    bool operator==(const ShownNode&) const = default;
};

void PrintTo(const ShownNode& node, std::ostream* out);

/// From top to bottom, children below their parents whether expanded or not.
std::vector<ShownNode> ShownNodes(wxWindow* tree);

} // namespace window_test
