// Next and Back, page by page, and where the focus goes with them.
#include "tests/wizard/wizard_test.h"

namespace window_test {
namespace {

struct Step {
    int from;
    int to; ///< -1: nothing happens
    const char* node;
    Texts runs;
};

class Navigation : public WizardTest {
protected:
    void ExpectSteps(const std::string& button, const std::vector<Step>& steps) {
        PreparationProbe probe(*window);
        for (const Step& step : steps) {
            GoTo(step.from);
            const std::string before = CurrentNode();
            probe.Arm();
            Push(window, button + "(" + std::to_string(step.from) + ")");
            EXPECT_EQ(CurrentPage(), step.to < 0 ? step.from : step.to) << step.from;
            EXPECT_EQ(CurrentNode(), step.to < 0 ? before : step.node) << step.from;
            EXPECT_EQ(probe.Ran(), step.runs) << step.from;
        }
        EXPECT_FALSE(Changed());
    }
};

TEST_F(Navigation, NextInAnActiveDirectoryDocument) {
    Start(kActiveDirectory);
    ExpectSteps("cmdNext", {{0, 1, "Key2", {}},
                            {1, 3, "Key4", {}},
                            {3, 4, "Key41", {}},
                            {4, 5, "Key42", {}},
                            {5, 6, "Key43", {}},
                            {6, 7, "Key44", {}},
                            {7, 16, "Key6", {}},
                            {16, 14, "Key61", {}},
                            {14, 15, "Key62", {}},
                            {15, 8, "Key8", {}},
                            {8, 17, "Key81", {"Populate"}},
                            {17, 12, "Key82", {"Prune"}},
                            {12, 18, "Key9", {"DefaultPrinters"}},
                            {18, 19, "Key10", {}},
                            {19, 13, "Key7", {"Drivers"}},
                            {13, -1, "", {}}});
}

TEST_F(Navigation, NextInAManualDocument) {
    Start(kManual);
    ExpectSteps("cmdNext", {{0, 9, "Key3", {}},
                            {9, 2, "Key31", {}},
                            {2, 10, "Key32", {}},
                            {10, 11, "Key33", {}},
                            {11, 3, "Key4", {}},
                            {3, 4, "Key41", {}},
                            {4, 5, "Key42", {}},
                            {5, 6, "Key43", {}},
                            {6, 7, "Key44", {}},
                            {7, 14, "Key6", {}},
                            {14, 8, "Key8", {}},
                            {8, 17, "Key81", {"Populate"}},
                            {17, 12, "Key82", {"Prune"}},
                            {12, 18, "Key9", {"DefaultPrinters"}},
                            {18, 19, "Key10", {}},
                            {19, 13, "Key7", {"Drivers"}},
                            {13, -1, "", {}}});
}

TEST_F(Navigation, BackInAnActiveDirectoryDocument) {
    Start(kActiveDirectory);
    ExpectSteps("cmdBack", {{0, -1, "", {}},
                            {1, 0, "Key1", {}},
                            {3, 1, "Key2", {}},
                            {4, 3, "Key4", {}},
                            {5, 4, "Key41", {}},
                            {6, 5, "Key42", {}},
                            {7, 6, "Key43", {}},
                            {16, 7, "Key44", {}},
                            {14, 16, "Key6", {}},
                            {15, 14, "Key61", {}},
                            {8, 15, "Key62", {}},
                            {17, 8, "Key8", {"Prune"}},
                            {12, 17, "Key81", {"Populate"}},
                            {18, 12, "Key82", {"Prune"}},
                            {19, 18, "Key9", {"DefaultPrinters"}},
                            {13, 19, "Key10", {"Drivers"}}});
}

TEST_F(Navigation, BackInAManualDocument) {
    Start(kManual);
    ExpectSteps("cmdBack", {{0, -1, "", {}},
                            {9, 0, "Key1", {}},
                            {2, 9, "Key3", {}},
                            {10, 2, "Key31", {}},
                            {11, 10, "Key32", {}},
                            {3, 11, "Key33", {}},
                            {4, 3, "Key4", {}},
                            {5, 4, "Key41", {}},
                            {6, 5, "Key42", {}},
                            {7, 6, "Key43", {}},
                            {14, 7, "Key44", {}},
                            {8, 14, "Key6", {}},
                            {17, 8, "Key8", {"Prune"}},
                            {12, 17, "Key81", {"Populate"}},
                            {18, 12, "Key82", {"Prune"}},
                            {19, 18, "Key9", {"DefaultPrinters"}},
                            {13, 19, "Key10", {"Drivers"}}});
}

TEST_F(Navigation, FollowsAChangeOfTheType) {
    Start(kActiveDirectory);
    Become(kManual);
    ExpectSteps("cmdNext", {{0, 9, "Key3", {}}, {7, 14, "Key6", {}}});
    Become(kActiveDirectory);
    ExpectSteps("cmdNext", {{0, 1, "Key2", {}}, {7, 16, "Key6", {}}});
}

TEST_F(Navigation, NextKeepsTheFocusOnNextAndBackOnBack) {
    Start(kManual);
    Show();
    ClickOn(Find(window, "cmdNext(0)"));
    WaitFor([this] { return CurrentPage() == 9; }, "the next page");
    WaitFor([this] { return HasFocus(Find(window, "cmdNext(9)")); }, "Next to have the focus");
    Press(WXK_SPACE);
    WaitFor([this] { return CurrentPage() == 2; }, "the page after it");
    ClickOn(Find(window, "cmdBack(2)"));
    WaitFor([this] { return CurrentPage() == 9; }, "the page before");
    WaitFor([this] { return HasFocus(Find(window, "cmdBack(9)")); }, "Back to have the focus");
}

TEST_F(Navigation, AnotherPageTakesTheFocusToItsFirstControl) {
    Start(kManual);
    Show();
    FocusOn(Find(window, "chkAlwaysRun"));
    GoTo(modWizard::kServersPage);
    EXPECT_TRUE(WaitFor([this] { return HasFocus(Find(window, "lstServerPairs")); },
                        "the list to have the focus"));
    GoTo(modWizard::kNotificationPage);
    EXPECT_TRUE(WaitFor([this] { return HasFocus(Find(window, "cmdNext(3)")); },
                        "a page without contents to give the focus to Next"));
}

TEST_F(Navigation, AnotherPageLeavesTheFocusOutsideThePagesAlone) {
    Start(kManual);
    Show();
    wxWindow* const tree = window->tvwWizardOptions->Control();
    FocusOn(tree);
    GoTo(modWizard::kServersPage);
    Pump();
    EXPECT_TRUE(HasFocus(tree));
}

} // namespace
} // namespace window_test
