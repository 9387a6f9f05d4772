// The pictures of the main window.
#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>

#include <string_view>
#include <vector>

namespace modWizard {

wxIconBundle ProgramIcons();

/// Images 1 (a page) and 2 (a branch of pages) of the option tree.
std::vector<wxBitmapBundle> TreeImages();

/// The toolbar's picture of a tool.
wxBitmapBundle ToolImage(std::string_view tool);

} // namespace modWizard
