// Deploy Now through the window: its preconditions, its progress, and what lies there afterwards.
#include "tests/wizard/wizard_test.h"

#include "deployment/progress.h"
#include "platform/program.h"

#include <wx/eventfilter.h>
#include <wx/msgdlg.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>

#include <filesystem>
#include <set>

namespace window_test {
namespace {

using platform::Buttons;
using platform::Icon;

const platform::Message kUnsaved{
    "This INI file needs to be saved. Please save your INI file before trying to deploy.", "Error",
    Buttons::Ok, Icon::Critical};
const platform::Message kNoFolder{
    "The deployment folder does not exist. Please check your deployment folder and try again.",
    "Error", Buttons::Ok, Icon::Critical};
const platform::Message kSuccess{"Deployment successfull.", "Sucess", Buttons::Ok,
                                 Icon::Information};
const platform::Message kIniError{
    "Error: Queueshift was unable to deploy your INI file to the folder specified.\r\n\r\nPlease "
    "check your file and folder permissions.",
    "Error Deploying INI File", Buttons::Ok, Icon::Critical};
const platform::Message kIniWarning{
    "Warning: Queueshift was unable to deploy your INI file to the folder specified.\r\n\r\nThe "
    "file already exists and is currently write protected.\r\nIf you saved your INI file to the "
    "same folder as your deployment folder,\r\nthen you can ignore this warning, becuase your INI "
    "file is already deployed.\r\nIf not, then please check your file and folder permissions.",
    "INI File Write Warning", Buttons::Ok, Icon::Exclamation};

frmProgress* ProgressWindow() {
    for (wxWindow* top : wxTopLevelWindows) {
        if (auto* const progress = dynamic_cast<frmProgress*>(top)) {
            if (!progress->IsBeingDeleted()) {
                return progress;
            }
        }
    }
    return nullptr;
}

// Looks at the windows while a deployment lets events run.
class Watch : private wxEventFilter {
public:
    explicit Watch(wxWindow& window) : window_(window) { wxEvtHandler::AddFilter(this); }
    ~Watch() override { wxEvtHandler::RemoveFilter(this); }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    std::set<std::string> labels;
    bool enabledMeanwhile = false;

private:
    int FilterEvent(wxEvent& event) override {
        if (event.GetEventType() == wxEVT_NULL) {
            return Event_Skip;
        }
        if (const frmProgress* const progress = ProgressWindow();
            progress != nullptr && progress->IsShown()) {
            labels.insert(progress->lblProgress->GetLabel().utf8_string());
            enabledMeanwhile = enabledMeanwhile || window_.IsThisEnabled();
        }
        return Event_Skip;
    }

    wxWindow& window_;
};

class Deploy : public WizardTest {
protected:
    Deploy() {
        Start(kManual);
        idleCursor_ = window->GetCursor();
        ini_ = saved_.File("Sites.ini");
        test::WriteBytes(ini_, "[GENERAL]\r\nShowProgress=True\r\n");
        modINIDocument::g_strINIFilePath = ini_;
        modINIDocument::g_strINIFileTitle = "Sites.ini";
        PutText(window, "txtNetworkSharePath", target.Path());
    }

    ~Deploy() override {
        for (const std::string& file : standIns_) {
            std::error_code ignored; // a file that is still there shows in the next test
            std::filesystem::remove(file, ignored);
        }
    }

    // A file beside the program, as the engine would lie there.
    void StandIn(const std::string& name) {
        const std::string path = platform::JoinPath(platform::ProgramFolder(), name);
        test::WriteBytes(path, "stand-in for " + name);
        standIns_.push_back(path);
    }

    void StandInsForAll() {
        for (const char* name : {"QueueshiftEngine.exe", "MSCOMCTL.OCX", "MSWINSCK.OCX"}) {
            StandIn(name);
        }
    }

    void ExpectIdle() {
        EXPECT_TRUE(window->IsThisEnabled());
        EXPECT_EQ(ProgressWindow(), nullptr);
        EXPECT_TRUE(window->GetCursor().IsSameAs(idleCursor_));
        EXPECT_FALSE(Changed());
    }

