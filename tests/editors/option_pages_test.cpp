// The pages of check boxes and texts: what switches what, and which edits mark the document.
#include "editors/active_directory_page.h"
#include "editors/client_popup_page.h"
#include "editors/deployment_page.h"
#include "editors/event_log_page.h"
#include "editors/file_output_page.h"
#include "editors/general_page.h"
#include "editors/mdac_page.h"
#include "editors/support_page.h"
#include "tests/editors/page_test.h"

#include <wx/settings.h>

namespace window_test {
namespace {

class OptionPages : public PageTest {
protected:
    // Each click of these, on and off, marks the document and nothing else.
    void ExpectClicksMark(const Texts& names) {
        for (const std::string& name : names) {
            const bool ticked = IsTicked(page, name);
            for (const bool on : {!ticked, ticked}) {
                ForgetChanges();
                Tick(page, name, on);
                EXPECT_TRUE(Changed()) << name;
            }
        }
    }

    // Typing marks the document; a text that the program puts there does not.
    void ExpectTypingMarks(const Texts& names) {
        for (const std::string& name : names) {
            ForgetChanges();
            PutText(page, name, "by program");
            EXPECT_FALSE(Changed()) << name;
            Enter(page, name, "typed");
            EXPECT_TRUE(Changed()) << name;
        }
    }

    void ExpectState(const Texts& names, bool on) {
        for (const std::string& name : names) {
            EXPECT_EQ(IsEnabled(page, name), on) << name;
        }
    }

    void ExpectColour(const Texts& names, bool on) {
        const std::string colour = ColourText(
            wxSystemSettings::GetColour(on ? wxSYS_COLOUR_WINDOW : wxSYS_COLOUR_BTNFACE));
        for (const std::string& name : names) {
            EXPECT_EQ(ColourOf(page, name), colour) << name;
        }
    }

