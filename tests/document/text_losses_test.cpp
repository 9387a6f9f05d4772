// What the settings file cannot carry, one by one: what it stores, and what comes back.
#include "tests/document/document_fixture.h"

#include "document/item_text.h"

#include "tests/support/profile_machine.h"
#include "tests/support/report.h"

#include <memory>

namespace {

using namespace modINIDocument;
using namespace std::string_literals;
using test::Visible;

using Names = std::vector<std::string>;

const std::string kLong(1200, 'x');
const std::string kAddress = "someone@example"; // 15 bytes, 16 with its comma

std::string Joined(const Names& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ", ") + Visible(name);
    }
    return text.empty() ? "no entry" : text;
}

class TextLosses : public test::DocumentTest {
protected:
    static void SaveAndOpen() {
        WriteDocument();
        ReadDocument();
    }
    static void SetUpTestSuite() {
        whole_ = std::make_unique<test::Report>(
            "text-losses-wholes", "What a document loses in the file",
            std::vector<std::string>{"A document with", "stored", "read back"});
    }
    static void TearDownTestSuite() {
        whole_->Write();
        whole_.reset();
    }
    static void Tell(const std::vector<std::string>& row) { whole_->Add(row); }

    /// What stands behind "KEY=", as our file has it.
    static std::string Stored(const std::string& key) {
        const std::string bytes = FileBytes();
        const auto start = bytes.find("\n" + key + "=") + key.size() + 2;
        return bytes.substr(start, bytes.find('\r', start) - start);
    }
    /// The line of that value, as this machine's functions leave it in the end.
    static std::string Line(const std::string& value) {
        return test::AsStored("k=" + value + "\r\n");
    }

private:
    static inline std::unique_ptr<test::Report> whole_;
};

struct TextCase {
    std::string name;
    std::string SettingsRecord::*field;
    std::string key;
    std::string typed;
    std::string stored;
    std::string back;
};

const TextCase kTexts[] = {
    {"an empty field", &SettingsRecord::EmailSubject, "EmailSubject", "", " ", ""},
    {"blanks at the ends", &SettingsRecord::EmailSubject, "EmailSubject", "  a b  ", "  a b  ",
     "a b"},
    {"tabs at the ends", &SettingsRecord::EmailSubject, "EmailSubject", "\ta\tb\t", "\ta\tb\t",
     "a\tb"},
    {"blanks alone", &SettingsRecord::EmailSubject, "EmailSubject", "   ", "   ", ""},
    {"quotes around it", &SettingsRecord::EmailSubject, "EmailSubject", "\"a\"", "\"a\"", "a"},
    {"single quotes around it", &SettingsRecord::EmailSubject, "EmailSubject", "'a'", "'a'", "a"},
    {"two pairs of quotes", &SettingsRecord::EmailSubject, "EmailSubject", "\"\"a\"\"", "\"\"a\"\"",
     "\"a\""},
    {"blanks inside quotes", &SettingsRecord::EmailSubject, "EmailSubject", "\" a \"", "\" a \"",
     "a "},
    {"one quote", &SettingsRecord::EmailSubject, "EmailSubject", "\"a", "\"a", "\"a"},
    {"a character outside the code page", &SettingsRecord::EmailSubject, "EmailSubject", "aж漢",
     "a??", "a??"},
    {"a character of two UTF-16 units", &SettingsRecord::EmailSubject, "EmailSubject", "a🖨",
     "a??", "a??"},
    {"a text over 999 bytes", &SettingsRecord::EmailSubject, "EmailSubject", kLong, kLong,
     kLong.substr(0, 999)},
    {"a line break", &SettingsRecord::EmailSubject, "EmailSubject", "a\r\nb", "a", "a"},
    {"a NUL", &SettingsRecord::EmailSubject, "EmailSubject", "a\0b"s, "a", "a"},
    {"a semicolon in front", &SettingsRecord::EmailSubject, "EmailSubject", ";a", ";a", ";a"},
    {"brackets around it", &SettingsRecord::EmailSubject, "EmailSubject", "[a]", "[a]", "[a]"},
    {"an equals sign", &SettingsRecord::EmailSubject, "EmailSubject", "=a=b", "=a=b", "=a=b"},
    {"a folder that ends in a backslash", &SettingsRecord::DeploymentPath, "DeploymentPath",
     "C:\\a\\", "C:\\a\\", "C:\\a"},
    {"a drive's own folder", &SettingsRecord::DeploymentPath, "DeploymentPath", "C:\\", "C:\\",
     "C:"},
};

struct ListCase {
    std::string name;
    Names typed;
    std::string stored;
    Names back;
};

const ListCase kLists[] = {
    {"a comma in a name", {"a,b", "c"}, "a,b,c", {"a", "b", "c"}},
    {"blanks around a name", {"a ", " b", "c"}, "a , b,c", {"a", "b", "c"}},
    {"a name of blanks alone", {"a", " ", "c"}, "a, ,c", {"a", "Error in To Email Address", "c"}},
    {"a name of blanks alone, the only one", {"  "}, "  ", {}},
    {"quotes at both ends of a list", {"\"a\"", "\"b\""}, "\"a\",\"b\"", {"a\"", "\"b"}},
    {"quotes in the midst of a list", {"a", "\"b\"", "c"}, "a,\"b\",c", {"a", "\"b\"", "c"}},
};

