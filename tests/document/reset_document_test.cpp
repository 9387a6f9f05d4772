#include "tests/document/document_fixture.h"

namespace {

using namespace modINIDocument;

class ResetsDocument : public test::DocumentTest {};

TEST_F(ResetsDocument, TheProgramStartsWithARecordOfNothing) {
    EXPECT_EQ(g_Document.ServerPort, "");
    EXPECT_EQ(g_Document.ShowProgress, kFalse);
    EXPECT_TRUE(g_Document.ServerPairs.empty());
    EXPECT_TRUE(g_Document.PrinterDrivers.empty());
}

TEST_F(ResetsDocument, PortAndProgressHaveDefaultsOfTheirOwn) {
    ResetDocument();
    EXPECT_EQ(g_Document.ServerPort, "25");
    EXPECT_EQ(g_Document.ShowProgress, kTrue);
}

TEST_F(ResetsDocument, EveryListHoldsOneEmptyElement) {
    g_Document.ServerPairs = {{"a", "b"}, {"c", "d"}};
    g_Document.EmailTo = {"x", "y", "z"};
    ResetDocument();
    EXPECT_EQ(g_Document.ServerPairs, std::vector<NamePair>(1));
    EXPECT_EQ(g_Document.PrinterPairs, std::vector<NamePair>(1));
    EXPECT_EQ(g_Document.MixedPairs, std::vector<MixedPair>(1));
    EXPECT_EQ(g_Document.EmailTo, std::vector<std::string>(1));
    EXPECT_EQ(g_Document.PopulateList, std::vector<ServerPrinterName>(1));
    EXPECT_EQ(g_Document.PruneList, std::vector<ServerPrinterName>(1));
    EXPECT_EQ(g_Document.PrinterDrivers, std::vector<PrinterDriver>(1));
}

TEST_F(ResetsDocument, EveryFlagIsOffAndEveryTextEmpty) {
    const std::vector<Boolean SettingsRecord::*> flags = {
        &SettingsRecord::UseActiveDirectory,
        &SettingsRecord::UseManualDefinitions,
        &SettingsRecord::AlwaysRun,
        &SettingsRecord::UseSMTP,
        &SettingsRecord::UseFileOutput,
        &SettingsRecord::IncludeComputerName,
        &SettingsRecord::IncludeOutcome,
        &SettingsRecord::WriteToEventLog,
        &SettingsRecord::UseClientPopup,
        &SettingsRecord::UseSuccessClientPopup,
        &SettingsRecord::UseFailureClientPopup,
        &SettingsRecord::CreateWebLaunchPage,
        &SettingsRecord::CreateBatchFile,
        &SettingsRecord::IncludeMDAC,
        &SettingsRecord::MDACOption,
        &SettingsRecord::DeleteADOrphans,
        &SettingsRecord::DeleteAllNonNetworked,
    };
    const std::vector<std::string SettingsRecord::*> texts = {
        &SettingsRecord::DomainName,     &SettingsRecord::SMTPServerNameOrIP,
        &SettingsRecord::EmailSubject,   &SettingsRecord::EmailFrom,
        &SettingsRecord::FileOutputPath, &SettingsRecord::FileOutputName,
        &SettingsRecord::SuccessMessage, &SettingsRecord::FailureMessage,
        &SettingsRecord::DeploymentPath, &SettingsRecord::DriverSharePath,
    };
    for (const auto flag : flags) {
        g_Document.*flag = kTrue;
    }
    for (const auto text : texts) {
        g_Document.*text = "x";
    }
    g_Document.DocumentDirty = true;
    ResetDocument();
    for (const auto flag : flags) {
        EXPECT_EQ(g_Document.*flag, 0);
    }
    for (const auto text : texts) {
        EXPECT_EQ(g_Document.*text, "");
    }
    EXPECT_FALSE(g_Document.DocumentDirty);
}

TEST_F(ResetsDocument, DefaultPrinterAndDebugAreInherited) {
    g_Document.DefaultType = 2;
    g_Document.DefaultPrinterName = "X";
    g_Document.DebugOn = kTrue;
    ResetDocument();
    EXPECT_EQ(g_Document.DefaultType, 2);
    EXPECT_EQ(g_Document.DefaultPrinterName, "X");
    EXPECT_EQ(g_Document.DebugOn, kTrue);
}

TEST_F(ResetsDocument, FailureFlagsAndFilePathStay) {
    const std::string path = g_strINIFilePath;
    g_Document.WriteFailed = true;
    g_Document.ReadFailed = true;
    ResetDocument();
    EXPECT_TRUE(g_Document.WriteFailed);
    EXPECT_TRUE(g_Document.ReadFailed);
    EXPECT_EQ(g_strINIFilePath, path);
}

} // namespace
