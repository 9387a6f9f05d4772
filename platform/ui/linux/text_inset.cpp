#include "platform/ui/text_inset.h"

#include <gtk/gtk.h>
#include <wx/textctrl.h>

namespace platform::ui {

int TextInset(const wxTextCtrl& field) {
    GtkStyleContext* const style = gtk_widget_get_style_context(field.GetHandle());
    const GtkStateFlags state = gtk_style_context_get_state(style);
    GtkBorder border{};
    GtkBorder padding{};
    gtk_style_context_get_border(style, state, &border);
    gtk_style_context_get_padding(style, state, &padding);
    return border.left + padding.left;
}

} // namespace platform::ui