    editors::FolderServices folders{[this](wxWindow*) { return picked; },
                                    [](const std::string&) { return true; }};
    std::string picked;
};

TEST_F(OptionPages, GeneralMarksTheDocumentOnEachClick) {
    Make<editors::GeneralPage>(0);
    ExpectClicksMark({"chkShowProgress", "chkAlwaysRun"});
}

TEST_F(OptionPages, GeneralShowsTheTypeAndDoesNotLetItBeChanged) {
    auto& general = Make<editors::GeneralPage>(0);
    general.ShowConfigurationType(true);
    EXPECT_EQ(TextIn(page, "cboConfigurationFileType"), "Active Directory");
    general.ShowConfigurationType(false);
    EXPECT_EQ(TextIn(page, "cboConfigurationFileType"), "Manual Configuration");
    EXPECT_FALSE(IsEnabled(page, "cboConfigurationFileType"));
}

TEST_F(OptionPages, EventLogMarksTheDocumentOnEachClick) {
    Make<editors::EventLogPage>(7);
    ExpectClicksMark({"chkWriteToEventLog"});
}

TEST_F(OptionPages, SupportMarksTheDocumentOnEachClick) {
    Make<editors::SupportPage>(13);
    ExpectClicksMark({"chkDebugOn"});
}

TEST_F(OptionPages, FileOutputIsSwitchedByItsCheckBox) {
    Make<editors::FileOutputPage>(5, *checks, folders);
    for (const bool on : {true, false, true}) {
        ForgetChanges();
        Tick(page, "chkUseFileOutput", on);
        EXPECT_TRUE(Changed());
        ExpectState({"txtFileOutputPath", "txtFileOutputName", "cmdBrowseFileOutput",
                     "chkIncludeComputerName", "chkIncludeFinalStatus"},
                    on);
        ExpectColour({"txtFileOutputPath", "txtFileOutputName"}, on);
    }
}

TEST_F(OptionPages, FileOutputMarksTheDocumentOnEachEdit) {
    Make<editors::FileOutputPage>(5, *checks, folders);
    ExpectClicksMark({"chkIncludeComputerName", "chkIncludeFinalStatus"});
    ExpectTypingMarks({"txtFileOutputPath", "txtFileOutputName"});
}

TEST_F(OptionPages, APickedFolderEntersItsFieldAsIfTyped) {
    Make<editors::FileOutputPage>(5, *checks, folders);
    PutText(page, "txtFileOutputPath", "before");
    Push(page, "cmdBrowseFileOutput");
    EXPECT_EQ(TextIn(page, "txtFileOutputPath"), "before");
    EXPECT_FALSE(Changed());
    picked = "C:\\Picked";
    Push(page, "cmdBrowseFileOutput");
    EXPECT_EQ(TextIn(page, "txtFileOutputPath"), "C:\\Picked");
    EXPECT_TRUE(Changed());
}

TEST_F(OptionPages, APickedShareEntersTheDeploymentFolder) {
    Make<editors::DeploymentPage>(14, *checks, folders);
    picked = "\\\\SERVER";
    Push(page, "cmdBrowseDeployment");
    EXPECT_EQ(TextIn(page, "txtNetworkSharePath"), "\\\\SERVER");
    EXPECT_TRUE(Changed());
}

TEST_F(OptionPages, DeploymentMarksTheDocumentOnEachEdit) {
    Make<editors::DeploymentPage>(14, *checks, folders);
    ExpectClicksMark({"chkBatchFile", "chkCreateHTML"});
    ExpectTypingMarks({"txtNetworkSharePath"});
}

TEST_F(OptionPages, ClientPopupSwitchesEachMessageByItsOwnCheckBox) {
    Make<editors::ClientPopupPage>(6);
    struct Half {
        const char* box;
        const char* message;
        const char* other;
    };
    for (const Half& half :
         {Half{"chkUseNotifyUser", "txtSucessMessage", "txtFailureMessage"},
          Half{"chkNotifyMessageOnFailure", "txtFailureMessage", "txtSucessMessage"}}) {
        for (const bool on : {true, false}) {
            const bool otherBefore = IsEnabled(page, half.other);
            ForgetChanges();
            Tick(page, half.box, on);
            EXPECT_TRUE(Changed());
            ExpectState({half.message}, on);
            ExpectColour({half.message}, on);
            EXPECT_EQ(IsEnabled(page, half.other), otherBefore) << half.box;
        }
    }
}

TEST_F(OptionPages, ClientPopupMarksTheDocumentOnEachTypedText) {
    Make<editors::ClientPopupPage>(6);
    ExpectTypingMarks({"txtSucessMessage", "txtFailureMessage"});
}

TEST_F(OptionPages, MDACSwitchesItsVersions) {
    Make<editors::MDACPage>(15);
    for (const bool on : {true, false}) {
        ForgetChanges();
        Tick(page, "chkIncludeMDAC", on);
        EXPECT_TRUE(Changed());
        ExpectState({"optMDACVersion(0)", "optMDACVersion(1)", "optMDACVersion(2)"}, on);
    }
}

TEST_F(OptionPages, MDACMarksTheDocumentOnEachVersion) {
    auto& mdac = Make<editors::MDACPage>(15);
    EXPECT_EQ(mdac.optMDACVersion.Selected(), -1);
    for (const int index : {0, 1, 2}) {
        ForgetChanges();
        Pick(page, "optMDACVersion(" + std::to_string(index) + ")");
        EXPECT_TRUE(Changed()) << index;
        EXPECT_EQ(mdac.optMDACVersion.Selected(), index);
    }
}

TEST_F(OptionPages, TheDomainTellsOfTypingAndOfChoosing) {
    auto& ad = Make<editors::ActiveDirectoryPage>(1);
    int changes = 0;
    ad.cboDomainName_Change = [&changes] { ++changes; };
    Enter(page, "cboDomainName", "corp.example");
    EXPECT_GE(changes, 1);
    PutItems(page, "cboDomainName", {"one.example", "two.example"});
    changes = 0;
    ad.cboDomainName->SetSelection(1);
    wxCommandEvent chosen(wxEVT_COMBOBOX, ad.cboDomainName->GetId());
    ad.cboDomainName->ProcessWindowEvent(chosen);
    EXPECT_GE(changes, 1);
}

TEST_F(OptionPages, AGroupWithoutAChoiceShowsNone) {
    auto& mdac = Make<editors::MDACPage>(15);
    mdac.optMDACVersion.Choose(1);
    EXPECT_TRUE(IsPicked(page, "optMDACVersion(1)"));
    for (const int outside : {-1, 3, 32767}) {
        mdac.optMDACVersion.Choose(1);
        ForgetChanges();
        mdac.optMDACVersion.Choose(outside);
        EXPECT_EQ(mdac.optMDACVersion.Selected(), -1) << outside;
        for (const char* name : {"optMDACVersion(0)", "optMDACVersion(1)", "optMDACVersion(2)"}) {
            EXPECT_FALSE(IsPicked(page, name)) << name;
        }
        EXPECT_FALSE(Changed());
    }
}

TEST_F(OptionPages, AChoiceByProgramRunsTheClickOnlyWhenItIsAnother) {
    auto& mdac = Make<editors::MDACPage>(15);
    mdac.optMDACVersion.Choose(2);
    EXPECT_TRUE(Changed());
    ForgetChanges();
    mdac.optMDACVersion.Choose(2);
    EXPECT_FALSE(Changed());
}

} // namespace
} // namespace window_test
