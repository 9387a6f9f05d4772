// Names by which controls are found.

#include "platform/ui/control_name.h"

#include "tests/support/window/window_test.h"

#include <wx/button.h>

namespace window_test {
namespace {

TEST(ControlName, IsTheToolkitsName) {
    HostFrame host;
    auto* const button = new wxButton(&host.Frame(), wxID_ANY, "&Next");
    platform::ui::NameControl(*button, "cmdNext(2)");
    EXPECT_EQ(Find<wxButton>(&host.Frame(), "cmdNext(2)"), button);
    EXPECT_EQ(button->GetLabel(), "&Next");
}

} // namespace
} // namespace window_test
