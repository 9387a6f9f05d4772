// The window by keyboard: Tab order and access keys.
#include "tests/wizard/wizard_test.h"

namespace window_test {
namespace {

class Keyboard : public WizardTest {
protected:
    // The control of the page that has the focus; a combined control counts as one.
    [[nodiscard]] std::string Focused() const {
        const wxWindow* const current = window->sstWizard->GetCurrentPage();
        for (const wxWindow* control = wxWindow::FindFocus(); control != nullptr;
             control = control->GetParent()) {
            if (control->GetParent() == current) {
                return control->GetName().utf8_string();
            }
        }
        return "";
    }

    // Tab from control to control, beginning at the first of these.
    void ExpectTabOrder(int page, const Texts& names) {
        GoTo(page);
        FocusOn(Find(window, names.front()));
        for (std::size_t i = 1; i < names.size(); ++i) {
            Press(WXK_TAB);
            ASSERT_TRUE(WaitFor([&] { return Focused() == names[i]; },
                                "the focus on " + names[i] + " after " + names[i - 1]))
                << "it is on " << Focused();
        }
        for (std::size_t i = names.size() - 1; i > 0; --i) {
            Press(WXK_TAB, wxMOD_SHIFT);
            ASSERT_TRUE(WaitFor([&] { return Focused() == names[i - 1]; },
                                "the focus back on " + names[i - 1]))
                << "it is on " << Focused();
        }
    }
};

TEST_F(Keyboard, TabFollowsTheReadingOrderOfAPairPage) {
    Start(kManual);
    Show();
    ExpectTabOrder(11, {"lstMixedPrintersAndServers", "txtMixedFromServer", "txtMixedFromPrinter",
                        "txtMixedToServer", "txtMixedToPrinter", "cmdMixedNew", "cmdMixedSave",
                        "cmdMixedDelete", "cmdHelp(11)", "cmdBack(11)", "cmdNext(11)"});
}

TEST_F(Keyboard, TabFollowsTheReadingOrderOfTheMailPage) {
    Start(kManual);
    Tick(window, "chkUseSMTP");
    Show();
    ExpectTabOrder(4,
                   {"chkUseSMTP", "txtSMTPServerName", "txtSMTPServerPort", "txtSMTPEmailAddress",
                    "txtEmailSubject", "txtSendEmailTo", "cmdAddSendEmail", "lstToEmailAddresses",
                    "cmdRemoveSendEmail", "cmdHelp(4)", "cmdBack(4)", "cmdNext(4)"});
}

TEST_F(Keyboard, TabPassesOverWhatIsDisabled) {
    Start(kManual);
    Show();
    ExpectTabOrder(5, {"chkUseFileOutput", "cmdHelp(5)", "cmdBack(5)", "cmdNext(5)"});
    ExpectTabOrder(14,
                   {"txtNetworkSharePath", "cmdBrowseDeployment", "chkBatchFile", "chkCreateHTML",
                    "cmdDeployNow(0)", "cmdHelp(14)", "cmdBack(14)", "cmdNext(14)"});
    ExpectTabOrder(15, {"chkIncludeMDAC", "cmdDeployNow(1)", "lblWizard(3)", "cmdHelp(15)",
                        "cmdBack(15)", "cmdNext(15)"});
}

TEST_F(Keyboard, TabStopsOnceInAGroupOfOptions) {
    Start(kManual);
    Pick(window, "optDefault(2)");
    Show();
    ExpectTabOrder(
        18, {"optDefault(2)", "cboForceDefault", "cmdHelp(18)", "cmdBack(18)", "cmdNext(18)"});
}

TEST_F(Keyboard, TheArrowKeysSelectAmongOptionsAndGoRound) {
    Start(kManual);
    Show();
    GoTo(18);
    ASSERT_EQ(window->setDefault->optDefault.Selected(), 0);
    FocusOn(Find(window, "optDefault(0)"));
    struct Row {
        int key;
        int selected;
    };
    for (const Row& row : {Row{WXK_DOWN, 1}, Row{WXK_RIGHT, 2}, Row{WXK_DOWN, 0}, Row{WXK_UP, 2},
                           Row{WXK_LEFT, 1}}) {
        ForgetChanges();
        Press(row.key);
        WaitFor([&] { return window->setDefault->optDefault.Selected() == row.selected; },
                "the option to be selected");
        EXPECT_EQ(Focused(), "optDefault(" + std::to_string(row.selected) + ")");
        EXPECT_TRUE(Changed());
        EXPECT_EQ(IsEnabled(window, "cboForceDefault"), row.selected == 2);
    }
}

TEST_F(Keyboard, TabReachesAGroupOfWhichNoneIsSelected) {
    Start(kManual);
    Record().IncludeMDAC = modINIDocument::kTrue;
    Record().MDACOption = 7;
    Load();
    Show();
    GoTo(15);
    FocusOn(Find(window, "chkIncludeMDAC"));
    Press(WXK_TAB);
    EXPECT_TRUE(WaitFor([this] { return Focused() == "optMDACVersion(0)"; }, "the first option"));
    EXPECT_EQ(window->mdac->optMDACVersion.Selected(), -1);
}

TEST_F(Keyboard, AccessKeysWorkThePage) {
    Start(kManual);
    Show();
    GoTo(2);
    FocusOn(Find(window, "txtFromServer"));
    Type("OLD");
    FocusOn(Find(window, "txtToServer"));
    Type("NEW");
    Press('S', wxMOD_ALT);
    WaitFor([this] { return ItemsIn(window, "lstServerPairs") == Texts{"OLD -> NEW"}; },
            "Alt+S to save the pair");
    Press('E', wxMOD_ALT);
    WaitFor([this] { return TextIn(window, "txtFromServer").empty(); },
            "Alt+E to begin a new pair");
    EXPECT_TRUE(window->servers->m_bolNewServerPair);
    Press('N', wxMOD_ALT);
    WaitFor([this] { return CurrentPage() == 10; }, "Alt+N to show the next page");
    Press('B', wxMOD_ALT);
    WaitFor([this] { return CurrentPage() == 2; }, "Alt+B to show the page before");
}

} // namespace
} // namespace window_test
