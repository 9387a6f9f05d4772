// Stable names by which tests, tools and screen readers find the entries of a command bar.
#pragma once

#include <wx/string.h>

#include <vector>

class wxMenuBar;
class wxMenuItem;
class wxToolBar;

namespace platform::ui {

/// On Linux gives the bar and its menus their accessible ids. Elsewhere the system has none, and
/// tells what the entries say by itself.
void NameMenuBar(wxMenuBar& bar, const wxString& name, const std::vector<wxString>& menus);
void NameMenuEntry(wxMenuItem& entry, const wxString& name);

/// The same for a toolbar that has been realised; `tools` has one name a tool, and an empty one a
/// separator.
void NameToolBar(wxToolBar& bar, const wxString& name, const std::vector<wxString>& tools);

} // namespace platform::ui
