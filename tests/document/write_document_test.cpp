#include "tests/document/document_fixture.h"

#include "tests/support/profile_machine.h"

namespace {

using namespace modINIDocument;
using test::AsStored;

class WritesDocument : public test::DocumentTest {
protected:
    /// The line of this key in the document's file.
    static std::string Line(const std::string& key) {
        const std::string bytes = "\n" + FileBytes();
        const auto start = bytes.find("\n" + key + "=");
        if (start == std::string::npos) {
            return {};
        }
        return bytes.substr(start + 1, bytes.find('\r', start) - start - 1);
    }
    static void FillRecord() {
        FileHolds(test::TestData("document/full.ini"));
        ReadDocument();
    }
};

TEST_F(WritesDocument, ANewDocumentSavedAtOnceHasExactlyTheseBytes) {
    ResetDocument();
    WriteDocument();
    EXPECT_EQ(FileBytes(), AsStored(test::TestData("document/new.ini")));
    EXPECT_TRUE(log_.Messages().empty());
}

TEST_F(WritesDocument, AFullDocumentHasExactlyTheseBytes) {
    FillRecord();
    g_strINIFilePath = folder_.File("Copy.ini");
    WriteDocument();
    EXPECT_EQ(FileBytes(), test::TestData("document/full.ini"));
    EXPECT_TRUE(log_.Messages().empty());
}

TEST_F(WritesDocument, EmptyTextsBecomeABlankInTheRecord) {
    ResetDocument();
    WriteDocument();
    EXPECT_EQ(g_Document.SMTPServerNameOrIP, " ");
    EXPECT_EQ(g_Document.FileOutputPath, " ");
    EXPECT_EQ(g_Document.DefaultPrinterName, " ");
    EXPECT_EQ(g_Document.ServerPort, "25");
    EXPECT_EQ(g_Document.ServerPairs, std::vector<NamePair>(1)) << "lists stay as they are";
}

TEST_F(WritesDocument, ElementsWithoutAFieldAreLeftOutOfItsKey) {
    WriteServerPairs({{"A", "B"}, {"", ""}, {"C", "D"}});
    EXPECT_EQ(Line("FromServers"), "FromServers=A,C");
    EXPECT_EQ(Line("ToServers"), "ToServers=B,D");
    WriteServerPairs({{"A", ""}, {"C", "D"}});
    EXPECT_EQ(Line("FromServers"), "FromServers=A,C");
    EXPECT_EQ(Line("ToServers"), "ToServers=D");
}

TEST_F(WritesDocument, AListThatShrinksGetsAShorterValue) {
    WriteEmailTo({"x", "y", "z"});
    WriteEmailTo({"x", ""});
    EXPECT_EQ(FileBytes(), "[NOTIFICATION SMTP]\r\nEmailTo=x\r\n");
}

TEST_F(WritesDocument, AListWithoutElementsIsABlank) {
    WriteEmailTo({});
    EXPECT_EQ(FileBytes(), AsStored("[NOTIFICATION SMTP]\r\nEmailTo= \r\n"));
}

TEST_F(WritesDocument, ElementsAreNeitherTrimmedNorQuoted) {
    WriteEmailTo({"a ", " b", "\"c\""});
    EXPECT_EQ(FileBytes(), "[NOTIFICATION SMTP]\r\nEmailTo=a , b,\"c\"\r\n");
}

TEST_F(WritesDocument, EveryListRoutineWritesItsOwnKeys) {
    WritePrinterPairs({{"a", "b"}});
    WriteMixedPairs({{"s", "p", "q", "t"}});
    WritePopulateList({{"s", "p"}});
    WritePruneList({{".", "*"}});
    WritePrinterDrivers({{"p", "d", "f", "o"}});
    EXPECT_EQ(FileBytes(), "[MANUAL DEFINITIONS PRINTERS]\r\nFromPrinters=a\r\nToPrinters=b\r\n"
                           "[MANUAL DEFINITIONS MIXED]\r\nFromServers=s\r\nFromPrinters=p\r\n"
                           "ToServers=t\r\nToPrinters=q\r\n"
                           "[POPULATE]\r\nServerNames=s\r\nPrinterNames=p\r\n"
                           "[PRUNE]\r\nServerNames=.\r\nPrinterNames=*\r\n"
                           "[PRINTER_DRIVER]\r\nPrinterName=p\r\nDriverName=d\r\n"
                           "DriverFileName=f\r\nPortName=o\r\n");
}

TEST_F(WritesDocument, AFlagThatIsNotAllBitsIsFalse) {
    Boolean one = 1;
    Boolean all = kTrue;
    WriteBoolean("GENERAL", "AlwaysRun", one);
    WriteBoolean("GENERAL", "ShowProgress", all);
    EXPECT_EQ(FileBytes(), "[GENERAL]\r\nAlwaysRun=False\r\nShowProgress=True\r\n");
}

TEST_F(WritesDocument, IntegersAreDecimalDigits) {
    Integer option = 3;
    Integer type = -1;
    WriteInteger("DEPLOYMENT", "MDACOption", option);
    WriteInteger("SET_DEFAULT", "DefaultType", type);
    EXPECT_EQ(FileBytes(), "[DEPLOYMENT]\r\nMDACOption=3\r\n[SET_DEFAULT]\r\nDefaultType=-1\r\n");
}

TEST_F(WritesDocument, TextWritesTheFieldAndTurnsNothingIntoABlank) {
    std::string text = "Ä,b";
    std::string nothing;
    WriteText("ACTIVE DIRECTORY", "DomainName", text);
    WriteText("SUPPORT", "None", nothing);
    EXPECT_EQ(FileBytes(), AsStored("[ACTIVE DIRECTORY]\r\nDomainName=\xC4,b\r\n"
                                    "[SUPPORT]\r\nNone= \r\n"));
    EXPECT_EQ(text, "Ä,b");
    EXPECT_EQ(nothing, " ");
}

TEST_F(WritesDocument, WhatTheProgramDoesNotKnowStays) {
    FileHolds(test::TestData("document/edited.ini"));
    ReadDocument();
    WriteDocument();
    const std::string head = AsStored(test::TestData("document/edited-saved-head.ini"));
    EXPECT_EQ(FileBytes().substr(0, head.size()), head);
    EXPECT_EQ(Line("DomainName").substr(0, 11), "DomainName=");
}

TEST_F(WritesDocument, ClearsTheDirtyMarkAndTheFlagOfTheLastSave) {
    ResetDocument();
    g_Document.DocumentDirty = true;
    g_Document.WriteFailed = true;
    WriteDocument();
    EXPECT_FALSE(g_Document.DocumentDirty);
    EXPECT_FALSE(g_Document.WriteFailed);
}

TEST_F(WritesDocument, TheChangedFlagOfTheEditorIsNotTouched) {
    g_bolDocumentChanged = true;
    ResetDocument();
    WriteDocument();
    EXPECT_TRUE(g_bolDocumentChanged);
    g_bolDocumentChanged = false;
}

TEST_F(WritesDocument, AProtectedFileIsReportedByOneBoxAndStaysWhole) {
    FileHolds("[GENERAL]\r\nAlwaysRun=True\r\n");
    test::Protect(g_strINIFilePath);
    ResetDocument();
    g_Document.DocumentDirty = true;
    WriteDocument();
    EXPECT_TRUE(g_Document.WriteFailed);
    EXPECT_FALSE(g_Document.DocumentDirty);
    EXPECT_EQ(FileBytes(), "[GENERAL]\r\nAlwaysRun=True\r\n");
    ASSERT_EQ(log_.Messages().size(), 1u);
    const auto& box = log_.Messages().front();
    EXPECT_EQ(box.caption, "Write Error");
    EXPECT_EQ(box.text, "Unable to save INI file. Please check your permissions to the folder and "
                        "file you are attempting to save.");
    EXPECT_EQ(box.buttons, platform::Buttons::Ok);
    EXPECT_EQ(box.icon, platform::Icon::Critical);
}

TEST_F(WritesDocument, AFailedSaveTurnsEmptyTextsToBlanksAllTheSame) {
    g_strINIFilePath = folder_.File("missing/Sites.ini");
    ResetDocument();
    WriteDocument();
    EXPECT_TRUE(g_Document.WriteFailed);
    EXPECT_EQ(g_Document.EmailFrom, " ");
}

TEST_F(WritesDocument, ADocumentWithoutAPathCannotBeSaved) {
    g_strINIFilePath.clear();
    ResetDocument();
    WriteDocument();
    EXPECT_TRUE(g_Document.WriteFailed);
    EXPECT_EQ(log_.Messages().size(), 1u);
}

TEST_F(WritesDocument, TenThousandElementsAreStored) {
    ResetDocument();
    std::string expected;
    g_Document.ServerPairs.clear();
    for (int i = 0; i < 10000; ++i) {
        const std::string name = "SERVER" + std::to_string(i);
        g_Document.ServerPairs.push_back({name, name});
        expected += (i == 0 ? "" : ",") + name;
    }
    WriteDocument();
    EXPECT_EQ(Line("FromServers"), "FromServers=" + expected);
    EXPECT_EQ(Line("ToServers"), "ToServers=" + expected);
}

} // namespace
