// What happens when the user leaves a checked field of the main window, with real input.
#include "tests/wizard/wizard_test.h"

#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/menu.h>
#include <wx/textctrl.h>

namespace window_test {
namespace {

using platform::Buttons;
using platform::Icon;

// Each warning speaks of the other folder.
const platform::Message kOutputWarning{
    "The network share folder could not be found. You will not be able to deploy this INI file "
    "until the folder is created.",
    "Folder not found.", Buttons::Ok, Icon::Exclamation};
const platform::Message kShareWarning{
    "The output file folder could not be found. This may cause Queueshift to work irregularly.",
    "Folder not found.", Buttons::Ok, Icon::Exclamation};
const platform::Message kInvalidPort{
    "Incorrect port number. Please enter a valid port number (i.e. 1025)", "Invalid Port Number",
    Buttons::Ok, Icon::Information};
const platform::Message kInvalidEmail{
    "Incorrect email address. Please enter a valid email address (i.e. name@example.com)",
    "Invalid Email", Buttons::Ok, Icon::Information};

constexpr const char* kMissing = "/no/such/folder/here";

class Leaving : public WizardTest {
protected:
    Leaving() {
        Start(kManual);
        Tick(window, "chkUseSMTP");
        Tick(window, "chkUseFileOutput");
        ForgetChanges();
        Show();
    }

    // Shows the page and puts the focus into the field, which holds this text.
    void BeIn(int page, const char* field, const std::string& text) {
        GoTo(page);
        PutText(window, field, text);
        FocusOn(Find(window, field));
    }

    void WaitForFocus(const char* name) {
        EXPECT_TRUE(WaitFor([&] { return HasFocus(Find(window, name)); },
                            std::string("the focus on ") + name));
    }

    // Long enough for whatever is pending to have run.
    static void Settle() {
        bool ran = false;
        wxTheApp->CallAfter([&ran] { ran = true; });
        WaitFor([&ran] { return ran; }, "pending calls");
        Pump();
    }

