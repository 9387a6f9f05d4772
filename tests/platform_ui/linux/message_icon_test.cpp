// The icon and the caption that a message box really shows; the box itself is what is looked at.

#include "platform/message.h"
#include "platform/ui/message_box.h"
#include "tests/support/window/window_test.h"

#include <functional>
#include <string>

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

// Shows a message, looks at its box and answers it. False when there was no box.
bool LookAt(const platform::Message& message, const std::function<void(GtkWidget*)>& look) {
    bool seen = false;
    ModalScript script;
    script.ExpectDialog<wxMessageDialog>([&](wxMessageDialog&) {
        wxTheApp->CallAfter([&] {
            if (GtkWidget* const box = ShownMessageBox(); box != nullptr) {
                seen = true;
                look(box);
                gtk_dialog_response(GTK_DIALOG(box), GTK_RESPONSE_OK);
            }
        });
        return static_cast<int>(wxID_NONE);
    });
    platform::ShowMessage(message);
    return seen;
}

// The name of the icon that a box like this one really shows; "" for a box without one.
std::string IconShown(Icon icon) {
    std::string name;
    const bool seen = LookAt({"Text", "Caption", Buttons::Ok, icon},
                             [&name](GtkWidget* box) { name = IconOf(box); });
    return seen ? name : "no box";
}

int WidthOf(const std::string& text) {
    GtkWidget* const label = gtk_label_new(text.c_str());
    g_object_ref_sink(label);
    int width = 0;
    gtk_widget_get_preferred_width(label, nullptr, &width);
    g_object_unref(label);
    return width;
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

TEST(MessageCaption, HasRoomInABoxWhoseTextIsShort) {
    platform::ui::InstallMessageBoxes();
    HostFrame host;
    const std::string caption = "Queueshift Deployment Toolkit";
    for (const Icon icon : {Icon::None, Icon::Exclamation}) {
        int width = 0;
        EXPECT_TRUE(LookAt({"7", caption, Buttons::Ok, icon}, [&width](GtkWidget* box) {
            gtk_widget_get_preferred_width(box, &width, nullptr);
        }));
        EXPECT_GT(width, WidthOf(caption));
    }
}

TEST(MessageCaption, IsToldToAScreenReader) {
    platform::ui::InstallMessageBoxes();
    HostFrame host;
    EXPECT_TRUE(
        LookAt({"Text", "Folder not found.", Buttons::Ok, Icon::Exclamation}, [](GtkWidget* box) {
            EXPECT_STREQ(atk_object_get_description(gtk_widget_get_accessible(box)),
                         "Folder not found.");
        }));
}

} // namespace
} // namespace window_test
