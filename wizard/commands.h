// The tools of the command bar, as data: menus, toolbar, and the page that a page tool shows.
#pragma once

#include <span>
#include <string_view>

namespace modWizard {

struct MenuEntry {
    std::string_view tool;        ///< "" for a separator line
    const char* caption = "";     ///< with "&" before the access key
    const char* accelerator = ""; ///< "" for none
};

struct Menu {
    std::string_view id;
    const char* caption;
    std::span<const MenuEntry> entries;
};

std::span<const Menu> Menus();

struct ToolButton {
    std::string_view tool; ///< "" for a separator
    const char* label = "";
    const char* hint = "";
};

std::span<const ToolButton> ToolButtons();

/// The tools that only one type of document offers.
struct TypeTool {
    std::string_view tool;
    bool activeDirectory; ///< offered in an Active Directory document, else in a manual one
};

std::span<const TypeTool> TypeTools();

/// The page that a page tool shows in a document of this type; -1 for every other tool.
int PageOfTool(std::string_view tool, bool usesActiveDirectory);

} // namespace modWizard
