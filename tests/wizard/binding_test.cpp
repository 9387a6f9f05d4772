// The binding of controls and record, row by row and in both directions.
#include "tests/wizard/wizard_test.h"

namespace window_test {
namespace {

using modINIDocument::Boolean;
using modINIDocument::kFalse;
using modINIDocument::kTrue;
using modINIDocument::SettingsRecord;

class Binding : public WizardTest {
protected:
    Binding() { Start(kActiveDirectory); }
};

struct CheckRow {
    Boolean SettingsRecord::*field;
    const char* control;
};

// UseClientPopup and UseSuccessClientPopup, which share a box, have their own tests below.
const std::vector<CheckRow> kChecks{
    {&SettingsRecord::AlwaysRun, "chkAlwaysRun"},
    {&SettingsRecord::ShowProgress, "chkShowProgress"},
    {&SettingsRecord::UseSMTP, "chkUseSMTP"},
    {&SettingsRecord::UseFileOutput, "chkUseFileOutput"},
    {&SettingsRecord::IncludeComputerName, "chkIncludeComputerName"},
    {&SettingsRecord::IncludeOutcome, "chkIncludeFinalStatus"},
    {&SettingsRecord::WriteToEventLog, "chkWriteToEventLog"},
    {&SettingsRecord::UseFailureClientPopup, "chkNotifyMessageOnFailure"},
    {&SettingsRecord::CreateWebLaunchPage, "chkCreateHTML"},
    {&SettingsRecord::CreateBatchFile, "chkBatchFile"},
    {&SettingsRecord::IncludeMDAC, "chkIncludeMDAC"},
    {&SettingsRecord::DeleteADOrphans, "chkADPruneAll"},
    {&SettingsRecord::DeleteAllNonNetworked, "chkDeleteNonNetworked"},
    {&SettingsRecord::DebugOn, "chkDebugOn"},
};

TEST_F(Binding, ChecksABoxExactlyWhenItsFieldIsTrue) {
    for (const CheckRow& row : kChecks) {
        for (const Boolean value : {kTrue, kFalse, Boolean{1}, kTrue}) {
            Record().*row.field = value;
            Load();
            EXPECT_EQ(IsTicked(window, row.control), value == kTrue) << row.control << value;
            for (const CheckRow& other : kChecks) {
                if (other.field != row.field) {
                    EXPECT_EQ(IsTicked(window, other.control), Record().*other.field == kTrue)
                        << other.control;
                }
            }
        }
        Record().*row.field = kFalse;
    }
}

TEST_F(Binding, StoresABoxAsTrueOrFalse) {
    for (const CheckRow& row : kChecks) {
        for (const bool on : {true, false}) {
            Find<wxCheckBox>(window, row.control)->SetValue(on);
            Record().*row.field = 7;
            Store();
            EXPECT_EQ(Record().*row.field, on ? kTrue : kFalse) << row.control;
        }
    }
}

struct TextRow {
    std::string SettingsRecord::*field;
    const char* control;
};

const std::vector<TextRow> kTexts{
    {&SettingsRecord::DomainName, "cboDomainName"},
    {&SettingsRecord::SMTPServerNameOrIP, "txtSMTPServerName"},
    {&SettingsRecord::ServerPort, "txtSMTPServerPort"},
    {&SettingsRecord::EmailSubject, "txtEmailSubject"},
    {&SettingsRecord::EmailFrom, "txtSMTPEmailAddress"},
    {&SettingsRecord::FileOutputPath, "txtFileOutputPath"},
    {&SettingsRecord::FileOutputName, "txtFileOutputName"},
    {&SettingsRecord::SuccessMessage, "txtSucessMessage"},
    {&SettingsRecord::FailureMessage, "txtFailureMessage"},
    {&SettingsRecord::DeploymentPath, "txtNetworkSharePath"},
    {&SettingsRecord::DriverSharePath, "txtDriverSharePath"},
};

TEST_F(Binding, PutsEachTextIntoItsControlAndBack) {
    for (const TextRow& row : kTexts) {
        Record().*row.field = std::string(" text of ") + row.control + " ü ";
    }
    Load();
    for (const TextRow& row : kTexts) {
        EXPECT_EQ(TextIn(window, row.control), std::string(" text of ") + row.control + " ü ");
        PutText(window, row.control, std::string("back from ") + row.control);
    }
    Store();
    for (const TextRow& row : kTexts) {
        EXPECT_EQ(Record().*row.field, std::string("back from ") + row.control);
        Record().*row.field = "";
    }
    Load();
    for (const TextRow& row : kTexts) {
        EXPECT_EQ(TextIn(window, row.control), "") << row.control;
    }
}

TEST_F(Binding, ShowsTheSuccessFlagInTheSharedBox) {
    struct Row {
        Boolean popup;
        Boolean success;
    };
    for (const Row& row : {Row{kTrue, kFalse}, Row{kFalse, kTrue}, Row{kTrue, kTrue},
                           Row{kFalse, kFalse}, Row{kTrue, kFalse}}) {
        Record().UseClientPopup = row.popup;
        Record().UseSuccessClientPopup = row.success;
        Load();
        EXPECT_EQ(IsTicked(window, "chkUseNotifyUser"), row.success == kTrue);
        EXPECT_EQ(IsEnabled(window, "txtSucessMessage"), row.success == kTrue);
        Store();
        EXPECT_EQ(Record().UseClientPopup, row.success);
        EXPECT_EQ(Record().UseSuccessClientPopup, row.success);
    }
}

TEST_F(Binding, RunsTheClickOfABoxThatChanges) {
    const Texts switched{"txtSMTPServerName", "txtFileOutputPath", "txtSucessMessage",
                         "txtFailureMessage", "optMDACVersion(1)"};
    for (const Boolean value : {kTrue, kFalse}) {
        Record().UseSMTP = Record().UseFileOutput = value;
        Record().UseSuccessClientPopup = Record().UseFailureClientPopup = value;
        Record().IncludeMDAC = value;
        ForgetChanges();
        Load();
        EXPECT_TRUE(Changed());
        for (const std::string& name : switched) {
            EXPECT_EQ(IsEnabled(window, name), value == kTrue) << name;
        }
        ForgetChanges();
        Load();
    }
}

TEST_F(Binding, ADomainFromADocumentCountsAsAChange) {
    ForgetChanges();
    window->m_bolDomainChangedPopulate = false;
    window->m_bolDomainChangedPrune = false;
    Record().DomainName = "corp.example";
    Load();
    EXPECT_TRUE(window->m_bolDomainChangedPopulate);
    EXPECT_TRUE(window->m_bolDomainChangedPrune);
    EXPECT_TRUE(Changed());
}

TEST_F(Binding, TextsThatTheProgramPutsThereMarkNothing) {
    for (const TextRow& row : kTexts) {
        if (row.field == &SettingsRecord::DomainName) {
            continue;
        }
        ForgetChanges();
        Record() = {};
        modINIDocument::ResetDocument();
        Load();
        ForgetChanges();
        Record().*row.field = "another";
        // The domain's handler runs with every load, and marks the document; see above.
        window->activeDirectory->cboDomainName_Change = [] {};
        Load();
        EXPECT_FALSE(Changed()) << row.control;
    }
}

TEST_F(Binding, MDACOptionSelectsItsButtonAndOutOfRangeNone) {
    const Texts buttons{"optMDACVersion(0)", "optMDACVersion(1)", "optMDACVersion(2)"};
    for (const int option : {0, 1, 2, 3, 0, -1, 1, 32767, 2, -32768}) {
        Record().MDACOption = static_cast<modINIDocument::Integer>(option);
        Load();
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(IsPicked(window, buttons[static_cast<std::size_t>(i)]), i == option)
                << option;
        }
        Store();
        EXPECT_EQ(Record().MDACOption, option >= 0 && option <= 2 ? option : 2);
    }
}

TEST_F(Binding, DefaultTypeSelectsItsButtonAndOutOfRangeNone) {
    const Texts buttons{"optDefault(0)", "optDefault(1)", "optDefault(2)"};
    for (const int type : {0, 1, 2, 3, 1, -1}) {
        Record().DefaultType = static_cast<modINIDocument::Integer>(type);
        Record().DefaultPrinterName = "\\\\SRV\\HP";
        Load();
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(IsPicked(window, buttons[static_cast<std::size_t>(i)]), i == type) << type;
        }
        Store();
        EXPECT_EQ(Record().DefaultType, type == 0 || type == 1 ? type : 2);
        if (type == 0 || type == 1) {
            EXPECT_EQ(Record().DefaultPrinterName, "");
        }
    }
}

