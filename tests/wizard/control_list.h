// The controls that each page has, written out by hand.
#pragma once

#include <string>
#include <vector>

namespace window_test {

struct ControlRow {
    std::string name;
    std::string kind;
    std::string says; ///< the caption, or the items one a line
};

inline constexpr int kPageCount = 20;

/// The controls of the page at this place, heading, separator and buttons included, for an Active
/// Directory document.
std::vector<ControlRow> ControlsOfPage(int position);

} // namespace window_test
