#include "platform/ui/open_document.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace platform::ui {

OpenFailure OpenWithSystem(wxWindow* owner, const std::string& address) {
    GtkWindow* const window = owner == nullptr ? nullptr : GTK_WINDOW(owner->GetHandle());
    GError* error = nullptr;
    if (gtk_show_uri_on_window(window, address.c_str(), GDK_CURRENT_TIME, &error) != FALSE) {
        return std::nullopt;
    }
    std::string reason;
    if (error != nullptr) {
        reason = error->message;
        g_error_free(error);
    }
    return reason;
}

} // namespace platform::ui
