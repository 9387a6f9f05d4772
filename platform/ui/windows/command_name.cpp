#include "platform/ui/command_name.h"

#include "platform/ui/control_name.h"

#include <wx/menu.h>
#include <wx/toolbar.h>

namespace platform::ui {

void NameMenuBar(wxMenuBar& bar, const wxString& name, const std::vector<wxString>& /*menus*/) {
    bar.SetName(name);
}

void NameMenuEntry(wxMenuItem& /*entry*/, const wxString& /*name*/) {}

void NameToolBar(wxToolBar& bar, const wxString& name, const std::vector<wxString>& /*tools*/) {
    NameControl(bar, name, "Toolbar");
}

} // namespace platform::ui