TEST_F(Binding, ATypeOutOfRangeClosesTheListOfPrinters) {
    Record().DefaultPrinterName = "\\\\SRV\\HP";
    for (const int type : {2, 9, 0, -1, 2, 3}) {
        Record().DefaultType = static_cast<modINIDocument::Integer>(type);
        Load();
        EXPECT_EQ(IsEnabled(window, "cboForceDefault"), type == 2) << type;
    }
}

TEST_F(Binding, AForcedPrinterIsTheOnlyItemOfItsList) {
    PutItems(window, "cboForceDefault", {"old one", "old two"});
    Record().DefaultType = 2;
    Record().DefaultPrinterName = "\\\\SRV\\HP";
    Load();
    EXPECT_EQ(ItemsIn(window, "cboForceDefault"), Texts{"\\\\SRV\\HP"});
    EXPECT_EQ(TextIn(window, "cboForceDefault"), "\\\\SRV\\HP");
    EXPECT_TRUE(IsEnabled(window, "cboForceDefault"));
    Store();
    EXPECT_EQ(Record().DefaultType, 2);
    EXPECT_EQ(Record().DefaultPrinterName, "\\\\SRV\\HP");
}

TEST_F(Binding, AnyOtherDefaultLeavesTheListOfPrintersAlone) {
    PutItems(window, "cboForceDefault", {"one", "two"});
    SelectRow(window, "cboForceDefault", 1);
    Record().DefaultType = 1;
    Record().DefaultPrinterName = "\\\\SRV\\HP";
    Load();
    EXPECT_EQ(ItemsIn(window, "cboForceDefault"), (Texts{"one", "two"}));
    EXPECT_EQ(TextIn(window, "cboForceDefault"), "two");
}

