// What happens, and what does not, while a function of a window waits.
#include "platform/ui/pump.h"

#include "tests/support/window/window_test.h"

#include <wx/frame.h>

#include <gtk/gtk.h>

namespace window_test {
namespace {

void PressCloseBox(const wxWindow& window) {
    GdkEvent* const event = gdk_event_new(GDK_DELETE);
    event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(window.GetHandle())));
    gdk_display_put_event(gdk_display_get_default(), event);
    gdk_event_free(event);
}

TEST(Pumping, TheCloseBoxIsDeafWhileWindowsAreOnlyDrawn) {
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "Waiting");
    int closes = 0;
    frame->Bind(wxEVT_CLOSE_WINDOW, [&closes](wxCloseEvent&) { ++closes; });
    frame->Show();
    Pump();
    PressCloseBox(*frame);
    for (int round = 0; round < 100; ++round) {
        platform::ui::PumpPainting();
    }
    EXPECT_EQ(closes, 0);
    PressCloseBox(*frame);
    WaitFor([&closes] { return closes == 1; }, "the close box");
    frame->Destroy();
    Pump();
}

} // namespace
} // namespace window_test
