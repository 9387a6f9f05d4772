#include "platform/ui/command_name.h"

#include <gtk/gtk.h>
#include <wx/menu.h>
#include <wx/toolbar.h>

namespace platform::ui {

namespace {

void SetId(GtkWidget* widget, const wxString& id) {
    atk_object_set_accessible_id(gtk_widget_get_accessible(widget), id.utf8_str());
}

void SetName(GtkWidget* widget, const char* name) {
    atk_object_set_name(gtk_widget_get_accessible(widget), name);
}

} // namespace

void NameMenuBar(wxMenuBar& bar, const wxString& name, const std::vector<wxString>& menus) {
    bar.SetName(name);
    for (std::size_t i = 0; i < menus.size(); ++i) {
        SetId(bar.GetMenu(i)->m_owner, menus[i]);
    }
    // The toolkit keeps its own widget to itself.
    if (!menus.empty()) {
        GtkWidget* const native = gtk_widget_get_parent(bar.GetMenu(0)->m_owner);
        SetId(native, name);
        SetName(native, "Menu");
    }
}

void NameMenuEntry(wxMenuItem& entry, const wxString& name) {
    SetId(entry.GetMenuItem(), name);
}

void NameToolBar(wxToolBar& bar, const wxString& name, const std::vector<wxString>& tools) {
    bar.SetName(name);
    GtkToolbar* const native = bar.GTKGetToolbar();
    SetId(GTK_WIDGET(native), name);
    SetName(GTK_WIDGET(native), "Toolbar");
    for (std::size_t i = 0; i < tools.size(); ++i) {
        GtkToolItem* const item = gtk_toolbar_get_nth_item(native, static_cast<int>(i));
        if (item != nullptr && !tools[i].empty()) {
            GtkWidget* const button = gtk_bin_get_child(GTK_BIN(item));
            const wxToolBarToolBase* const tool = bar.GetToolByPos(static_cast<int>(i));
            SetId(button, tools[i]);
            if (tool->GetLabel().empty()) {
                SetName(button, tool->GetShortHelp().utf8_str());
            }
        }
    }
}

} // namespace platform::ui
