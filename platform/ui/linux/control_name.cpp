#include "platform/ui/accessible.h"

#include <gtk/gtk.h>
#include <wx/combo.h>
#include <wx/textctrl.h>

namespace platform::ui {

namespace {

void Describe(GtkWidget* widget, const wxString& id, const wxString& name) {
    AtkObject* const object = gtk_widget_get_accessible(widget);
    atk_object_set_accessible_id(object, id.utf8_str());
    if (!name.empty()) {
        atk_object_set_name(object, name.utf8_str());
    }
}

// Lists and texts of several lines sit in a frame that scrolls; what the user works is inside.
GtkWidget* Operated(GtkWidget* widget) {
    if (GTK_IS_SCROLLED_WINDOW(widget)) {
        GtkWidget* const inner = gtk_bin_get_child(GTK_BIN(widget));
        return inner != nullptr ? inner : widget;
    }
    return widget;
}

} // namespace

void SetAccessible(wxWindow& control, const wxString& id, const wxString& name) {
    GtkWidget* const widget = Operated(control.GetHandle());
    Describe(widget, id, name);
    if (GTK_IS_COMBO_BOX(widget) && gtk_combo_box_get_has_entry(GTK_COMBO_BOX(widget))) {
        Describe(gtk_bin_get_child(GTK_BIN(widget)), id, name);
    }
    const auto* const drawn = dynamic_cast<wxComboCtrlBase*>(&control);
    if (drawn != nullptr && drawn->GetTextCtrl() != nullptr) {
        Describe(drawn->GetTextCtrl()->GetHandle(), id, name);
    }
}

} // namespace platform::ui
