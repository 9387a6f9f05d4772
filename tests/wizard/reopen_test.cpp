// Whole documents: saved, opened again, and as long as they may become.
#include "tests/wizard/wizard_test.h"

#include "files/ini_file.h"

#include <algorithm>

namespace window_test {
namespace {

using modINIDocument::kFalse;
using modINIDocument::kTrue;
using modINIDocument::SettingsRecord;

const FileDialog kSaveDialog{true, "Save INI file As ...", "UNTITLED.INI",
                             "Queueshift (*.ini)|*.ini"};

// What every control shows that a document fills.
std::vector<Texts> Shown(wxWindow* window) {
    std::vector<Texts> shown;
    for (const char* name :
         {"chkAlwaysRun", "chkShowProgress", "chkUseSMTP", "chkUseFileOutput",
          "chkIncludeComputerName", "chkIncludeFinalStatus", "chkWriteToEventLog",
          "chkUseNotifyUser", "chkNotifyMessageOnFailure", "chkCreateHTML", "chkBatchFile",
          "chkIncludeMDAC", "chkADPruneAll", "chkDeleteNonNetworked", "chkDebugOn"}) {
        shown.push_back({name, IsTicked(window, name) ? "on" : "off"});
    }
    for (const char* name :
         {"cboDomainName", "txtSMTPServerName", "txtSMTPServerPort", "txtEmailSubject",
          "txtSMTPEmailAddress", "txtFileOutputPath", "txtFileOutputName", "txtSucessMessage",
          "txtFailureMessage", "txtNetworkSharePath", "txtDriverSharePath", "cboForceDefault",
          "cboConfigurationFileType"}) {
        shown.push_back({name, TextIn(window, name)});
    }
    for (const char* name : {"optMDACVersion(0)", "optMDACVersion(1)", "optMDACVersion(2)",
                             "optDefault(0)", "optDefault(1)", "optDefault(2)"}) {
        shown.push_back({name, IsPicked(window, name) ? "on" : "off"});
    }
    for (const char* name :
         {"lstServerPairs", "lstPrinterPairs", "lstMixedPrintersAndServers", "lstToEmailAddresses",
          "lstPopulate", "lstManualPrune", "lstPrinterDrivers"}) {
        shown.push_back(ItemsIn(window, name));
        shown.back().insert(shown.back().begin(), name);
    }
    return shown;
}

class Reopen : public WizardTest {
protected:
    void FillEverything() {
        for (const char* name :
             {"chkAlwaysRun", "chkUseSMTP", "chkUseFileOutput", "chkIncludeComputerName",
              "chkIncludeFinalStatus", "chkWriteToEventLog", "chkUseNotifyUser",
              "chkNotifyMessageOnFailure", "chkCreateHTML", "chkBatchFile", "chkIncludeMDAC",
              "chkADPruneAll", "chkDeleteNonNetworked", "chkDebugOn"}) {
            Tick(window, name);
        }
        Tick(window, "chkShowProgress", false);
        for (const char* name :
             {"cboDomainName", "txtSMTPServerName", "txtEmailSubject", "txtSMTPEmailAddress",
              "txtFileOutputPath", "txtFileOutputName", "txtSucessMessage", "txtFailureMessage",
              "txtNetworkSharePath", "txtDriverSharePath"}) {
            Enter(window, name, std::string("Text, of ") + name + " = größer; \"x\" end");
        }
        Enter(window, "txtSMTPServerPort", "1025");
        Pick(window, "optMDACVersion(1)");
        Pick(window, "optDefault(2)");
        PutItems(window, "cboForceDefault", {"Desk", "\\\\SRV\\HP"});
        SelectRow(window, "cboForceDefault", 1);
        PutItems(window, "lstServerPairs", {"S1 -> S2", "S3 -> S4"});
        PutItems(window, "lstPrinterPairs", {"HP 1 -> HP 2"});
        PutItems(window, "lstMixedPrintersAndServers", {"S1 >> P1 -> S2 >> P2"});
        PutItems(window, "lstToEmailAddresses", {"a@x", "b@y"});
        PutItems(window, "lstPopulate", {". >> Desk", "SRV >> HP"});
        PutItems(window, "lstManualPrune", {"OLD >> *", ".* >> Fax"});
        PutItems(window, "lstPrinterDrivers",
                 {"Desk >> Driver >> d.dll >> LPT1:", "HP >> Driver 2 >> e.dll >> LPT2:"});
    }

