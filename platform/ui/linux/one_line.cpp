#include "platform/ui/one_line.h"

#include <gtk/gtk.h>
#include <wx/combo.h>
#include <wx/textctrl.h>

namespace platform::ui {

void TakeOneLine(wxWindow& field) {
    const auto* const drawn = dynamic_cast<wxComboCtrlBase*>(&field);
    GtkWidget* widget = drawn != nullptr && drawn->GetTextCtrl() != nullptr
                            ? drawn->GetTextCtrl()->GetHandle()
                            : field.GetHandle();
    if (GTK_IS_COMBO_BOX(widget)) {
        widget = gtk_bin_get_child(GTK_BIN(widget));
    }
    if (GTK_IS_ENTRY(widget)) {
        g_object_set(widget, "truncate-multiline", TRUE, nullptr);
    }
}

} // namespace platform::ui
