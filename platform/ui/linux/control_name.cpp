#include "platform/ui/accessible.h"

#include <array>

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

struct OwnRole {
    const char* kind;
    AtkRole role;
};

// What the toolkit draws by itself, or makes of plain windows, the bus takes for a panel or a
// frame.
constexpr std::array<OwnRole, 4> kOwnRoles{{
    {"wxDialog", ATK_ROLE_DIALOG},
    {"wxComboCtrl", ATK_ROLE_COMBO_BOX},
    {"wxTreeCtrl", ATK_ROLE_TREE},
    {"wxHtmlWindow", ATK_ROLE_DOCUMENT_TEXT},
}};

void TellRole(const wxWindow& control, GtkWidget& widget) {
    for (const OwnRole& own : kOwnRoles) {
        const wxClassInfo* const kind = wxClassInfo::FindClass(own.kind);
        if (kind != nullptr && control.IsKindOf(kind)) {
            atk_object_set_role(gtk_widget_get_accessible(&widget), own.role);
        }
    }
}

} // namespace

void SetAccessible(wxWindow& control, const wxString& id, const wxString& name) {
    GtkWidget* const widget = Operated(control.GetHandle());
    Describe(widget, id, name);
    TellRole(control, *widget);
    if (GTK_IS_COMBO_BOX(widget) && gtk_combo_box_get_has_entry(GTK_COMBO_BOX(widget))) {
        Describe(gtk_bin_get_child(GTK_BIN(widget)), id, name);
    }
    const auto* const drawn = dynamic_cast<wxComboCtrlBase*>(&control);
    if (drawn != nullptr && drawn->GetTextCtrl() != nullptr) {
        Describe(drawn->GetTextCtrl()->GetHandle(), id, name);
    }
}

} // namespace platform::ui