    [[nodiscard]] std::string Deployed(const std::string& name) const {
        return test::ReadBytes(target.File(name));
    }

    test::TemporaryFolder target;

private:
    test::TemporaryFolder saved_;
    wxCursor idleCursor_;
    std::string ini_;
    std::vector<std::string> standIns_;
};

TEST_F(Deploy, RefusesADocumentThatWasNeverSaved) {
    modINIDocument::g_strINIFilePath.clear();
    PutText(window, "txtNetworkSharePath", "no such folder");
    ModalScript dialogs;
    dialogs.ExpectMessage(kUnsaved);
    Push(window, "cmdDeployNow(0)");
    EXPECT_EQ(target.EntryCount(), 0);
    ExpectIdle();
}

TEST_F(Deploy, RefusesADocumentWithUnsavedChanges) {
    Enter(window, "txtNetworkSharePath", target.Path() + "x");
    Enter(window, "txtNetworkSharePath", target.Path());
    ASSERT_TRUE(Changed());
    ModalScript dialogs;
    dialogs.ExpectMessage(kUnsaved);
    Push(window, "cmdDeployNow(0)");
    EXPECT_EQ(target.EntryCount(), 0);
    EXPECT_TRUE(window->IsThisEnabled());
}

TEST_F(Deploy, RefusesAFolderThatDoesNotExist) {
    for (const std::string& folder : {target.File("missing"), std::string()}) {
        PutText(window, "txtNetworkSharePath", folder);
        ModalScript dialogs;
        dialogs.ExpectMessage(kNoFolder);
        Push(window, "cmdDeployNow(1)");
        ExpectIdle();
    }
}

TEST_F(Deploy, CopiesTheFilesAndReportsSuccess) {
    StandInsForAll();
    ModalScript dialogs;
    dialogs.ExpectMessage(kSuccess);
    Push(window, "cmdDeployNow(0)");
    EXPECT_TRUE(dialogs.Done());
    for (const char* name : {"QueueshiftEngine.exe", "MSCOMCTL.OCX", "MSWINSCK.OCX"}) {
        EXPECT_EQ(Deployed(name), std::string("stand-in for ") + name);
    }
    EXPECT_EQ(Deployed("Sites.ini"), "[GENERAL]\r\nShowProgress=True\r\n");
    EXPECT_EQ(target.EntryCount(), 4);
    ExpectIdle();
}

TEST_F(Deploy, WritesBatchFileAndWebPageWhenTicked) {
    StandInsForAll();
    Find<wxCheckBox>(window, "chkBatchFile")->SetValue(true);
    Find<wxCheckBox>(window, "chkCreateHTML")->SetValue(true);
    ModalScript dialogs;
    dialogs.ExpectMessage(kSuccess);
    Push(window, "cmdDeployNow(0)");
    EXPECT_NE(Deployed("Sites.ini.bat").find("QueueshiftEngine.exe"), std::string::npos);
    EXPECT_NE(Deployed("Sites.ini.html").find("<"), std::string::npos);
    EXPECT_EQ(target.EntryCount(), 6);
    ExpectIdle();
}

TEST_F(Deploy, TakesTheMDACInstallerThatIsChosen) {
    StandInsForAll();
    StandIn("MDAC_TYP2.7SP1.EXE");
    Find<wxCheckBox>(window, "chkIncludeMDAC")->SetValue(true);
    Find<wxRadioButton>(window, "optMDACVersion(1)")->SetValue(true);
    ModalScript dialogs;
    dialogs.ExpectMessage(kSuccess);
    Push(window, "cmdDeployNow(1)");
    EXPECT_EQ(Deployed("MDAC_TYP2.7SP1.EXE"), "stand-in for MDAC_TYP2.7SP1.EXE");
    EXPECT_EQ(target.EntryCount(), 5);
}

TEST_F(Deploy, ShowsItsProgressWhileTheWindowIsDeaf) {
    StandInsForAll();
    Show();
    GoTo(modWizard::kDeploymentGeneralPage);
    ModalScript dialogs;
    dialogs.ExpectMessage(kSuccess);
    Watch watch(*window);
    ClickOn(Find(window, "cmdDeployNow(0)"));
    WaitFor([&] { return dialogs.Done(); }, "the report of success");
    EXPECT_FALSE(watch.labels.empty());
    EXPECT_FALSE(watch.enabledMeanwhile);
    ExpectIdle();
}

TEST_F(Deploy, AMissingEngineWithoutMDACIsTheIniFilesProblem) {
    Find<wxCheckBox>(window, "chkBatchFile")->SetValue(true);
    ModalScript dialogs;
    dialogs.ExpectDialog<wxMessageDialog>([&](wxMessageDialog& box) {
        // The INI file lies there already when the failure of the engine is told.
        EXPECT_EQ(box.GetCaption(), kIniWarning.caption);
        EXPECT_EQ(box.GetMessageDialogStyle() & wxICON_MASK, wxICON_EXCLAMATION);
        const frmProgress* const progress = ProgressWindow();
        EXPECT_NE(progress, nullptr);
        if (progress != nullptr) {
            EXPECT_TRUE(progress->IsShown());
            EXPECT_EQ(progress->lblProgress->GetLabel(), "Copying INI file ...");
        }
        EXPECT_FALSE(window->IsThisEnabled());
        return static_cast<int>(wxID_OK);
    });
    Push(window, "cmdDeployNow(0)");
    EXPECT_TRUE(dialogs.Done());
    EXPECT_NE(Deployed("Sites.ini.bat"), "");
    ExpectIdle();
}

TEST_F(Deploy, AMissingInstallerStopsTheCopiesButNotTheGenerators) {
    StandInsForAll();
    Find<wxCheckBox>(window, "chkIncludeMDAC")->SetValue(true);
    Find<wxRadioButton>(window, "optMDACVersion(0)")->SetValue(true);
    Find<wxCheckBox>(window, "chkBatchFile")->SetValue(true);
    Find<wxCheckBox>(window, "chkCreateHTML")->SetValue(true);
    ModalScript dialogs;
    dialogs.ExpectDialog<wxMessageDialog>([](wxMessageDialog& box) {
        EXPECT_EQ(box.GetCaption(), "Error");
        EXPECT_TRUE(box.GetMessage().StartsWith("Error copying MDAC file to deployment folder. "))
            << box.GetMessage();
        return static_cast<int>(wxID_OK);
    });
    Push(window, "cmdDeployNow(1)");
    EXPECT_EQ(target.EntryCount(), 2);
    EXPECT_NE(Deployed("Sites.ini.bat"), "");
    EXPECT_NE(Deployed("Sites.ini.html"), "");
    ExpectIdle();
}

TEST_F(Deploy, AnIniFileThatIsDeployedWhereItLiesIsOnlyAWarning) {
    StandInsForAll();
    test::WriteBytes(target.File("Sites.ini"), "[GENERAL]\r\n");
    modINIDocument::g_strINIFilePath = target.File("Sites.ini");
    ModalScript dialogs;
    dialogs.ExpectMessage(kIniWarning);
    Push(window, "cmdDeployNow(0)");
    EXPECT_TRUE(dialogs.Done());
    EXPECT_EQ(Deployed("Sites.ini"), "[GENERAL]\r\n");
    ExpectIdle();
}

TEST_F(Deploy, AnIniFileThatHasGoneIsAnError) {
    StandInsForAll();
    modINIDocument::g_strINIFilePath = target.File("gone.ini");
    ModalScript dialogs;
    dialogs.ExpectMessage(kIniError);
    Push(window, "cmdDeployNow(0)");
    EXPECT_TRUE(dialogs.Done());
    EXPECT_EQ(target.EntryCount(), 3);
    ExpectIdle();
}

TEST_F(Deploy, WorksAgainAfterASuccess) {
    StandInsForAll();
    for (int round = 0; round < 2; ++round) {
        ModalScript dialogs;
        dialogs.ExpectMessage(kSuccess);
        Push(window, "cmdDeployNow(0)");
        EXPECT_TRUE(dialogs.Done());
        ExpectIdle();
    }
}

} // namespace
} // namespace window_test
