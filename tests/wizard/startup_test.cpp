// What precedes the first sight of the window.
#include "tests/wizard/wizard_test.h"

#include "files/new_ini.h"

#include <wx/listbox.h>
#include <wx/radiobut.h>

namespace window_test {
namespace {

const platform::Message kReadFailure{
    "Unable to read INI file. Please check your permissions to the folder and file you are "
    "attempting to read.",
    "Write Error", platform::Buttons::Ok, platform::Icon::Critical};

int Answer(bool cancelled) {
    frmNewINI::g_bolCancelPressed = cancelled;
    return cancelled ? wxID_CANCEL : wxID_OK;
}

int ChooseFile(frmNewINI& dialog, const std::string& folder, const std::string& name) {
    dialog.ShowTab(frmNewINI::kExistingTab);
    dialog.OpenFolder(folder);
    EXPECT_TRUE(dialog.filExistingINI->SetStringSelection(wxString::FromUTF8(name))) << name;
    return Answer(false);
}

class StartUp : public WizardTest {
protected:
    StartUp() { window = new frmWizard; }

    // The whole text of a file that lacks no key.
    static std::string Complete(const std::string& lists) {
        return "[GENERAL]\r\nUseActiveDirectory=False\r\nUseManualDefinitions=True\r\n"
               "AlwaysRun=True\r\nShowProgress=False\r\n[NOTIFICATION SMTP]\r\nUseSMTP=True\r\n"
               "[NOTIFICATION FILE OUTPUT]\r\nUseFileOutput=False\r\n"
               "IncludeComputerName=False\r\nIncludeOutcome=False\r\nWriteToEventLog=False\r\n"
               "[NOTIFICATION CLIENT POP-UP]\r\nUseClientPopup=False\r\n"
               "UseSuccessClientPopup=False\r\nUseFailureClientPopup=False\r\n[DEPLOYMENT]\r\n"
               "CreateWebLaunchPage=False\r\nCreateBatchFile=False\r\nIncludeMDAC=False\r\n"
               "[PRUNE]\r\nDeleteADOrphans=False\r\nDeleteAllNonNetworked=False\r\n"
               "[SUPPORT]\r\nDebugOn=False\r\n" +
               lists;
    }
};

TEST_F(StartUp, PreparesTheWindowBeforeTheDialog) {
    ModalScript dialogs;
    dialogs.ExpectDialog<frmNewINI>([this](frmNewINI& dialog) {
        EXPECT_TRUE(dialog.optUseActiveDirectory->GetValue());
        EXPECT_EQ(dialog.CurrentTab(), 0);
        EXPECT_EQ(TextIn(window, "cboPruneType"), "Printer and Server");
        EXPECT_EQ(TextIn(window, "cboPopulateType"), "Networked");
        EXPECT_TRUE(window->servers->m_bolNewServerPair);
        EXPECT_TRUE(window->printers->m_bolNewPrinterPair);
        EXPECT_TRUE(window->mixed->m_bolNewMixedPair);
        EXPECT_TRUE(window->populate->m_bolNewPopulate);
        EXPECT_TRUE(window->prune->m_bolNewPrune);
        EXPECT_FALSE(window->m_bolDomainChangedPopulate);
        EXPECT_FALSE(window->m_bolDomainChangedPrune);
        EXPECT_FALSE(Changed());
        EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [UNTITLED]");
        EXPECT_EQ(CurrentPage(), 0);
        EXPECT_EQ(CurrentNode(), "Key1");
        EXPECT_EQ(TextIn(window, "txtSMTPServerPort"), "25");
        EXPECT_TRUE(IsTicked(window, "chkShowProgress"));
        return Answer(true);
    });
    EXPECT_FALSE(window->Form_Load());
}

TEST_F(StartUp, BringsEveryDependentControlIntoItsState) {
    ModalScript dialogs;
    dialogs.ExpectDialog<frmNewINI>([this](frmNewINI&) {
        for (const char* name :
             {"txtSMTPServerName", "txtSMTPServerPort", "txtEmailSubject", "txtSendEmailTo",
              "lstToEmailAddresses", "txtSMTPEmailAddress", "cmdAddSendEmail", "cmdRemoveSendEmail",
              "txtFileOutputPath", "txtFileOutputName", "cmdBrowseFileOutput",
              "chkIncludeComputerName", "chkIncludeFinalStatus", "txtSucessMessage",
              "txtFailureMessage", "optMDACVersion(0)", "optMDACVersion(1)", "optMDACVersion(2)",
              "cboForceDefault"}) {
            EXPECT_FALSE(IsEnabled(window, name)) << name;
        }
        for (const char* name : {"txtPruneServerName", "txtPrunePrinterName",
                                 "txtPopulateServerName", "txtPopulatePrinterName"}) {
            EXPECT_TRUE(IsEnabled(window, name)) << name;
        }
        return Answer(true);
    });
    EXPECT_FALSE(window->Form_Load());
}

TEST_F(StartUp, CancelEndsTheProgramWithoutAQuestion) {
    ModalScript dialogs;
    dialogs.ExpectDialog<frmNewINI>([](frmNewINI&) { return Answer(true); });
    EXPECT_FALSE(window->Form_Load());
    EXPECT_TRUE(dialogs.Done());
}

TEST_F(StartUp, TheNewTabStartsADocumentOfTheChosenType) {
    for (const bool ad : {true, false}) {
        ModalScript dialogs;
        dialogs.ExpectDialog<frmNewINI>([ad](frmNewINI& dialog) {
            (ad ? dialog.optUseActiveDirectory : dialog.optUseManualConfiguration)->SetValue(true);
            return Answer(false);
        });
        ASSERT_TRUE(window->Form_Load());
        EXPECT_EQ(Record().UseActiveDirectory, ad ? modINIDocument::kTrue : modINIDocument::kFalse);
        EXPECT_EQ(Record().UseManualDefinitions,
                  ad ? modINIDocument::kFalse : modINIDocument::kTrue);
        EXPECT_EQ(TextIn(window, "cboConfigurationFileType"),
                  ad ? "Active Directory" : "Manual Configuration");
        EXPECT_EQ(modINIDocument::g_strINIFilePath, "");
        EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [UNTITLED]");
        EXPECT_FALSE(Changed());
        EXPECT_FALSE(window->m_bolDomainChangedPopulate);
        EXPECT_FALSE(window->m_bolDomainChangedPrune);
    }
}

TEST_F(StartUp, TheExistingTabOpensTheChosenFile) {
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File("Sites.ini"),
                     Complete("[MANUAL DEFINITIONS SERVERS]\r\nFromServers=S1,S2\r\n"
                              "ToServers=T1,T2\r\n[ACTIVE DIRECTORY]\r\nDomainName=d.example\r\n"));
    ModalScript dialogs;
    dialogs.ExpectDialog<frmNewINI>(
        [&](frmNewINI& dialog) { return ChooseFile(dialog, folder.Path(), "Sites.ini"); });
    ASSERT_TRUE(window->Form_Load());
    EXPECT_EQ(modINIDocument::g_strINIFilePath, folder.File("Sites.ini"));
    EXPECT_EQ(modINIDocument::g_strINIFileTitle, "Sites.ini");
    EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [Sites.ini]");
    EXPECT_EQ(TextIn(window, "cboConfigurationFileType"), "Manual Configuration");
    EXPECT_EQ(ItemsIn(window, "lstServerPairs"), (Texts{"S1 -> T1", "S2 -> T2"}));
    EXPECT_TRUE(IsEnabled(window, "txtSMTPServerName"));
    EXPECT_FALSE(Changed());
    EXPECT_FALSE(window->m_bolDomainChangedPopulate);
    EXPECT_FALSE(window->m_bolDomainChangedPrune);
    EXPECT_EQ(CurrentPage(), 0);
}

TEST_F(StartUp, TheExistingTabWithoutAFileShowsAgain) {
    const test::TemporaryFolder folder;
    int shown = 0;
    ModalScript dialogs;
    const auto withoutFile = [&](frmNewINI& dialog) {
        ++shown;
        dialog.ShowTab(frmNewINI::kExistingTab);
        dialog.OpenFolder(folder.Path());
        return Answer(false);
    };
    dialogs.ExpectDialog<frmNewINI>(withoutFile);
    dialogs.ExpectDialog<frmNewINI>(withoutFile);
    dialogs.ExpectDialog<frmNewINI>([&](frmNewINI& dialog) {
        ++shown;
        EXPECT_EQ(dialog.CurrentTab(), frmNewINI::kExistingTab);
        dialog.ShowTab(frmNewINI::kNewTab);
        return Answer(false);
    });
    ASSERT_TRUE(window->Form_Load());
    EXPECT_EQ(shown, 3);
    EXPECT_EQ(TextIn(window, "cboConfigurationFileType"), "Active Directory");
}

TEST_F(StartUp, ADamagedFileIsReportedAndNothingOfItKept) {
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File("bad.ini"),
                     Complete("[MANUAL DEFINITIONS SERVERS]\r\nFromServers=S1\r\n"
                              "ToServers=T1,T2,T3\r\n"));
    ModalScript dialogs;
    dialogs.ExpectDialog<frmNewINI>(
        [&](frmNewINI& dialog) { return ChooseFile(dialog, folder.Path(), "bad.ini"); });
    dialogs.ExpectMessage(kReadFailure);
    ASSERT_TRUE(window->Form_Load());
    EXPECT_EQ(modINIDocument::g_strINIFilePath, "");
    EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [UNTITLED]");
    EXPECT_EQ(ItemsIn(window, "lstServerPairs"), Texts{});
    EXPECT_FALSE(IsTicked(window, "chkAlwaysRun"));
    EXPECT_TRUE(IsTicked(window, "chkShowProgress"));
    EXPECT_FALSE(Changed());
}

TEST_F(StartUp, SelectOnTheLiveDialogStartsTheDocument) {
    ModalScript dialogs;
    dialogs.ExpectLive<frmNewINI>([](frmNewINI& dialog) {
        ClickOn(dialog.optUseManualConfiguration);
        ClickOn(dialog.cmdSelect);
    });
    ASSERT_TRUE(window->Form_Load());
    EXPECT_EQ(TextIn(window, "cboConfigurationFileType"), "Manual Configuration");
}

TEST_F(StartUp, EscapeOnTheLiveDialogEndsTheProgram) {
    ModalScript dialogs;
    dialogs.ExpectLive<frmNewINI>([](frmNewINI& dialog) {
        FocusOn(dialog.cmdSelect);
        Press(WXK_ESCAPE);
    });
    EXPECT_FALSE(window->Form_Load());
}

} // namespace
} // namespace window_test
