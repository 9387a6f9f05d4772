// The progress window of a deployment.

#include "deployment/progress.h"

#include "tests/support/window/window_test.h"

#include <wx/gauge.h>
#include <wx/stattext.h>

#include <array>

namespace window_test {
namespace {

class Progress : public testing::Test {
protected:
    HostFrame host;
    frmProgress window{&host.Frame()};
};

TEST_F(Progress, ElevenIsTheMaximumAndEachStepAddsOne) {
    EXPECT_EQ(window.GetTitle(), "Queueshift");
    EXPECT_EQ(window.prbProgress->GetRange(), 11);
    window.Advance("Initializing deployment process ...");
    EXPECT_EQ(window.prbProgress->GetValue(), 1);
    EXPECT_EQ(window.lblProgress->GetLabel(), "Initializing deployment process ...");
    window.Advance("Copying INI file ...");
    EXPECT_EQ(window.prbProgress->GetValue(), 2);
    EXPECT_EQ(window.lblProgress->GetLabel(), "Copying INI file ...");
    window.SetToMaximum("Deployment Complete.");
    EXPECT_EQ(window.prbProgress->GetValue(), 11);
    EXPECT_EQ(window.lblProgress->GetLabel(), "Deployment Complete.");
}

TEST_F(Progress, StaysAtTheMaximumWhenStepsAreMany) {
    for (int i = 0; i < 15; ++i) {
        window.Advance("Copying MDAC file ...");
    }
    EXPECT_EQ(window.prbProgress->GetValue(), 11);
}

TEST_F(Progress, LetsPendingEventsRunBetweenSteps) {
    bool ran = false;
    host.Frame().CallAfter([&ran] { ran = true; });
    window.Advance("Copying INI file ...");
    EXPECT_TRUE(ran);
}

TEST_F(Progress, IsNotModalAndHasNoCloseBox) {
    window.Show();
    BringToFront(&window);
    EXPECT_FALSE(window.IsModal());
    EXPECT_EQ(window.GetWindowStyle() & wxCLOSE_BOX, 0);
    window.Close();
    Press(WXK_ESCAPE);
    Pump();
    EXPECT_TRUE(window.IsShown());
}

TEST_F(Progress, ItsLongestLabelFits) {
    window.Show();
    constexpr std::array kLabels = {"Initializing deployment process ...", "Copying MDAC file ...",
                                    "Copying Queueshift Engine ...", "Copying INI file ...",
                                    "Deployment Complete."};
    for (const char* label : kLabels) {
        window.Advance(label);
        EXPECT_LE(window.lblProgress->GetTextExtent(label).x, window.lblProgress->GetSize().x);
    }
    Screenshot("progress", &window);
}

TEST_F(Progress, ControlsAreFoundByName) {
    EXPECT_EQ(Find(&window, "prbProgress"), window.prbProgress);
    EXPECT_EQ(Find(&window, "lblProgress"), window.lblProgress);
}

} // namespace
} // namespace window_test