TEST_F(TextLosses, OfSingleTextsAreThese) {
    test::Report report("text-losses-texts", "What a text loses in the file",
                        {"A field with", "typed", "stored", "read back"});
    for (const TextCase& row : kTexts) {
        ResetDocument();
        g_Document.*row.field = row.typed;
        SaveAndOpen();
        EXPECT_EQ(Line(Stored(row.key)), Line(row.stored)) << row.name;
        EXPECT_EQ(g_Document.*row.field, row.back) << row.name;
        report.Add({row.name, Visible(row.typed), Visible(row.stored), Visible(row.back)});
    }
    report.Write();
}

TEST_F(TextLosses, OfListsAreThese) {
    test::Report report("text-losses-lists", "What a list loses in the file",
                        {"A list with", "typed", "stored", "read back"});
    for (const ListCase& row : kLists) {
        ResetDocument();
        g_Document.EmailTo = EmailToFromItems(row.typed);
        SaveAndOpen();
        EXPECT_EQ(Line(Stored("EmailTo")), Line(row.stored)) << row.name;
        EXPECT_EQ(EmailToItems(g_Document.EmailTo), row.back) << row.name;
        report.Add({row.name, Joined(row.typed), Visible(row.stored), Joined(row.back)});
    }
    report.Write();
}

TEST_F(TextLosses, AListOver9999BytesEndsInTheMidstOfAName) {
    ResetDocument();
    g_Document.EmailTo = EmailToFromItems(Names(700, kAddress));
    SaveAndOpen();
    const Names back = EmailToItems(g_Document.EmailTo);
    ASSERT_EQ(back.size(), 625U); // 624 whole ones are 9,984 bytes with their commas
    EXPECT_EQ(back.back(), kAddress) << "fits exactly";
    g_Document.EmailTo = EmailToFromItems(Names(700, kAddress + ".org"));
    SaveAndOpen();
    EXPECT_EQ(EmailToItems(g_Document.EmailTo).size(), 500U);
    g_Document.EmailTo = EmailToFromItems(Names(700, kAddress + ".com."));
    SaveAndOpen();
    EXPECT_EQ(EmailToItems(g_Document.EmailTo).back(), "som");
    EXPECT_TRUE(log_.Messages().empty()) << "nobody is told";
    Tell({"a list over 9,999 bytes", "the whole list",
          "the first 9,999 bytes: the last name may be cut, those behind it are gone"});
}

TEST_F(TextLosses, AToListThatComesToMoreEntriesThanItsFromListRefusesTheFile) {
    ResetDocument();
    g_Document.ServerPairs = NamePairsFromItems({"a -> b", "c -> d,e"});
    WriteDocument();
    EXPECT_THROW(ReadDocument(), DamagedList) << "a comma in a name";
    ResetDocument();
    const std::string from(600, 'f');
    g_Document.ServerPairs = NamePairsFromItems(Names(20, from + " -> t"));
    WriteDocument();
    EXPECT_THROW(ReadDocument(), DamagedList) << "From alone over 9,999 bytes";
    Tell({"a comma in the To side of one of several pairs", "one To name more than From names",
          "refused as damaged"});
    Tell({"pairs whose From names alone come to over 9,999 bytes", "all pairs",
          "refused as damaged"});
}

TEST_F(TextLosses, ACommaInTheOnlyToNameIsLostWithWhatFollows) {
    ResetDocument();
    g_Document.ServerPairs = NamePairsFromItems({"a -> b,c"});
    SaveAndOpen();
    EXPECT_EQ(ServerOrPrinterPairItems(g_Document.ServerPairs), Names{"a -> b"});
    Tell({"a comma in the To side of the only pair", "two To names",
          "the pair with what stands before the comma"});
}

TEST_F(TextLosses, ADriverWithoutAFileOrPortTakesThoseOfTheNext) {
    ResetDocument();
    g_Document.PrinterDrivers = PrinterDriversFromItems(
        {"p1 >> d1 >>  >> LPT1:", "p2 >> d2 >> f2.inf >> LPT2:", "p3 >> d3 >> f3.inf >> "});
    SaveAndOpen();
    EXPECT_EQ(
        PrinterDriverItems(g_Document.PrinterDrivers),
        (Names{"p1 >> d1 >> f2.inf >> LPT1:", "p2 >> d2 >> f3.inf >> LPT2:", "p3 >> d3 >>  >> "}));
}

TEST_F(TextLosses, ASeparatorInANameIsLostBeforeTheFileIsWritten) {
    const NamePair pair{"a -> b", "c"};
    EXPECT_EQ(NamePairFromItem(ItemText(pair)), (NamePair{"a", "b"}));
    const ServerPrinterName name{"a >> b", "c"};
    EXPECT_EQ(ServerPrinterNameFromItem(ItemText(name)), (ServerPrinterName{"a", "b"}));
    Tell({"` -> ` or ` >> ` within a name", "the name cut there",
          "the same: it is the list box that takes it for a separator"});
}

} // namespace