    static void WaitForDone(const ModalScript& dialogs) {
        EXPECT_TRUE(WaitFor([&] { return dialogs.Done(); }, "the message"));
    }
};

TEST_F(Leaving, TheOutputFolderByTabWarnsOfTheOther) {
    BeIn(5, "txtFileOutputPath", kMissing);
    ModalScript dialogs;
    dialogs.ExpectMessage(kOutputWarning);
    Press(WXK_TAB);
    WaitForDone(dialogs);
    WaitForFocus("cmdBrowseFileOutput");
    EXPECT_TRUE(window->IsThisEnabled());
    EXPECT_EQ(TextIn(window, "txtFileOutputPath"), kMissing);
    EXPECT_FALSE(Changed());
}

TEST_F(Leaving, TheDeploymentFolderByTabWarnsOfTheOther) {
    BeIn(14, "txtNetworkSharePath", kMissing);
    ModalScript dialogs;
    dialogs.ExpectMessage(kShareWarning);
    Press(WXK_TAB);
    WaitForDone(dialogs);
    WaitForFocus("cmdBrowseDeployment");
    EXPECT_TRUE(window->IsThisEnabled());
}

TEST_F(Leaving, AFolderByMouseKeepsTheClick) {
    BeIn(5, "txtFileOutputPath", kMissing);
    ModalScript dialogs;
    dialogs.ExpectMessage(kOutputWarning);
    ClickOn(Find(window, "chkIncludeFinalStatus"));
    WaitForDone(dialogs);
    WaitFor([this] { return IsTicked(window, "chkIncludeFinalStatus"); }, "the click");
    WaitForFocus("chkIncludeFinalStatus");
}

TEST_F(Leaving, AFolderForNextWarnsAndMoves) {
    BeIn(5, "txtFileOutputPath", kMissing);
    ModalScript dialogs;
    dialogs.ExpectMessage(kOutputWarning);
    ClickOn(Find(window, "cmdNext(5)"));
    WaitForDone(dialogs);
    WaitFor([this] { return CurrentPage() == 6; }, "the next page");
}

TEST_F(Leaving, AFolderByAccessKeyWarnsAndMoves) {
    BeIn(5, "txtFileOutputPath", kMissing);
    ModalScript dialogs;
    dialogs.ExpectMessage(kOutputWarning);
    Press('N', wxMOD_ALT);
    WaitForDone(dialogs);
    WaitFor([this] { return CurrentPage() == 6; }, "the next page");
}

TEST_F(Leaving, AFolderForTheTreeWarns) {
    BeIn(5, "txtFileOutputPath", kMissing);
    ModalScript dialogs;
    dialogs.ExpectMessage(kOutputWarning);
    const wxRect node = window->tvwWizardOptions->ScreenRect("Key31");
    ClickAt(window->tvwWizardOptions->Control(),
            {node.x + node.width / 2, node.y + node.height / 2});
    WaitForDone(dialogs);
    WaitFor([this] { return CurrentPage() == 2; }, "the Servers page");
}

TEST_F(Leaving, AFolderThatTheTreeOnlyShowsIsNotLeft) {
    PutText(window, "txtNetworkSharePath", kMissing);
    GoTo(0);
    FocusOn(Find(window, "cmdNext(0)"));
    const ModalScript noDialogs;
    const wxRect node = window->tvwWizardOptions->ScreenRect("Key6");
    ClickAt(window->tvwWizardOptions->Control(),
            {node.x + node.width / 2, node.y + node.height / 2});
    WaitFor([this] { return CurrentPage() == 14; }, "the Deployment page");
    Settle();
    EXPECT_TRUE(HasFocus(window->tvwWizardOptions->Control()));
}

TEST_F(Leaving, ATrailingBackslashGoesAndMarksTheDocument) {
    const test::TemporaryFolder folder;
    struct Row {
        std::string text;
        std::string left;
    };
    for (const Row& row :
         {Row{folder.Path() + "\\", folder.Path()}, Row{folder.Path(), folder.Path()}}) {
        BeIn(5, "txtFileOutputPath", row.text);
        ForgetChanges();
        const ModalScript noDialogs;
        Press(WXK_TAB);
        WaitForFocus("cmdBrowseFileOutput");
        WaitFor([&] { return TextIn(window, "txtFileOutputPath") == row.left; }, "the check");
        Settle();
        EXPECT_EQ(Changed(), row.text != row.left);
    }
}

TEST_F(Leaving, OneOfTwoTrailingBackslashesGoes) {
    BeIn(14, "txtNetworkSharePath", std::string(kMissing) + "\\\\");
    ModalScript dialogs;
    dialogs.ExpectMessage(kShareWarning);
    Press(WXK_TAB);
    WaitForDone(dialogs);
    WaitFor([this] { return TextIn(window, "txtNetworkSharePath").ends_with('\\'); }, "the strip");
    EXPECT_EQ(TextIn(window, "txtNetworkSharePath"), std::string(kMissing) + "\\");
}

TEST_F(Leaving, AnEmptyFolderIsNotChecked) {
    const ModalScript noDialogs;
    BeIn(5, "txtFileOutputPath", "");
    Press(WXK_TAB);
    WaitForFocus("cmdBrowseFileOutput");
    BeIn(14, "txtNetworkSharePath", "");
    Press(WXK_TAB);
    WaitForFocus("cmdBrowseDeployment");
    Settle();
    EXPECT_FALSE(Changed());
}

TEST_F(Leaving, OutputSwitchedOffIsNotChecked) {
    GoTo(5);
    Find<wxCheckBox>(window, "chkUseFileOutput")->SetValue(false);
    PutText(window, "txtFileOutputPath", std::string(kMissing) + "\\");
    const ModalScript noDialogs;
    window->fileOutput->txtFileOutputPath_Validate();
    EXPECT_EQ(TextIn(window, "txtFileOutputPath"), std::string(kMissing) + "\\");
}

TEST_F(Leaving, TheShareIsCheckedOnItsOwnPageOnly) {
    GoTo(4);
    PutText(window, "txtNetworkSharePath", std::string(kMissing) + "\\");
    const ModalScript noDialogs;
    window->deployment->txtNetworkSharePath_Validate();
    EXPECT_EQ(TextIn(window, "txtNetworkSharePath"), std::string(kMissing) + "\\");
}

TEST_F(Leaving, APageSwitchByProgramIsNoLeaving) {
    BeIn(5, "txtFileOutputPath", kMissing);
    const ModalScript noDialogs;
    GoTo(2);
    Settle();
    EXPECT_EQ(CurrentPage(), 2);
}

TEST_F(Leaving, AMenuCommandIsNoLeaving) {
    BeIn(5, "txtFileOutputPath", kMissing);
    const ModalScript noDialogs;
    window->ProcessCommand(window->GetMenuBar()->GetMenu(1)->FindItem("Email Output"));
    Settle();
    EXPECT_EQ(CurrentPage(), 4);
}

TEST_F(Leaving, AMessageBoxIsNoLeaving) {
    BeIn(4, "txtSMTPServerPort", "abc");
    ModalScript dialogs;
    dialogs.ExpectLive<wxDialog>([](wxDialog& dialog) {
        FocusOn(&dialog);
        dialog.EndModal(wxID_OK);
    });
    wxDialog box(window, wxID_ANY, "Elsewhere");
    new wxTextCtrl(&box, wxID_ANY);
    box.ShowModal();
    WaitForFocus("txtSMTPServerPort");
    Settle();
}

TEST_F(Leaving, ClosingIsNoLeaving) {
    BeIn(4, "txtSMTPServerPort", "abc");
    const ModalScript noDialogs;
    window->Close();
    EXPECT_TRUE(WaitFor([this] { return !window; }, "the window to go"));
}

TEST_F(Leaving, AWrongPortKeepsTheFocusOnTab) {
    BeIn(4, "txtSMTPServerPort", "abc");
    ModalScript dialogs;
    dialogs.ExpectMessage(kInvalidPort);
    Press(WXK_TAB);
    WaitForDone(dialogs);
    WaitForFocus("txtSMTPServerPort");
    Settle();
    EXPECT_TRUE(HasFocus(Find(window, "txtSMTPServerPort")));
    EXPECT_EQ(TextIn(window, "txtSMTPServerPort"), "abc");
    EXPECT_FALSE(Changed());
}

TEST_F(Leaving, AWrongPortSwallowsTheClickOnNext) {
    BeIn(4, "txtSMTPServerPort", "abc");
    ModalScript dialogs;
    dialogs.ExpectMessage(kInvalidPort);
    ClickOn(Find(window, "cmdNext(4)"));
    WaitForDone(dialogs);
    WaitForFocus("txtSMTPServerPort");
    Settle();
    EXPECT_EQ(CurrentPage(), 4);
}

TEST_F(Leaving, AWrongPortSwallowsTheAccessKeyOfNext) {
    BeIn(4, "txtSMTPServerPort", "abc");
    ModalScript dialogs;
    dialogs.ExpectMessage(kInvalidPort);
    Press('N', wxMOD_ALT);
    WaitForDone(dialogs);
    WaitForFocus("txtSMTPServerPort");
    Settle();
    EXPECT_EQ(CurrentPage(), 4);
}

TEST_F(Leaving, AWrongPortKeepsACheckBoxAsItWas) {
    BeIn(4, "txtSMTPServerPort", "abc");
    ModalScript dialogs;
    dialogs.ExpectMessage(kInvalidPort);
    ClickOn(Find(window, "chkUseSMTP"));
    WaitForDone(dialogs);
    WaitForFocus("txtSMTPServerPort");
    Settle();
    EXPECT_TRUE(IsTicked(window, "chkUseSMTP"));
    EXPECT_TRUE(IsEnabled(window, "txtSMTPServerName"));
}

TEST_F(Leaving, AWrongPortKeepsThePageAgainstTheTree) {
    BeIn(4, "txtSMTPServerPort", "abc");
    ModalScript dialogs;
    dialogs.ExpectMessage(kInvalidPort);
    const wxRect node = window->tvwWizardOptions->ScreenRect("Key31");
    ClickAt(window->tvwWizardOptions->Control(),
            {node.x + node.width / 2, node.y + node.height / 2});
    WaitForDone(dialogs);
    WaitForFocus("txtSMTPServerPort");
    Settle();
    EXPECT_EQ(CurrentPage(), 4);
    EXPECT_EQ(CurrentNode(), "Key41");
}

TEST_F(Leaving, AMendedPortLetsTheUserGo) {
    BeIn(4, "txtSMTPServerPort", "");
    Type("abc");
    {
        ModalScript dialogs;
        dialogs.ExpectMessage(kInvalidPort);
        Press(WXK_TAB);
        WaitForDone(dialogs);
        WaitForFocus("txtSMTPServerPort");
    }
    PutText(window, "txtSMTPServerPort", "25.5");
    const ModalScript noDialogs;
    Press(WXK_TAB);
    WaitForFocus("txtSMTPEmailAddress");
}

TEST_F(Leaving, TheSenderIsRefusedForABadRecipient) {
    PutText(window, "txtSendEmailTo", "bob");
    BeIn(4, "txtSMTPEmailAddress", "me@x");
    ModalScript dialogs;
    dialogs.ExpectMessage(kInvalidEmail);
    Press(WXK_TAB);
    WaitForDone(dialogs);
    WaitForFocus("txtSMTPEmailAddress");
    EXPECT_EQ(TextIn(window, "txtSMTPEmailAddress"), "me@x");
    EXPECT_EQ(TextIn(window, "txtSendEmailTo"), "bob");
}

TEST_F(Leaving, TheSenderItselfIsNotLookedAt) {
    BeIn(4, "txtSMTPEmailAddress", "nobody");
    const ModalScript noDialogs;
    Press(WXK_TAB);
    WaitForFocus("txtEmailSubject");
}

TEST_F(Leaving, AnUncheckedFieldIsLeftFreely) {
    BeIn(4, "txtSendEmailTo", "bob");
    const ModalScript noDialogs;
    Press(WXK_TAB);
    WaitForFocus("cmdAddSendEmail");
    Settle();
}

} // namespace
} // namespace window_test