    void ExpectSameAfterReopening(DocumentType type) {
        Start(type);
        FillEverything();
        const test::TemporaryFolder folder;
        const std::vector<Texts> before = Shown(window);
        ModalScript dialogs;
        dialogs.ExpectFileDialog(kSaveDialog, folder.File("full.ini"));
        window->ssaQueueshift_ToolClick("ID_BTN_SAVE");
        ASSERT_TRUE(dialogs.Done());
        modINIFile::StartUntitledDocument();
        Become(type == kManual ? kActiveDirectory : kManual);
        ASSERT_NE(Shown(window), before);
        dialogs.ExpectFileDialog(
            {false, "Open INI File ...", "full.ini", "Queueshift (*.ini)|*.ini"},
            folder.File("full.ini"));
        window->ssaQueueshift_ToolClick("ID_BTN_OPEN");
        EXPECT_EQ(Shown(window), before);
        EXPECT_FALSE(Changed());
        for (const char* name : {"txtSMTPServerName", "txtFileOutputPath", "txtSucessMessage",
                                 "txtFailureMessage", "optMDACVersion(0)", "cboForceDefault"}) {
            EXPECT_TRUE(IsEnabled(window, name)) << name;
        }
    }
};

TEST_F(Reopen, AManualDocumentKeepsEveryValue) {
    ExpectSameAfterReopening(kManual);
}

TEST_F(Reopen, AnActiveDirectoryDocumentKeepsEveryValue) {
    ExpectSameAfterReopening(kActiveDirectory);
}

TEST_F(Reopen, AnotherDocumentTakesAFieldAwayUnchecked) {
    Start(kManual);
    Tick(window, "chkUseSMTP");
    Show();
    GoTo(4);
    ClickOn(Find(window, "txtSMTPServerPort"));
    Type("abc");
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File("new.ini"),
                     test::ReadBytes(std::string(QUEUESHIFT_TEST_DATA) + "/document/new.ini"));
    ModalScript dialogs;
    dialogs.ExpectMessage({"Do you want to save your changes before opening a new INI file?",
                           "Save?", platform::Buttons::YesNo, platform::Icon::Question},
                          platform::Answer::No);
    dialogs.ExpectFileDialog({false, "Open INI File ...", "", "Queueshift (*.ini)|*.ini"},
                             folder.File("new.ini"));
    Press('O', wxMOD_CONTROL);
    WaitFor([&dialogs] { return dialogs.Done(); }, "the other document");
    Pump();
    EXPECT_EQ(CurrentPage(), 0);
    EXPECT_EQ(TextIn(window, "txtSMTPServerPort"), "25");
    EXPECT_FALSE(IsEnabled(window, "txtSMTPServerPort"));
    EXPECT_FALSE(Changed());
}

TEST_F(Reopen, ANewDocumentInheritsTheDefaultPrinterAndTheSupportSwitch) {
    Start(kManual);
    Pick(window, "optDefault(2)");
    PutItems(window, "cboForceDefault", {"X"});
    SelectRow(window, "cboForceDefault", 0);
    Tick(window, "chkDebugOn");
    Tick(window, "chkAlwaysRun");
    Store();
    modINIFile::StartUntitledDocument();
    EXPECT_TRUE(IsPicked(window, "optDefault(2)"));
    EXPECT_EQ(TextIn(window, "cboForceDefault"), "X");
    EXPECT_TRUE(IsTicked(window, "chkDebugOn"));
    EXPECT_FALSE(IsTicked(window, "chkAlwaysRun"));
}

TEST_F(Reopen, ListsOfTenThousandEntriesFillAreStoredAndAreWritten) {
    constexpr std::size_t kEntries = 10000;
    Start(kManual);
    SettingsRecord& record = Record();
    for (std::size_t i = 0; i < kEntries; ++i) {
        const std::string n = std::to_string(i);
        record.ServerPairs.push_back({"from" + n, "to" + n});
        record.PrinterPairs.push_back({"a" + n, "b" + n});
        record.MixedPairs.push_back({"s" + n, "p" + n, "q" + n, "t" + n});
        record.EmailTo.push_back("m" + n + "@x");
        record.PopulateList.push_back({"ps" + n, "pp" + n});
        record.PruneList.push_back({"rs" + n, "rp" + n});
        record.PrinterDrivers.push_back({"dp" + n, "dd" + n, "df" + n, "dl" + n});
    }
    Load();
    const SettingsRecord filled = record;
    for (const char* name :
         {"lstServerPairs", "lstPrinterPairs", "lstMixedPrintersAndServers", "lstToEmailAddresses",
          "lstPopulate", "lstManualPrune", "lstPrinterDrivers"}) {
        EXPECT_EQ(ItemsIn(window, name).size(), kEntries) << name;
    }
    EXPECT_EQ(ItemsIn(window, "lstMixedPrintersAndServers").back(),
              "s9999 >> p9999 -> t9999 >> q9999");
    record = {};
    Store();
    EXPECT_EQ(record.ServerPairs, filled.ServerPairs);
    EXPECT_EQ(record.PrinterPairs, filled.PrinterPairs);
    EXPECT_EQ(record.MixedPairs, filled.MixedPairs);
    EXPECT_EQ(record.EmailTo, filled.EmailTo);
    EXPECT_EQ(record.PopulateList, filled.PopulateList);
    EXPECT_EQ(record.PruneList, filled.PruneList);
    EXPECT_EQ(record.PrinterDrivers, filled.PrinterDrivers);

    const test::TemporaryFolder folder;
    modINIDocument::g_strINIFilePath = folder.File("long.ini");
    modINIDocument::g_strINIFileTitle = "long.ini";
    modINIDocument::g_bolDocumentChanged = true;
    const ModalScript noDialogs;
    modINIFile::SaveINIFile();
    const std::string bytes = test::ReadBytes(folder.File("long.ini"));
    for (const char* tail :
         {",from9999\r\n", ",to9999\r\n", ",a9999\r\n", ",b9999\r\n", ",s9999\r\n", ",t9999\r\n",
          ",m9999@x\r\n", ",pp9999\r\n", ",rs9999\r\n", ",dp9999\r\n", ",dl9999\r\n"}) {
        EXPECT_NE(bytes.find(tail), std::string::npos) << tail;
    }
}

TEST_F(Reopen, TenThousandPrintersFillTheDerivedLists) {
    constexpr std::size_t kEntries = 10000;
    Start(kManual);
    Texts mixed;
    for (std::size_t i = 0; i < kEntries; ++i) {
        const std::string n = std::to_string(i);
        mixed.push_back("s >> p -> server >> a long common beginning " + n);
    }
    PutItems(window, "lstMixedPrintersAndServers", mixed);
    window->RefreshDriverList();
    window->RefreshDefaultPrinterList();
    EXPECT_EQ(ItemsIn(window, "lstPrinterDrivers").size(), kEntries);
    EXPECT_EQ(ItemsIn(window, "cboForceDefault").size(), kEntries);
    EXPECT_EQ(ItemsIn(window, "cboForceDefault").back(),
              "\\\\server\\a long common beginning 9999");
}

} // namespace
} // namespace window_test
