#include "platform/profile.h"

#include "tests/support/files.h"

#include <gtest/gtest.h>

namespace {

using platform::profile::Reader;

class ProfileRead : public testing::Test {
protected:
    /// The value of a key in a file with these bytes.
    std::string Read(std::string_view bytes, std::string_view section, std::string_view key,
                     std::size_t size = 1000) {
        const std::string path = folder_.File("read.ini");
        test::WriteBytes(path, bytes);
        const auto result = Reader(path).Read(section, key, size);
        EXPECT_EQ(result.error, 0) << "[" << section << "] " << key;
        return result.value;
    }

    test::TemporaryFolder folder_;
};

TEST_F(ProfileRead, FindsTheValueOfAKeyInItsSection) {
    EXPECT_EQ(Read("[one]\r\nkey=1\r\n[two]\r\nkey=2\r\n", "two", "key"), "2");
}

TEST_F(ProfileRead, SectionAndKeyMatchWithoutRegardToCase) {
    EXPECT_EQ(Read("[GENERAL]\r\nShowProgress=True\r\n", "general", "SHOWPROGRESS"), "True");
}

TEST_F(ProfileRead, TheFirstOfTwoKeysWins) {
    EXPECT_EQ(Read("[a]\r\nk=1\r\nK=2\r\n", "a", "k"), "1");
}

TEST_F(ProfileRead, TheFirstOfTwoSectionsWinsEvenWithoutTheKey) {
    const std::string_view bytes = "[a]\r\nk=1\r\n[b]\r\n[A]\r\nk=2\r\nj=3\r\n";
    EXPECT_EQ(Read(bytes, "a", "k"), "1");
    EXPECT_EQ(Read(bytes, "a", "j"), "");
}

TEST_F(ProfileRead, BlanksAndTabsAroundKeysAndValuesAreDropped) {
    EXPECT_EQ(Read("[a]\r\n \tk\t = \tv w\t \r\n", "a", "k"), "v w");
}

TEST_F(ProfileRead, BlanksAroundASectionNameAreDropped) {
    EXPECT_EQ(Read(" [ a ] \r\nk=1\r\n", "a", "k"), "1");
}

TEST_F(ProfileRead, SpacingControlsAreDroppedLikeBlanks) {
    EXPECT_EQ(Read("[a]\r\nk=\v\f1\x1a\r\nj=2\r\n", "a", "k"), "1");
    EXPECT_EQ(Read("[a]\r\nk=1\r\n\x1a\r\nj=2\r\n", "a", "j"), "2");
}

TEST_F(ProfileRead, ANoBreakSpaceIsPartOfTheValue) {
    EXPECT_EQ(Read("[a]\r\nk=\xA0v\xA0\r\n", "a", "k"), "\u00A0v\u00A0");
}

TEST_F(ProfileRead, OnePairOfQuotesIsStripped) {
    EXPECT_EQ(Read("[a]\r\nk=\"v\"\r\n", "a", "k"), "v");
    EXPECT_EQ(Read("[a]\r\nk='v'\r\n", "a", "k"), "v");
    EXPECT_EQ(Read("[a]\r\nk=\"\"v\"\"\r\n", "a", "k"), "\"v\"");
    EXPECT_EQ(Read("[a]\r\nk='\"v\"'\r\n", "a", "k"), "\"v\"");
    EXPECT_EQ(Read("[a]\r\nk=\"\"\r\n", "a", "k"), "");
}

TEST_F(ProfileRead, QuotesKeepTheBlanksInsideThem) {
    EXPECT_EQ(Read("[a]\r\nk= \" v \" \r\n", "a", "k"), " v ");
}

TEST_F(ProfileRead, QuotesThatAreNoPairStay) {
    EXPECT_EQ(Read("[a]\r\nk=\"v\r\n", "a", "k"), "\"v");
    EXPECT_EQ(Read("[a]\r\nk=v\"\r\n", "a", "k"), "v\"");
    EXPECT_EQ(Read("[a]\r\nk=\"\r\n", "a", "k"), "\"");
    EXPECT_EQ(Read("[a]\r\nk=\"v'\r\n", "a", "k"), "\"v'");
    EXPECT_EQ(Read("[a]\r\nk=\"v\";c\r\n", "a", "k"), "\"v\";c");
}

TEST_F(ProfileRead, ACommentLineIsNoKeyAndNoSection) {
    const std::string_view bytes = "[a]\r\n;k=1\r\n ; k=2\r\n;[b]\r\nj=3\r\n";
    EXPECT_EQ(Read(bytes, "a", "k"), "");
    EXPECT_EQ(Read(bytes, "b", "j"), "");
    EXPECT_EQ(Read(bytes, "a", "j"), "3");
}

TEST_F(ProfileRead, ASemicolonInAValueStays) {
    EXPECT_EQ(Read("[a]\r\nk=v;w ; x\r\n", "a", "k"), "v;w ; x");
}

TEST_F(ProfileRead, ALineWithoutEqualsIsAKeyWithoutValue) {
    EXPECT_EQ(Read("[a]\r\nk\r\nk=2\r\n", "a", "k"), "");
}

TEST_F(ProfileRead, OnlyTheFirstEqualsSeparates) {
    EXPECT_EQ(Read("[a]\r\nk==v=w\r\n", "a", "k"), "=v=w");
}

TEST_F(ProfileRead, TextBehindTheClosingBracketIsIgnored) {
    EXPECT_EQ(Read("[a]text\r\nk=1\r\n", "a", "k"), "1");
}

TEST_F(ProfileRead, TheLastBracketOfTheLineClosesTheName) {
    EXPECT_EQ(Read("[a[b]]\r\nk=1\r\n", "a[b]", "k"), "1");
    EXPECT_EQ(Read("[a[b]]\r\nk=1\r\n", "a[b", "k"), "");
    EXPECT_EQ(Read("[a] ; ]\r\nk=1\r\n", "a] ;", "k"), "1");
}

TEST_F(ProfileRead, ABracketThatIsNotClosedOpensNoSection) {
    EXPECT_EQ(Read("[a\r\nk=1\r\n", "a", "k"), "");
    EXPECT_EQ(Read("[a\r\nk=1\r\n", "", "k"), "1");
}

TEST_F(ProfileRead, KeysBeforeAnySectionBelongToTheEmptyName) {
    const std::string_view bytes = "k=0\r\n[a]\r\nk=1\r\n[]\r\nk=2\r\n";
    EXPECT_EQ(Read(bytes, "", "k"), "0");
    EXPECT_EQ(Read(bytes, "a", "k"), "1");
}

TEST_F(ProfileRead, AnyLineEndWillDo) {
    for (const std::string_view bytes :
         {"[a]\rk=1\rj=2\r", "[a]\nk=1\nj=2\n", "[a]\n\rk=1\n\rj=2\n\r", "[a]\r\r\nk=1\r\r\nj=2"}) {
        EXPECT_EQ(Read(bytes, "a", "k"), "1");
        EXPECT_EQ(Read(bytes, "a", "j"), "2");
    }
}

TEST_F(ProfileRead, TheLastLineNeedsNoLineEnd) {
    EXPECT_EQ(Read("[a]\r\nk=1", "a", "k"), "1");
}

TEST_F(ProfileRead, AValueIsCutOneByteShortOfTheBuffer) {
    const std::string_view bytes = "[a]\r\nk=12345\r\n";
    EXPECT_EQ(Read(bytes, "a", "k", 1), "");
    EXPECT_EQ(Read(bytes, "a", "k", 2), "1");
    EXPECT_EQ(Read(bytes, "a", "k", 5), "1234");
    EXPECT_EQ(Read(bytes, "a", "k", 6), "12345");
}

TEST_F(ProfileRead, ABufferWithoutRoomGivesNothing) {
    EXPECT_EQ(Read("[a]\r\nk=12345\r\n", "a", "k", 0), "");
}

TEST_F(ProfileRead, TheLimitCountsBytesOfTheCodePage) {
    EXPECT_EQ(Read("[a]\r\nk=\xE4\xF6\xFC\r\n", "a", "k", 3), "äö");
}

TEST_F(ProfileRead, QuotesDoNotCountAgainstTheLimit) {
    EXPECT_EQ(Read("[a]\r\nk=\"12345\"\r\n", "a", "k", 4), "123");
    EXPECT_EQ(Read("[a]\r\nk=\"12345\"\r\n", "a", "k", 7), "12345");
}

TEST_F(ProfileRead, ALongValueComesWhole) {
    const std::string value(70000, 'x');
    EXPECT_EQ(Read("[a]\nk=" + value + "\nj=1\n", "a", "k", 100000), value);
}

TEST_F(ProfileRead, AValueEndsAtANul) {
    using namespace std::string_view_literals;
    EXPECT_EQ(Read("[a]\r\nk=v\0w\r\nj=2\r\n"sv, "a", "k"), "v");
    EXPECT_EQ(Read("[a]\r\nk=v\0w\r\nj=2\r\n"sv, "a", "j"), "2");
}

TEST_F(ProfileRead, AMissingKeyOrSectionIsEmpty) {
    EXPECT_EQ(Read("[a]\r\nk=1\r\n", "a", "j"), "");
    EXPECT_EQ(Read("[a]\r\nk=1\r\n", "b", "k"), "");
    EXPECT_EQ(Read("", "a", "k"), "");
}

TEST_F(ProfileRead, AFileMarkedAsUtf16IsReadInThatEncoding) {
    using namespace std::string_view_literals;
    EXPECT_EQ(Read("\xFF\xFE[\0a\0]\0\n\0k\0=\0\xE4\0\xAC\x20\n\0"sv, "a", "k"), "ä€");
    EXPECT_EQ(Read("\xFE\xFF\0[\0a\0]\0\n\0k\0=\0\xE4\x20\xAC\0\n"sv, "a", "k"), "ä€");
}

TEST_F(ProfileRead, AFileMarkedAsUtf8IsReadInThatEncoding) {
    EXPECT_EQ(Read("\xEF\xBB\xBF[a]\nk=ä€\n", "a", "k"), "ä€");
}

TEST_F(ProfileRead, WhatIsNoTextInAMarkedFileComesAsQuestionMarks) {
    EXPECT_EQ(Read("\xEF\xBB\xBF[a]\nk=\xE4x\xFF\n", "a", "k"), "?x?");
    using namespace std::string_view_literals;
    EXPECT_EQ(Read("\xFF\xFE[\0a\0]\0\n\0k\0=\0\0\xD8x\0\n\0"sv, "a", "k"), "?x");
}

TEST_F(ProfileRead, AFileThatIsNotThereIsReportedByEveryRead) {
    const Reader reader(folder_.File("missing.ini"));
    EXPECT_EQ(reader.Read("a", "k", 100).error, 2); // "no such file" on either system
    EXPECT_EQ(reader.Read("a", "j", 100).error, 2);
    EXPECT_EQ(reader.Read("a", "k", 100).value, "");
}

TEST_F(ProfileRead, AFolderCannotBeRead) {
    EXPECT_NE(Reader(folder_.Path()).Read("a", "k", 100).error, 0);
}

TEST_F(ProfileRead, APathOutsideTheCodePageIsRead) {
    const std::string path = folder_.File("設定-ж.ini");
    test::WriteBytes(path, "[a]\r\nk=1\r\n");
    const auto result = Reader(path).Read("a", "k", 100);
    EXPECT_EQ(result.value, "1");
    EXPECT_EQ(result.error, 0);
}

} // namespace
