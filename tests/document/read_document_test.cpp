#include "tests/document/document_fixture.h"

namespace {

using namespace modINIDocument;

class ReadsDocument : public test::DocumentTest {
protected:
    /// Reads a file of one section into the record.
    static void ReadSection(const std::string& lines) {
        FileHolds(lines);
        ReadDocument();
    }
    static std::string TextWhen(const std::string& value) {
        FileHolds("[ACTIVE DIRECTORY]\r\nDomainName=" + value + "\r\n");
        return ReadText("ACTIVE DIRECTORY", "DomainName");
    }
    static Integer IntegerWhen(const std::string& value) {
        FileHolds("[DEPLOYMENT]\r\nMDACOption=" + value + "\r\n");
        return ReadInteger("DEPLOYMENT", "MDACOption");
    }
    static Boolean BooleanWhen(const std::string& value) {
        FileHolds("[GENERAL]\r\nShowProgress=" + value + "\r\n");
        return ReadBoolean("GENERAL", "ShowProgress");
    }
};

TEST_F(ReadsDocument, AFullFileFillsEveryField) {
    FileHolds(test::TestData("document/full.ini"));
    ReadDocument();
    const auto& d = g_Document;
    EXPECT_EQ(d.UseActiveDirectory, kFalse);
    EXPECT_EQ(d.UseManualDefinitions, kTrue);
    EXPECT_EQ(d.AlwaysRun, kTrue);
    EXPECT_EQ(d.ShowProgress, kFalse);
    EXPECT_EQ(d.DomainName, "CORP");
    EXPECT_EQ(d.ServerPairs, (std::vector<NamePair>{{"OLD1", "NEW1"}, {"OLD2", "NEW2"}}));
    EXPECT_EQ(d.PrinterPairs, (std::vector<NamePair>{{"Laser", "Laser 2"}, {}}));
    EXPECT_EQ(d.MixedPairs,
              (std::vector<MixedPair>{{"S1", "P1", "Q1", "T1"}, {"S2", "P2", "Q2", "T2"}}));
    EXPECT_EQ(d.UseSMTP, kTrue);
    EXPECT_EQ(d.SMTPServerNameOrIP, "mail.corp.example");
    EXPECT_EQ(d.ServerPort, "2525");
    EXPECT_EQ(d.EmailSubject, "Drucker umgezogen: für €");
    EXPECT_EQ(d.EmailTo, (std::vector<std::string>{"a@corp.example", "b@corp.example"}));
    EXPECT_EQ(d.EmailFrom, "queueshift@corp.example");
    EXPECT_EQ(d.UseFileOutput, kTrue);
    EXPECT_EQ(d.FileOutputPath, "C:\\Results");
    EXPECT_EQ(d.FileOutputName, "result.txt");
    EXPECT_EQ(d.IncludeComputerName, kTrue);
    EXPECT_EQ(d.IncludeOutcome, kTrue);
    EXPECT_EQ(d.WriteToEventLog, kTrue);
    EXPECT_EQ(d.UseClientPopup, kTrue);
    EXPECT_EQ(d.UseSuccessClientPopup, kTrue);
    EXPECT_EQ(d.SuccessMessage, "Your printers have moved.");
    EXPECT_EQ(d.UseFailureClientPopup, kTrue);
    EXPECT_EQ(d.FailureMessage, "Call 4711; ask for \"Printers\"!");
    EXPECT_EQ(d.DeploymentPath, "\\\\files\\deploy");
    EXPECT_EQ(d.CreateWebLaunchPage, kTrue);
    EXPECT_EQ(d.CreateBatchFile, kTrue);
    EXPECT_EQ(d.IncludeMDAC, kTrue);
    EXPECT_EQ(d.MDACOption, 2);
    EXPECT_EQ(d.PopulateList, (std::vector<ServerPrinterName>{{"S1", "P1"}, {"*", "*"}}));
    EXPECT_EQ(d.PruneList, (std::vector<ServerPrinterName>{{".", "P9"}, {".*", "*"}}));
    EXPECT_EQ(d.DeleteADOrphans, kTrue);
    EXPECT_EQ(d.DeleteAllNonNetworked, kTrue);
    EXPECT_EQ(d.PrinterDrivers,
              (std::vector<PrinterDriver>{{"P1", "HP 4000", "hp4000.inf", "LPT1:"},
                                          {"P2", "HP 5000", "hp5000.inf", "LPT2:"}}));
    EXPECT_EQ(d.DriverSharePath, "\\\\files\\drivers");
    EXPECT_EQ(d.DefaultType, 2);
    EXPECT_EQ(d.DefaultPrinterName, "Laser 2");
    EXPECT_EQ(d.DebugOn, kTrue);
    EXPECT_FALSE(d.ReadFailed);
    EXPECT_TRUE(log_.Messages().empty());
}

TEST_F(ReadsDocument, AFileEditedByHandIsUnderstood) {
    FileHolds(test::TestData("document/edited.ini"));
    ReadDocument();
    EXPECT_EQ(g_Document.UseActiveDirectory, kTrue);
    EXPECT_EQ(g_Document.UseManualDefinitions, kFalse); // the second section does not count
    EXPECT_EQ(g_Document.AlwaysRun, kFalse);
    EXPECT_EQ(g_Document.ShowProgress, kTrue);
    EXPECT_EQ(g_Document.ServerPort, "587");
    EXPECT_EQ(g_Document.EmailTo,
              (std::vector<std::string>{"A", "B", "Error in To Email Address", "C"}));
}

TEST_F(ReadsDocument, ClearsTheDirtyMark) {
    FileHolds(test::TestData("document/new.ini"));
    g_Document.DocumentDirty = true;
    ReadDocument();
    EXPECT_FALSE(g_Document.DocumentDirty);
}

TEST_F(ReadsDocument, ASavedNewDocumentReadsBackAsEmptyTextsAndLists) {
    FileHolds(test::TestData("document/new.ini"));
    ReadDocument();
    EXPECT_EQ(g_Document.DomainName, "");
    EXPECT_EQ(g_Document.ServerPairs, std::vector<NamePair>(1));
    EXPECT_EQ(g_Document.EmailTo, std::vector<std::string>(1));
    EXPECT_FALSE(g_Document.ReadFailed);
    EXPECT_TRUE(log_.Messages().empty());
}

TEST_F(ReadsDocument, MissingListKeysGiveOneEmptyElement) {
    g_Document.ServerPairs = {{"old", "old"}, {"old", "old"}};
    FileHolds("[GENERAL]\r\n");
    ReadServerPairs(g_Document.ServerPairs);
    EXPECT_EQ(g_Document.ServerPairs, std::vector<NamePair>(1));
}

TEST_F(ReadsDocument, OnePieceGivesAnElementAndAPlaceholder) {
    FileHolds("[MANUAL DEFINITIONS SERVERS]\r\nFromServers=S1\r\nToServers=S2\r\n");
    std::vector<NamePair> list;
    ReadServerPairs(list);
    EXPECT_EQ(list, (std::vector<NamePair>{{"S1", "S2"}, {"", ""}}));
}

TEST_F(ReadsDocument, AnEmptyPieceBecomesTheErrorText) {
    FileHolds("[MANUAL DEFINITIONS SERVERS]\r\nFromServers=S1,,S3\r\nToServers=T1,T2,T3\r\n");
    std::vector<NamePair> list;
    ReadServerPairs(list);
    EXPECT_EQ(list, (std::vector<NamePair>{
                        {"S1", "T1"}, {"Error in From Server Name", "T2"}, {"S3", "T3"}}));
}

TEST_F(ReadsDocument, EachListHasItsErrorTexts) {
    FileHolds("[MANUAL DEFINITIONS SERVERS]\r\nFromServers=,x\r\nToServers=,x\r\n"
              "[MANUAL DEFINITIONS PRINTERS]\r\nFromPrinters=,x\r\nToPrinters=,x\r\n"
              "[MANUAL DEFINITIONS MIXED]\r\nFromServers=,x\r\nFromPrinters=,x\r\n"
              "ToServers=,x\r\nToPrinters=,x\r\n"
              "[NOTIFICATION SMTP]\r\nEmailTo=,x\r\n"
              "[POPULATE]\r\nServerNames=,x\r\nPrinterNames=,x\r\n"
              "[PRUNE]\r\nServerNames=,x\r\nPrinterNames=,x\r\n"
              "[PRINTER_DRIVER]\r\nPrinterName=,x\r\nDriverName=,x\r\nDriverFileName=,x\r\n"
              "PortName=,x\r\n");
    ReadDocument();
    const NamePair servers = {"Error in From Server Name", "Error in To Server Name"};
    const NamePair printers = {"Error in From Printer Name", "Error in To Printer Name"};
    const MixedPair mixed = {"Error in From Server Name", "Error in From Printer Name",
                             "Error in To Printer Name", "Error in To Server Name"};
    const ServerPrinterName populate = {"Error in Server Name", "Error in Printer Name"};
    const PrinterDriver driver = {"Error in Printer Name", "Error in Driver Name", "", ""};
    EXPECT_EQ(g_Document.ServerPairs, (std::vector<NamePair>{servers, {"x", "x"}}));
    EXPECT_EQ(g_Document.PrinterPairs, (std::vector<NamePair>{printers, {"x", "x"}}));
    EXPECT_EQ(g_Document.MixedPairs, (std::vector<MixedPair>{mixed, {"x", "x", "x", "x"}}));
    EXPECT_EQ(g_Document.EmailTo, (std::vector<std::string>{"Error in To Email Address", "x"}));
    EXPECT_EQ(g_Document.PopulateList, (std::vector<ServerPrinterName>{populate, {"x", "x"}}));
    EXPECT_EQ(g_Document.PruneList, (std::vector<ServerPrinterName>{{"", ""}, {"x", "x"}}));
    EXPECT_EQ(g_Document.PrinterDrivers,
              (std::vector<PrinterDriver>{driver, {"x", "x", "x", "x"}}));
}

TEST_F(ReadsDocument, ALaterKeyWithFewerPiecesLeavesFieldsEmpty) {
    FileHolds("[POPULATE]\r\nServerNames=A,B,C\r\nPrinterNames=P\r\n");
    std::vector<ServerPrinterName> list;
    ReadPopulateList(list);
    EXPECT_EQ(list, (std::vector<ServerPrinterName>{{"A", "P"}, {"B", ""}, {"C", ""}}));
}

TEST_F(ReadsDocument, ALaterKeyWithMorePiecesThanTheListThrows) {
    const std::string section = "[MANUAL DEFINITIONS SERVERS]\r\n";
    std::vector<NamePair> list;
    FileHolds(section + "FromServers=A,B\r\nToServers=1,2,3\r\n");
    EXPECT_THROW(ReadServerPairs(list), DamagedList);
    EXPECT_EQ(list, (std::vector<NamePair>{{"A", "1"}, {"B", "2"}}));
    FileHolds(section + "FromServers=\r\nToServers=1,2\r\n");
    EXPECT_THROW(ReadServerPairs(list), std::out_of_range);
}

TEST_F(ReadsDocument, ThePlaceholderOfASinglePieceHasRoomForASecond) {
    FileHolds("[MANUAL DEFINITIONS SERVERS]\r\nFromServers=A\r\nToServers=1,2\r\n");
    std::vector<NamePair> list;
    ReadServerPairs(list);
    EXPECT_EQ(list, (std::vector<NamePair>{{"A", "1"}, {"", "2"}}));
    FileHolds("[MANUAL DEFINITIONS SERVERS]\r\nFromServers=A\r\nToServers=1,2,3\r\n");
    EXPECT_THROW(ReadServerPairs(list), DamagedList);
}

TEST_F(ReadsDocument, ADamagedListEndsTheReadWithoutABox) {
    FileHolds("[MANUAL DEFINITIONS MIXED]\r\nFromServers=A\r\nToPrinters=1,2,3\r\n"
              "[SUPPORT]\r\nDebugOn=True\r\n");
    EXPECT_THROW(ReadDocument(), DamagedList);
    EXPECT_TRUE(log_.Messages().empty());
    EXPECT_EQ(g_Document.DebugOn, kFalse);
}

TEST_F(ReadsDocument, EveryListRoutineReadsItsOwnSection) {
    FileHolds(test::TestData("document/full.ini"));
    std::vector<NamePair> pairs;
    std::vector<MixedPair> mixed;
    std::vector<std::string> addresses;
    std::vector<ServerPrinterName> names;
    std::vector<PrinterDriver> drivers;
    ReadServerPairs(pairs);
    EXPECT_EQ(pairs.at(1), (NamePair{"OLD2", "NEW2"}));
    ReadPrinterPairs(pairs);
    EXPECT_EQ(pairs.at(0), (NamePair{"Laser", "Laser 2"}));
    ReadMixedPairs(mixed);
    EXPECT_EQ(mixed.at(1), (MixedPair{"S2", "P2", "Q2", "T2"}));
    ReadEmailTo(addresses);
    EXPECT_EQ(addresses.at(1), "b@corp.example");
    ReadPopulateList(names);
    EXPECT_EQ(names.at(0), (ServerPrinterName{"S1", "P1"}));
    ReadPruneList(names);
    EXPECT_EQ(names.at(0), (ServerPrinterName{".", "P9"}));
    ReadPrinterDrivers(drivers);
    EXPECT_EQ(drivers.at(1), (PrinterDriver{"P2", "HP 5000", "hp5000.inf", "LPT2:"}));
    EXPECT_TRUE(g_Document.ServerPairs.empty()) << "a routine writes only the list it is given";
}

TEST_F(ReadsDocument, OneTrailingBackslashIsTakenFromFolders) {
    ReadSection("[NOTIFICATION FILE OUTPUT]\r\nFileOutputPath=C:\\Out\\\\\r\n"
                "[DEPLOYMENT]\r\nDeploymentPath=\\\\s\\d\\\r\n"
                "[PRINTER_DRIVER]\r\nDriverSharePath=\\\\s\\drv\\\r\n");
    EXPECT_EQ(g_Document.FileOutputPath, "C:\\Out\\");
    EXPECT_EQ(g_Document.DeploymentPath, "\\\\s\\d");
    EXPECT_EQ(g_Document.DriverSharePath, "\\\\s\\drv\\") << "no other text loses it";
}

TEST_F(ReadsDocument, ATextIsCutAt999Characters) {
    EXPECT_EQ(TextWhen(std::string(1200, 'x')), std::string(999, 'x'));
    EXPECT_EQ(TextWhen(std::string(999, 'x')), std::string(999, 'x'));
}

TEST_F(ReadsDocument, ABooleanIsCutAt99Characters) {
    EXPECT_EQ(BooleanWhen(std::string(95, 'x') + "True"), kTrue);
    EXPECT_FALSE(g_Document.ReadFailed);
    EXPECT_EQ(BooleanWhen(std::string(96, 'x') + "True"), kFalse);
    EXPECT_TRUE(g_Document.ReadFailed);
}

TEST_F(ReadsDocument, AnIntegerIsCutAt99Characters) {
    EXPECT_EQ(IntegerWhen(std::string(98, '0') + "7"), 7);
    EXPECT_EQ(IntegerWhen(std::string(99, '0') + "7"), 0);
}

TEST_F(ReadsDocument, AListIsCutAt9999Characters) {
    FileHolds("[NOTIFICATION SMTP]\r\nEmailTo=" + std::string(9997, 'x') + ",abc\r\n");
    std::vector<std::string> list;
    ReadEmailTo(list);
    EXPECT_EQ(list, (std::vector<std::string>{std::string(9997, 'x'), "a"}));
}

TEST_F(ReadsDocument, BlanksInsideQuotesStayAtTheEndAndGoAtTheStart) {
    EXPECT_EQ(TextWhen("\"  v  \""), "v  ");
    EXPECT_EQ(TextWhen("\"   \""), "");
}

TEST_F(ReadsDocument, BooleansAreFoundAnywhereInTheValue) {
    EXPECT_EQ(BooleanWhen("TRUE"), kTrue);
    EXPECT_EQ(BooleanWhen("yes-True"), kTrue);
    EXPECT_EQ(BooleanWhen("untrue"), kTrue);
    EXPECT_EQ(BooleanWhen("FALSE"), kFalse);
    EXPECT_FALSE(g_Document.ReadFailed);
}

TEST_F(ReadsDocument, AValueThatIsNoBooleanIsAFailedRead) {
    EXPECT_EQ(BooleanWhen("0"), kFalse);
    EXPECT_TRUE(g_Document.ReadFailed);
}

TEST_F(ReadsDocument, AMissingBooleanIsAFailedRead) {
    FileHolds("[GENERAL]\r\n");
    EXPECT_EQ(ReadBoolean("GENERAL", "ShowProgress"), kFalse);
    EXPECT_TRUE(g_Document.ReadFailed);
}

TEST_F(ReadsDocument, AMissingTextIntegerOrListIsNoFailedRead) {
    FileHolds("[GENERAL]\r\n");
    std::vector<std::string> list;
    EXPECT_EQ(ReadText("GENERAL", "None"), "");
    EXPECT_EQ(ReadInteger("GENERAL", "None"), 0);
    ReadEmailTo(list);
    EXPECT_FALSE(g_Document.ReadFailed);
}

TEST_F(ReadsDocument, IntegersRoundHalfToEven) {
    EXPECT_EQ(IntegerWhen("2.5"), 2);
    EXPECT_EQ(IntegerWhen("3.5"), 4);
    EXPECT_EQ(IntegerWhen("-1"), -1);
    EXPECT_EQ(IntegerWhen("12 pages"), 12);
    EXPECT_EQ(IntegerWhen("none"), 0);
    EXPECT_FALSE(g_Document.ReadFailed);
}

TEST_F(ReadsDocument, AnIntegerBeyond16BitsIsZeroAndAFailedRead) {
    EXPECT_EQ(IntegerWhen("32768"), 0);
    EXPECT_TRUE(g_Document.ReadFailed);
}

TEST_F(ReadsDocument, AMissingFileIsReportedByOneBox) {
    ReadDocument();
    EXPECT_TRUE(g_Document.ReadFailed);
    ASSERT_EQ(log_.Messages().size(), 1u);
    const auto& box = log_.Messages().front();
    EXPECT_EQ(box.caption, "Write Error");
    EXPECT_EQ(box.text, "Unable to read INI file. Please check your permissions to the folder and "
                        "file you are attempting to read.");
    EXPECT_EQ(box.buttons, platform::Buttons::Ok);
    EXPECT_EQ(box.icon, platform::Icon::Critical);
}

TEST_F(ReadsDocument, AfterOneFailureEveryLaterReadReportsIt) {
    ReadDocument();
    FileHolds(test::TestData("document/full.ini"));
    ReadDocument();
    EXPECT_EQ(log_.Messages().size(), 2u);
    EXPECT_EQ(g_Document.DomainName, "CORP");
}

TEST_F(ReadsDocument, AFailedReadGoesOnWithTheNextKey) {
    ReadSection("[GENERAL]\r\nUseActiveDirectory=maybe\r\n[SET_DEFAULT]\r\nDefaultType=1\r\n");
    EXPECT_EQ(g_Document.DefaultType, 1);
    EXPECT_EQ(log_.Messages().size(), 1u);
}

} // namespace
