// The About box.

#include "files/about.h"

#include "tests/support/window/window_test.h"

#include "version.h"

#include <wx/button.h>
#include <wx/stattext.h>

namespace window_test {
namespace {

TEST(About, NamesTheProgramAndItsVersionWithoutPadding) {
    const frmAbout box(nullptr, {1, 0, 12});
    EXPECT_EQ(box.GetTitle(), "About Queueshift Deployment Toolkit");
    EXPECT_EQ(box.lblTitle->GetLabel(), "Queueshift Deployment Toolkit");
    EXPECT_EQ(box.lblVersion->GetLabel(), "Version 1.0.12");
    EXPECT_EQ(box.lblDisclaimer->GetLabel(),
              "Copyright (C) 2026 Norvane, LLC. All rights reserved.");
    EXPECT_EQ(box.cmdOK->GetLabel(), "OK");
}

TEST(About, CarriesTheVersionOfTheBuild) {
    const frmAbout box(nullptr);
    EXPECT_EQ(box.lblVersion->GetLabel(), "Version " QUEUESHIFT_VERSION_TEXT);
}

TEST(About, ControlsAreFoundByName) {
    frmAbout box(nullptr);
    EXPECT_EQ(Find(&box, "lblTitle"), box.lblTitle);
    EXPECT_EQ(Find(&box, "lblVersion"), box.lblVersion);
    EXPECT_EQ(Find(&box, "lblDisclaimer"), box.lblDisclaimer);
    EXPECT_EQ(Find(&box, "cmdOK"), box.cmdOK);
}

class AboutShown : public testing::TestWithParam<const char*> {};

TEST_P(AboutShown, Closes) {
    HostFrame host;
    ModalScript script;
    bool closedInTime = false;
    script.ExpectLive<frmAbout>([&](frmAbout& box) {
        Screenshot("about", &box);
        const std::string by = GetParam();
        if (by == "Button") {
            ClickOn(box.cmdOK);
        } else {
            FocusOn(box.cmdOK);
            Press(by == "Enter" ? WXK_RETURN : WXK_ESCAPE);
        }
        closedInTime = WaitFor([&] { return !box.IsModal() || !box.IsShown(); }, "the end");
    });
    frmAbout box(&host.Frame(), {1, 0, 12});
    box.ShowModal();
    EXPECT_TRUE(closedInTime);
}

INSTANTIATE_TEST_SUITE_P(By, AboutShown, testing::Values("Button", "Enter", "Escape"),
                         [](const auto& by) { return std::string(by.param); });

} // namespace
} // namespace window_test
