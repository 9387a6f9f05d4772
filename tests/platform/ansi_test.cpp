#include "platform/ansi.h"

#include <gtest/gtest.h>

namespace {

using platform::AnsiFromUtf8;
using platform::Utf8FromAnsi;

TEST(Ansi, CharactersOfThePageGoThereAndBack) {
    EXPECT_EQ(AnsiFromUtf8("Büro – 5 €"), "B\xFCro \x96 5 \x80");
    EXPECT_EQ(Utf8FromAnsi("B\xFCro \x96 5 \x80"), "Büro – 5 €");
}

TEST(Ansi, WhatThePageLacksBecomesAQuestionMark) {
    EXPECT_EQ(AnsiFromUtf8("жx日"), "?x?");
    EXPECT_EQ(AnsiFromUtf8("x\U0001F600y"), "x??y") << "as many as UTF-16 has units";
    EXPECT_EQ(AnsiFromUtf8("\u0100"), "?") << "a letter that merely looks alike will not do";
}

TEST(Ansi, EveryByteSurvivesTheWayThereAndBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    EXPECT_EQ(AnsiFromUtf8(Utf8FromAnsi(bytes)), bytes);
}

TEST(Ansi, UndefinedBytesAreTheControlsOfTheSameNumber) {
    EXPECT_EQ(Utf8FromAnsi("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Ansi, ANulIsATextLikeAnyOther) {
    EXPECT_EQ(AnsiFromUtf8(std::string_view("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(Utf8FromAnsi(std::string_view("a\0b", 3)), std::string("a\0b", 3));
}

TEST(Ansi, NothingStaysNothing) {
    EXPECT_EQ(AnsiFromUtf8(""), "");
    EXPECT_EQ(Utf8FromAnsi(""), "");
}

TEST(Ansi, BytesThatAreNoUtf8NeverFail) {
    EXPECT_EQ(AnsiFromUtf8("a\xFFz"), "a?z");
}

} // namespace
