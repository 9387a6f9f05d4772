#include "document/value_text.h"

#include <gtest/gtest.h>

namespace {

using namespace modINIDocument;

TEST(ValueText, OnlyBlanksAreTrimmed) {
    EXPECT_EQ(WithoutBlanks("  a b  "), "a b");
    EXPECT_EQ(WithoutBlanks("\t a \t"), "\t a \t");
    EXPECT_EQ(WithoutBlanks("   "), "");
    EXPECT_EQ(WithoutBlanks(""), "");
    EXPECT_EQ(WithoutLeadingBlanks("  a  "), "a  ");
    EXPECT_EQ(WithoutLeadingBlanks("   "), "");
}

TEST(ValueText, TrueAnywhereInAnyCaseIsTrue) {
    for (const auto text : {"True", "TRUE", "yes-True", "untrue", "FalseTrue", "true or false"}) {
        EXPECT_EQ(BooleanFromText(text), kTrue) << text;
    }
}

TEST(ValueText, FalseWithoutTrueIsFalse) {
    for (const auto text : {"False", "FALSE", "not false"}) {
        EXPECT_EQ(BooleanFromText(text), kFalse) << text;
    }
}

TEST(ValueText, NeitherTrueNorFalseIsNoBoolean) {
    for (const auto text : {"", "0", "-1", "yes", "Tru", "Fals e"}) {
        EXPECT_EQ(BooleanFromText(text), std::nullopt) << text;
    }
}

TEST(ValueText, OnlyAllBitsSetIsWrittenTrue) {
    EXPECT_EQ(TextFromBoolean(kTrue), "True");
    EXPECT_EQ(TextFromBoolean(kFalse), "False");
    EXPECT_EQ(TextFromBoolean(1), "False");
    EXPECT_EQ(TextFromBoolean(-2), "False");
}

TEST(ValueText, AnIntegerIsTheNumberAtTheStart) {
    EXPECT_EQ(IntegerFromText("2"), 2);
    EXPECT_EQ(IntegerFromText("  -17"), -17);
    EXPECT_EQ(IntegerFromText("+3"), 3);
    EXPECT_EQ(IntegerFromText("12abc"), 12);
    EXPECT_EQ(IntegerFromText("7 8"), 7);
    EXPECT_EQ(IntegerFromText(".75x"), 1);
    EXPECT_EQ(IntegerFromText("1e2"), 100);
    EXPECT_EQ(IntegerFromText("1e"), 1);
}

TEST(ValueText, WhatStartsWithNoNumberIsZero) {
    for (const auto text :
         {"", " ", "abc", "-", "+", ".", "-.", "--1", "inf", "nan", "-inf", "\t1"}) {
        EXPECT_EQ(IntegerFromText(text), 0) << text;
    }
}

TEST(ValueText, HalvesRoundToTheEvenNeighbour) {
    EXPECT_EQ(IntegerFromText("0.5"), 0);
    EXPECT_EQ(IntegerFromText("1.5"), 2);
    EXPECT_EQ(IntegerFromText("2.5"), 2);
    EXPECT_EQ(IntegerFromText("-0.5"), 0);
    EXPECT_EQ(IntegerFromText("-1.5"), -2);
    EXPECT_EQ(IntegerFromText("2.51"), 3);
}

TEST(ValueText, SixteenBitsAreTheLimit) {
    EXPECT_EQ(IntegerFromText("32767"), 32767);
    EXPECT_EQ(IntegerFromText("-32768"), -32768);
    EXPECT_EQ(IntegerFromText("32767.4"), 32767);
    EXPECT_EQ(IntegerFromText("-32768.5"), -32768);
    EXPECT_EQ(IntegerFromText("32767.5"), std::nullopt);
    EXPECT_EQ(IntegerFromText("32768"), std::nullopt);
    EXPECT_EQ(IntegerFromText("-32769"), std::nullopt);
    EXPECT_EQ(IntegerFromText("99999999999999999999"), std::nullopt);
    EXPECT_EQ(IntegerFromText("1e999"), std::nullopt);
}

TEST(ValueText, ANumberTooSmallToHoldIsZero) {
    EXPECT_EQ(IntegerFromText("1e-999"), 0);
    EXPECT_EQ(IntegerFromText("0." + std::string(500, '0') + "1"), 0);
}

TEST(ValueText, AListIsSplitAtEveryCommaAndItsPiecesTrimmedOfBlanks) {
    using Pieces = std::vector<std::string_view>;
    EXPECT_EQ(ListPieces("A, B ,,C"), (Pieces{"A", "B", "", "C"}));
    EXPECT_EQ(ListPieces(""), Pieces{});
    EXPECT_EQ(ListPieces("A"), Pieces{"A"});
    EXPECT_EQ(ListPieces(","), (Pieces{"", ""}));
    EXPECT_EQ(ListPieces("A,\tB\t"), (Pieces{"A", "\tB\t"}));
}

} // namespace
