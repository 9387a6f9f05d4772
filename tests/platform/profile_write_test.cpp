#include "platform/profile.h"

#include "platform/program.h"

#include "tests/support/files.h"
#include "tests/support/profile_machine.h"

#include <gtest/gtest.h>

namespace {

using platform::profile::Reader;
using platform::profile::Update;
using test::AsStored;
using test::ReadBytes;

class ProfileWrite : public testing::Test {
protected:
    const std::string& FileWith(std::string_view bytes) {
        test::WriteBytes(path_, bytes);
        return path_;
    }
    void Set(std::string_view section, std::string_view key, std::string_view value) {
        Update update(path_);
        EXPECT_EQ(update.Write(section, key, value), 0);
        EXPECT_EQ(update.Commit(), 0);
    }
    /// What a file of these bytes becomes by one write.
    std::string After(std::string_view bytes, std::string_view section, std::string_view key,
                      std::string_view value) {
        FileWith(bytes);
        Set(section, key, value);
        return ReadBytes(path_);
    }
    std::string Value(std::string_view section, std::string_view key) {
        return Reader(path_).Read(section, key, 1000).value;
    }

    test::TemporaryFolder folder_;
    const std::string path_ = folder_.File("write.ini");
};

TEST_F(ProfileWrite, CreatesFileSectionAndKey) {
    Set("GENERAL", "AlwaysRun", "True");
    EXPECT_EQ(ReadBytes(path_), "[GENERAL]\r\nAlwaysRun=True\r\n");
}

TEST_F(ProfileWrite, AddsKeysAndSectionsInTheOrderOfWriting) {
    Update update(path_);
    EXPECT_EQ(update.Write("one", "a", "1"), 0);
    EXPECT_EQ(update.Write("two", "b", "2"), 0);
    EXPECT_EQ(update.Write("one", "c", "3"), 0);
    EXPECT_EQ(update.Commit(), 0);
    EXPECT_EQ(ReadBytes(path_), "[one]\r\na=1\r\nc=3\r\n[two]\r\nb=2\r\n");
}

TEST_F(ProfileWrite, ReplacesTheValueAndNothingElse) {
    EXPECT_EQ(After("; top\r\n\r\n[a]\r\n j = 1 \r\nk=2\r\n\r\n[b]\r\nk=3\r\n", "a", "k", "new"),
              AsStored("; top\r\n\r\n[a]\r\n j = 1 \r\nk=new\r\n\r\n[b]\r\nk=3\r\n"));
}

TEST_F(ProfileWrite, KeepsTheSpellingOfSectionAndKey) {
    EXPECT_EQ(After("[General]\r\nshowprogress=False\r\n", "GENERAL", "ShowProgress", "True"),
              "[General]\r\nshowprogress=True\r\n");
}

TEST_F(ProfileWrite, ReplacesTheFirstOfTwoKeys) {
    EXPECT_EQ(After("[a]\r\nk=1\r\nk=2\r\n", "a", "k", "9"), "[a]\r\nk=9\r\nk=2\r\n");
}

TEST_F(ProfileWrite, WritesIntoTheFirstOfTwoSections) {
    EXPECT_EQ(After("[a]\r\n[b]\r\n[a]\r\nk=2\r\n", "a", "k", "9"),
              "[a]\r\nk=9\r\n[b]\r\n[a]\r\nk=2\r\n");
}

TEST_F(ProfileWrite, AddsANewKeyBehindTheLastLineOfItsSection) {
    EXPECT_EQ(After("[a]\r\nk=1\r\n; end\r\n[b]\r\nk=2\r\n", "a", "n", "9"),
              "[a]\r\nk=1\r\n; end\r\nn=9\r\n[b]\r\nk=2\r\n");
}

TEST_F(ProfileWrite, BlankLinesStayBetweenTheNewKeyAndTheNextSection) {
    EXPECT_EQ(After("[a]\r\nk=1\r\n\r\n  \r\n[b]\r\n", "a", "n", "9"),
              AsStored("[a]\r\nk=1\r\nn=9\r\n\r\n  \r\n[b]\r\n"));
}

TEST_F(ProfileWrite, AddsANewSectionAtTheEnd) {
    EXPECT_EQ(After("[a]\r\nk=1\r\n", "b", "k", "2"), "[a]\r\nk=1\r\n[b]\r\nk=2\r\n");
}

TEST_F(ProfileWrite, ANewSectionStartsOnALineOfItsOwn) {
    EXPECT_EQ(After("[a]\r\nk=1", "b", "k", "2"), "[a]\r\nk=1\r\n[b]\r\nk=2\r\n");
}

TEST_F(ProfileWrite, ANewKeyStartsOnALineOfItsOwn) {
    EXPECT_EQ(After("[a]\r\nk=1", "a", "n", "2"), "[a]\r\nk=1\r\nn=2\r\n");
    EXPECT_EQ(After("[a]", "a", "n", "2"), "[a]\r\nn=2\r\n");
}

TEST_F(ProfileWrite, OtherLineEndsStayAndNewLinesGetCrLf) {
    EXPECT_EQ(After("[a]\nk=1\n[b]\nj=1\n", "a", "n", "2"),
              AsStored("[a]\nk=1\nn=2\r\n[b]\nj=1\n"));
    EXPECT_EQ(After("[a]\rk=1\r", "a", "n", "2"), AsStored("[a]\rk=1\rn=2\r\n"));
    EXPECT_EQ(After("[a]\nk=1\n", "a", "k", "2"), AsStored("[a]\nk=2\n"));
}

TEST_F(ProfileWrite, AKeyWithoutEqualsGetsAValue) {
    EXPECT_EQ(After("[a]\r\nk\r\nj=1\r\n", "a", "k", "2"), "[a]\r\nk=2\r\nj=1\r\n");
}

TEST_F(ProfileWrite, TheEmptySectionNameMeansTheLinesBeforeAnySection) {
    EXPECT_EQ(After("k=1\r\n[a]\r\nk=2\r\n", "", "k", "9"), "k=9\r\n[a]\r\nk=2\r\n");
    EXPECT_EQ(After("[a]\r\nk=2\r\n", "", "n", "9"), "n=9\r\n[a]\r\nk=2\r\n");
}

TEST_F(ProfileWrite, ABlankIsStoredAsAValueThatReadsAsEmpty) {
    // Wine drops the blank of a value; Windows and ours keep it.
    const std::string expected = test::IsWine() ? "[a]\r\nk=\r\n" : "[a]\r\nk= \r\n";
    EXPECT_EQ(After("[a]\r\nk=1\r\n", "a", "k", " "), expected);
    EXPECT_EQ(Value("a", "k"), "");
}

TEST_F(ProfileWrite, QuotesAreStoredAsTheyAre) {
    EXPECT_EQ(After("[a]\r\n", "a", "k", "\"v\""), "[a]\r\nk=\"v\"\r\n");
    EXPECT_EQ(Value("a", "k"), "v");
}

TEST_F(ProfileWrite, TextsAreStoredInTheCodePage) {
    EXPECT_EQ(After("[a]\r\n", "a", "k", "ä€ж"), "[a]\r\nk=\xE4\x80?\r\n");
}

TEST_F(ProfileWrite, AMarkedFileKeepsItsEncoding) {
    using namespace std::string_literals;
    EXPECT_EQ(After("\xEF\xBB\xBF[a]\r\nk=\xC3\xA4\r\n", "a", "j", "ä"),
              "\xEF\xBB\xBF[a]\r\nk=\xC3\xA4\r\nj=\xC3\xA4\r\n");
    EXPECT_EQ(After("\xFF\xFE[\0a\0]\0\r\0\n\0"s, "a", "j", "ä€"),
              "\xFF\xFE[\0a\0]\0\r\0\n\0j\0=\0\xE4\0\xAC\x20\r\0\n\0"s);
    EXPECT_EQ(After("\xFE\xFF\0[\0a\0]\0\r\0\n"s, "a", "j", "ä"),
              "\xFE\xFF\0[\0a\0]\0\r\0\n\0j\0=\0\xE4\0\r\0\n"s);
}

TEST_F(ProfileWrite, NamesAndValuesOfAMarkedFileHoldWhatTheCodePageHas) {
    using namespace std::string_literals;
    EXPECT_EQ(After("\xEF\xBB\xBF", "жa", "kж", "vж"), "\xEF\xBB\xBF[?a]\r\nk?=v?\r\n");
    EXPECT_EQ(After("\xFF\xFE", "ж", "k", "ä"), "\xFF\xFE[\0?\0]\0\r\0\n\0k\0=\0\xE4\0\r\0\n\0"s);
    EXPECT_EQ(Value("ж", "k"), "ä");
}

TEST_F(ProfileWrite, AMarkAloneIsAnEmptyFile) {
    EXPECT_EQ(After("\xEF\xBB\xBF", "a", "k", "1"), "\xEF\xBB\xBF[a]\r\nk=1\r\n");
}

TEST_F(ProfileWrite, ANulEndsAValue) {
    using namespace std::string_view_literals;
    EXPECT_EQ(After("", "a", "k", "v\0w"sv), "[a]\r\nk=v\r\n");
}

TEST_F(ProfileWrite, ASectionBroughtByALineBreakInAValueIsFound) {
    FileWith("");
    Update update(path_);
    EXPECT_EQ(update.Write("a", "k", "1\r\n[b]"), 0);
    EXPECT_EQ(update.Write("b", "j", "2"), 0);
    EXPECT_EQ(update.Commit(), 0);
    EXPECT_EQ(Value("b", "j"), "2");
    EXPECT_EQ(Value("a", "k"), "1");
}

TEST_F(ProfileWrite, NothingChangesBeforeTheCommit) {
    FileWith("[a]\r\nk=1\r\n");
    Update update(path_);
    EXPECT_EQ(update.Write("a", "k", "2"), 0);
    EXPECT_EQ(ReadBytes(path_), "[a]\r\nk=1\r\n");
    EXPECT_EQ(update.Commit(), 0);
    EXPECT_EQ(ReadBytes(path_), "[a]\r\nk=2\r\n");
}

TEST_F(ProfileWrite, AnUpdateWithoutCommitLeavesNoTrace) {
    FileWith("[a]\r\nk=1\r\n");
    {
        Update update(path_);
        EXPECT_EQ(update.Write("a", "k", "2"), 0);
    }
    EXPECT_EQ(ReadBytes(path_), "[a]\r\nk=1\r\n");
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(ProfileWrite, ACommitLeavesNoFileBeside) {
    FileWith("[a]\r\nk=1\r\n");
    Set("a", "k", "2");
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(ProfileWrite, NothingWrittenMeansNothingToDo) {
    Update update(path_);
    EXPECT_EQ(update.Commit(), 0);
    EXPECT_FALSE(platform::PathExists(path_));
}

TEST_F(ProfileWrite, WritesAfterACommitGoOn) {
    Update update(path_);
    EXPECT_EQ(update.Write("a", "k", "1"), 0);
    EXPECT_EQ(update.Commit(), 0);
    EXPECT_EQ(update.Write("a", "j", "2"), 0);
    EXPECT_EQ(update.Commit(), 0);
    EXPECT_EQ(ReadBytes(path_), "[a]\r\nk=1\r\nj=2\r\n");
}

TEST_F(ProfileWrite, AProtectedFileFailsEveryWriteAndStaysWhole) {
    FileWith("[a]\r\nk=1\r\n");
    test::Protect(path_);
    Update update(path_);
    EXPECT_NE(update.Write("a", "k", "2"), 0);
    EXPECT_NE(update.Write("b", "k", "2"), 0);
    EXPECT_EQ(update.Commit(), 0); // nothing was written
    EXPECT_EQ(ReadBytes(path_), "[a]\r\nk=1\r\n");
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(ProfileWrite, AFileThatBecomesProtectedBeforeTheCommitStaysWhole) {
    FileWith("[a]\r\nk=1\r\n");
    Update update(path_);
    EXPECT_EQ(update.Write("a", "k", "2"), 0);
    test::Protect(path_);
    EXPECT_NE(update.Commit(), 0);
    EXPECT_EQ(ReadBytes(path_), "[a]\r\nk=1\r\n");
}

TEST_F(ProfileWrite, AMissingFolderFails) {
    Update update(folder_.File("missing/write.ini"));
    EXPECT_NE(update.Write("a", "k", "1"), 0);
    EXPECT_EQ(folder_.EntryCount(), 0);
}

TEST_F(ProfileWrite, AFolderInThePlaceOfTheFileFails) {
    Update update(folder_.Subfolder("write.ini"));
    EXPECT_NE(update.Write("a", "k", "1"), 0);
}

TEST_F(ProfileWrite, APathOutsideTheCodePageIsWritten) {
    const std::string file = folder_.Subfolder("資料ж") + "/設定.ini";
    test::WriteBytes(file, "[a]\r\nk=1\r\n");
    Update update(file);
    EXPECT_EQ(update.Write("a", "k", "2"), 0);
    EXPECT_EQ(update.Commit(), 0);
    EXPECT_EQ(ReadBytes(file), "[a]\r\nk=2\r\n");
}

TEST_F(ProfileWrite, AValueMayBeLongerThanAnyReaderTakes) {
    const std::string value(100000, 'x');
    EXPECT_EQ(After("[a]\r\nk=1\r\nj=2\r\n", "a", "k", value), "[a]\r\nk=" + value + "\r\nj=2\r\n");
}

TEST_F(ProfileWrite, AMillionLinesAreNoTrouble) {
    std::string bytes = "[a]\r\n";
    for (int i = 0; i < 1000000; ++i) {
        bytes += "k\r\n";
    }
    FileWith(bytes);
    Set("b", "k", "1");
    EXPECT_EQ(Value("b", "k"), "1");
}

} // namespace