TEST_F(Binding, LoadingEmptiesTheEditorsButOneBox) {
    const Texts emptied{"txtFromServer",      "txtToServer",         "txtSendEmailTo",
                        "txtFromPrinter",     "txtToPrinter",        "txtMixedFromPrinter",
                        "txtMixedFromServer", "txtMixedToPrinter",   "txtMixedToServer",
                        "txtPruneServerName", "txtPrunePrinterName", "txtPopulateServerName"};
    for (const std::string& name : emptied) {
        PutText(window, name, "left over");
    }
    PutText(window, "txtPopulatePrinterName", "left over");
    PutItems(window, "cboADPrune", {"A >> B"});
    PutItems(window, "cboAdPopulate", {"A >> B"});
    SelectRow(window, "cboADPrune", 0);
    PutText(window, "cboAdPopulate", "typed");
    Load();
    for (const std::string& name : emptied) {
        EXPECT_EQ(TextIn(window, name), "") << name;
    }
    EXPECT_EQ(TextIn(window, "txtPopulatePrinterName"), "left over");
    EXPECT_EQ(ItemsIn(window, "cboADPrune"), Texts{});
    EXPECT_EQ(ItemsIn(window, "cboAdPopulate"), Texts{});
    EXPECT_EQ(TextIn(window, "cboADPrune"), "");
    EXPECT_EQ(TextIn(window, "cboAdPopulate"), "");
}

TEST_F(Binding, NeitherDirectionTouchesTheType) {
    Record().UseActiveDirectory = kTrue;
    Record().UseManualDefinitions = kFalse;
    Load();
    Store();
    EXPECT_EQ(Record().UseActiveDirectory, kTrue);
    EXPECT_EQ(Record().UseManualDefinitions, kFalse);
}

TEST_F(Binding, StoringMarksNothing) {
    ForgetChanges();
    Store();
    EXPECT_FALSE(Changed());
    modINIDocument::g_bolDocumentChanged = true;
    Store();
    EXPECT_TRUE(Changed());
}

} // namespace
} // namespace window_test
