// The icon that a message box really shows; the box itself is what is looked at.

#include "platform/message.h"
#include "platform/ui/message_box.h"
#include "tests/support/window/window_test.h"

#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/msgdlg.h>

namespace window_test {
namespace {

using platform::Buttons;
using platform::Icon;

GtkWidget* ShownMessageBox() {
    GList* const windows = gtk_window_list_toplevels();
    GtkWidget* found = nullptr;
    for (const GList* at = windows; at != nullptr; at = at->next) {
        auto* const window = static_cast<GtkWidget*>(at->data);
        if (GTK_IS_MESSAGE_DIALOG(window) && gtk_widget_get_visible(window) != FALSE) {
            found = window;
        }
    }
    g_list_free(windows);
    return found;
}

std::string IconOf(GtkWidget* box) {
    G_GNUC_BEGIN_IGNORE_DEPRECATIONS
    GtkWidget* const image = gtk_message_dialog_get_image(GTK_MESSAGE_DIALOG(box));
    G_GNUC_END_IGNORE_DEPRECATIONS
    const gchar* name = nullptr;
    if (GTK_IS_IMAGE(image) && gtk_widget_get_visible(image) != FALSE) {
        gtk_image_get_icon_name(GTK_IMAGE(image), &name, nullptr);
    }
    return name == nullptr ? "" : name;
}

// The name of the icon that a box like this one really shows; "" for a box without one.
std::string IconShown(Icon icon) {
    std::string name = "no box";
    ModalScript script;
    script.ExpectDialog<wxMessageDialog>([&name](wxMessageDialog&) {
        wxTheApp->CallAfter([&name] {
            if (GtkWidget* const box = ShownMessageBox(); box != nullptr) {
                name = IconOf(box);
                gtk_dialog_response(GTK_DIALOG(box), GTK_RESPONSE_OK);
            }
        });
        return static_cast<int>(wxID_NONE);
    });
    platform::ShowMessage({"Text", "Caption", Buttons::Ok, icon});
    return name;
}

TEST(MessageIcon, EachBoxShowsTheIconItWasAskedFor) {
    platform::ui::InstallMessageBoxes();
    HostFrame host;
    EXPECT_EQ(IconShown(Icon::Critical), "dialog-error");
    EXPECT_EQ(IconShown(Icon::Question), "dialog-question");
    EXPECT_EQ(IconShown(Icon::Exclamation), "dialog-warning");
    EXPECT_EQ(IconShown(Icon::Information), "dialog-information");
    EXPECT_EQ(IconShown(Icon::None), "");
}

} // namespace
} // namespace window_test
