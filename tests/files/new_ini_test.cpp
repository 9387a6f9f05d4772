// The new-document dialog: its texts, its tabs, its buttons and keys.

#include "tests/files/new_ini_dialog_test.h"

#include <wx/stattext.h>

namespace window_test {
namespace {

TEST_F(NewINIDialog, ShowsItsTextsWordForWord) {
    EXPECT_EQ(dialog.GetTitle(), "New INI");
    EXPECT_EQ(dialog.sstNewINI->GetPageCount(), 3U);
    EXPECT_EQ(wxControl::RemoveMnemonics(dialog.sstNewINI->GetPageText(0)), "New");
    EXPECT_EQ(wxControl::RemoveMnemonics(dialog.sstNewINI->GetPageText(1)), "Existing");
    EXPECT_EQ(wxControl::RemoveMnemonics(dialog.sstNewINI->GetPageText(2)), "Recent");
    EXPECT_EQ(Find(&dialog, "lblGeneral(20)")->GetLabel(),
              "Please select the type of Queueshift INI file:");
    EXPECT_EQ(
        Find(&dialog, "lblGeneral(21)")->GetLabel(),
        "If all of your printers are published within Active Directory, you can select the "
        "Active Directory option to automatically maintain correct printer mappings using the "
        "automatic search and replace feature of Queueshift.");
    EXPECT_EQ(Find(&dialog, "lblGeneral(22)")->GetLabel(),
              "If you would like more control over which printers get moved to which servers, "
              "please select this option.");
    EXPECT_EQ(Find(&dialog, "lblExisting")->GetLabel(),
              "Please navigate to and select an existing INI file:");
    EXPECT_EQ(dialog.optUseActiveDirectory->GetLabel(), "&Active Directory");
    EXPECT_EQ(dialog.optUseManualConfiguration->GetLabel(), "&Manual Configuration");
    EXPECT_EQ(dialog.cmdSelect->GetLabel(), "&Select");
    EXPECT_EQ(dialog.cmdCancel->GetLabel(), "&Cancel");
    EXPECT_EQ(dialog.cmdHelp->GetLabel(), "&Help");
}

TEST_F(NewINIDialog, EveryControlIsFoundByItsName) {
    EXPECT_EQ(Find(&dialog, "sstNewINI"), dialog.sstNewINI);
    EXPECT_EQ(Find(&dialog, "optUseActiveDirectory"), dialog.optUseActiveDirectory);
    EXPECT_EQ(Find(&dialog, "optUseManualConfiguration"), dialog.optUseManualConfiguration);
    EXPECT_EQ(Find(&dialog, "drvExistingINI"), dialog.drvExistingINI);
    EXPECT_EQ(Find(&dialog, "dirExistingINI"), dialog.dirExistingINI);
    EXPECT_EQ(Find(&dialog, "filExistingINI"), dialog.filExistingINI);
    EXPECT_EQ(Find(&dialog, "cmdSelect"), dialog.cmdSelect);
    EXPECT_EQ(Find(&dialog, "cmdCancel"), dialog.cmdCancel);
    EXPECT_EQ(Find(&dialog, "cmdHelp"), dialog.cmdHelp);
}

TEST_F(NewINIDialog, LoadsWithTheFirstTabExistingAvailableRecentNot) {
    EXPECT_EQ(dialog.CurrentTab(), frmNewINI::kNewTab);
    EXPECT_TRUE(dialog.sstNewINI->GetPage(1)->IsEnabled());
    EXPECT_FALSE(dialog.sstNewINI->GetPage(2)->IsEnabled());
}

TEST_F(NewINIDialog, SelectClosesAndClearsTheFlag) {
    frmNewINI::g_bolCancelPressed = true;
    Run([](frmNewINI& shown) { ClickOn(shown.cmdSelect); });
    EXPECT_FALSE(frmNewINI::g_bolCancelPressed);
    EXPECT_FALSE(dialog.IsShown());
}

TEST_F(NewINIDialog, CancelClosesAndSetsTheFlag) {
    Run([](frmNewINI& shown) { ClickOn(shown.cmdCancel); });
    EXPECT_TRUE(frmNewINI::g_bolCancelPressed);
    EXPECT_FALSE(dialog.IsShown());
}

TEST_F(NewINIDialog, EscapeIsCancel) {
    Run([](frmNewINI& shown) {
        FocusOn(shown.optUseManualConfiguration);
        Press(WXK_ESCAPE);
    });
    EXPECT_TRUE(frmNewINI::g_bolCancelPressed);
}

TEST_F(NewINIDialog, TheCloseBoxIsCancel) {
    Run([](frmNewINI& shown) { shown.Close(); });
    EXPECT_TRUE(frmNewINI::g_bolCancelPressed);
}

TEST_F(NewINIDialog, EnterIsSelect) {
    frmNewINI::g_bolCancelPressed = true;
    Run([](frmNewINI& shown) {
        FocusOn(shown.optUseActiveDirectory);
        Press(WXK_RETURN);
    });
    EXPECT_FALSE(frmNewINI::g_bolCancelPressed);
}

TEST_F(NewINIDialog, EnterOnCancelIsCancel) {
    Run([](frmNewINI& shown) {
        FocusOn(shown.cmdCancel);
        Press(WXK_RETURN);
    });
    EXPECT_TRUE(frmNewINI::g_bolCancelPressed);
}

TEST_F(NewINIDialog, AccessKeysChooseTheTypeFromAnywhere) {
    Run([](frmNewINI& shown) {
        FocusOn(shown.optUseActiveDirectory);
        Press('M', wxMOD_ALT);
        WaitFor([&] { return shown.optUseManualConfiguration->GetValue(); }, "Alt+M");
        FocusOn(shown.cmdHelp);
        Press('A', wxMOD_ALT);
        WaitFor([&] { return shown.optUseActiveDirectory->GetValue(); }, "Alt+A");
        ClickOn(shown.cmdCancel);
    });
}

TEST_F(NewINIDialog, TheArrowKeysChooseTheType) {
    Run([](frmNewINI& shown) {
        FocusOn(shown.optUseActiveDirectory);
        for (const int key : {WXK_DOWN, WXK_UP, WXK_RIGHT}) {
            const bool manual = key != WXK_UP;
            Press(key);
            WaitFor([&] { return shown.optUseManualConfiguration->GetValue() == manual; },
                    "the type to change");
            EXPECT_EQ(shown.optUseActiveDirectory->GetValue(), !manual);
        }
        EXPECT_TRUE(HasFocus(shown.optUseManualConfiguration));
        Press(WXK_RETURN);
    });
    EXPECT_FALSE(frmNewINI::g_bolCancelPressed);
}

TEST_F(NewINIDialog, AccessKeysWorkTheButtonsFromAnywhere) {
    for (wxWindow* from : std::vector<wxWindow*>{dialog.optUseActiveDirectory, dialog.cmdSelect}) {
        Run([this, from](frmNewINI&) {
            FocusOn(from);
            window.helpContexts.clear();
            Press('H', wxMOD_ALT);
            WaitFor([this] { return window.helpContexts.size() == 1; }, "Alt+H");
            Press('C', wxMOD_ALT);
        });
        EXPECT_TRUE(frmNewINI::g_bolCancelPressed);
        Run([from](frmNewINI&) {
            FocusOn(from);
            Press('S', wxMOD_ALT);
        });
        EXPECT_FALSE(frmNewINI::g_bolCancelPressed);
    }
}

TEST_F(NewINIDialog, TabWalksFromTheOptionsToSelectCancelAndHelp) {
    Run([](frmNewINI& shown) {
        FocusOn(shown.optUseActiveDirectory);
        for (wxWindow* next : {shown.cmdSelect, shown.cmdCancel, shown.cmdHelp}) {
            Press(WXK_TAB);
            WaitFor([next] { return HasFocus(next); }, FromWx(next->GetName()) + " to be next");
        }
        ClickOn(shown.cmdCancel);
    });
}

TEST_F(NewINIDialog, AClickOnAnUnavailableTabIsRefused) {
    Run([](frmNewINI& shown) {
        ClickAt(&shown, TabOf(shown, 2));
        Pump();
        EXPECT_EQ(shown.CurrentTab(), 0);
        ClickAt(&shown, TabOf(shown, 1));
        WaitFor([&] { return shown.CurrentTab() == 1; }, "the Existing tab");
        shown.SetTabAvailable(0, false);
        ClickAt(&shown, TabOf(shown, 0));
        Pump();
        EXPECT_EQ(shown.CurrentTab(), 1);
        shown.SetTabAvailable(0, true);
        // Elsewhere first: two clicks on one place are a double click.
        ClickOn(shown.filExistingINI);
        ClickAt(&shown, TabOf(shown, 0));
        WaitFor([&] { return shown.CurrentTab() == 0; }, "the New tab");
        ClickOn(shown.cmdCancel);
    });
}

TEST_F(NewINIDialog, TheKeyboardDoesNotReachAnUnavailableTab) {
    Run([](frmNewINI& shown) {
        FocusOn(shown.sstNewINI);
        Press(WXK_RIGHT);
        WaitFor([&] { return shown.CurrentTab() == 1; }, "the Existing tab");
        Press(WXK_RIGHT);
        Pump();
        EXPECT_EQ(shown.CurrentTab(), 1);
        ClickOn(shown.cmdCancel);
    });
}

TEST_F(NewINIDialog, RecentIsReachedByItsAccessKeyOnceAvailable) {
    Run([](frmNewINI& shown) {
        FocusOn(shown.optUseActiveDirectory);
        Press('R', wxMOD_ALT);
        EXPECT_EQ(shown.CurrentTab(), 0);
        shown.SetTabAvailable(2, true);
        Press('R', wxMOD_ALT);
        EXPECT_EQ(shown.CurrentTab(), 2);
        ClickOn(shown.cmdCancel);
    });
}

TEST_F(NewINIDialog, HelpShowsTheTopicOfTheTab) {
    dialog.cmdHelp_Click();
    dialog.SetTabAvailable(1, false);
    dialog.cmdHelp_Click();
    dialog.ShowTab(1);
    dialog.cmdHelp_Click();
    dialog.ShowTab(2);
    dialog.cmdHelp_Click();
    EXPECT_EQ(window.helpContexts, (std::vector<int>{1081, 1036, 1081, 1042}));
}

TEST_F(NewINIDialog, TheHelpButtonAndF1AreTheSame) {
    Run([this](frmNewINI& shown) {
        ClickOn(shown.cmdHelp);
        EXPECT_EQ(window.helpContexts.size(), 1U);
        FocusOn(shown.optUseActiveDirectory);
        Press(WXK_F1);
        EXPECT_EQ(window.helpContexts, (std::vector<int>{1081, 1081}));
        EXPECT_TRUE(shown.IsShown());
        ClickOn(shown.cmdCancel);
    });
}

TEST_F(NewINIDialog, LooksRight) {
    Run([](frmNewINI& shown) {
        BringToFront(&shown);
        Screenshot("new-ini-new", &shown);
        // Two descriptions of several lines, and their room.
        EXPECT_GE(Find(&shown, "lblGeneral(21)")->GetSize().y, 3 * shown.GetCharHeight());
        EXPECT_GE(Find(&shown, "lblGeneral(22)")->GetSize().y, 2 * shown.GetCharHeight());
        EXPECT_TRUE(shown.sstNewINI->GetScreenRect().Contains(
            Find(&shown, "lblGeneral(22)")->GetScreenRect()));
        shown.ShowTab(frmNewINI::kExistingTab);
        Screenshot("new-ini-existing", &shown);
        for (wxWindow* control : std::vector<wxWindow*>{shown.drvExistingINI, shown.dirExistingINI,
                                                        shown.filExistingINI, shown.cmdSelect,
                                                        shown.cmdCancel, shown.cmdHelp}) {
            EXPECT_GE(control->GetSize().x, control->GetBestSize().x / 2) << control->GetName();
            WaitFor([&] { return shown.GetScreenRect().Contains(control->GetScreenRect()); },
                    FromWx(control->GetName()) + " to lie in the dialog");
        }
        ClickOn(shown.cmdCancel);
    });
}

} // namespace
} // namespace window_test
