// What the accessibility bus is told of a link.

#include "editors/link_paragraph.h"
#include "platform/ui/control_name.h"
#include "tests/support/window/window_test.h"

#include <gtk/gtk.h>

namespace window_test {
namespace {

TEST(LinkRole, AScreenReaderIsToldThatItIsALink) {
    HostFrame host;
    auto* const link =
        new editors::LinkParagraph(&host.Frame(), "Visit www.a.example now.", "www.a.example");
    platform::ui::NameControl(*link, "lblLink", "Visit www.a.example now.");
    AtkObject* const told = gtk_widget_get_accessible(link->GetHandle());
    EXPECT_EQ(atk_object_get_role(told), ATK_ROLE_LINK);
    EXPECT_STREQ(atk_object_get_name(told), "Visit www.a.example now.");
}

} // namespace
} // namespace window_test
