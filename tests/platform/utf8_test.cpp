#include "platform/utf8.h"

#include <vector>

#include <gtest/gtest.h>

namespace {

using platform::kNoCharacter;

std::vector<char32_t> Characters(std::string_view utf8) {
    std::vector<char32_t> characters;
    for (std::size_t at = 0; at < utf8.size();) {
        characters.push_back(platform::NextCharacter(utf8, at));
    }
    return characters;
}

TEST(Utf8, CharactersOfEveryLengthAreRead) {
    EXPECT_EQ(Characters("a\u00E4\u20AC\U0001F5A8"),
              (std::vector<char32_t>{'a', 0xE4, 0x20AC, 0x1F5A8}));
}

TEST(Utf8, WhatIsNoCharacterIsSkippedAsOne) {
    const std::vector<char32_t> one = {kNoCharacter, 'x'};
    for (const auto text : {"\x80x", "\xFFx", "\xC0x", "\xE4x", "\xE2\x82x", "\xF0\x9F\x96x"}) {
        EXPECT_EQ(Characters(text), one) << text;
    }
    EXPECT_EQ(Characters("\xE2\x82"), std::vector<char32_t>{kNoCharacter});
}

TEST(Utf8, OverlongFormsSurrogatesAndNumbersTooLargeAreNoCharacters) {
    for (const auto text : {"\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
                            "\xF4\x90\x80\x80", "\xF5\x80\x80\x80"}) {
        EXPECT_EQ(Characters(text).front(), kNoCharacter) << text;
    }
}

TEST(Utf8, CharactersAreAppendedInTheirShortestForm) {
    std::string text;
    for (const char32_t character : {U'a', U'\u00E4', U'\u20AC', U'\U0001F5A8'}) {
        platform::AppendUtf8(text, character);
    }
    EXPECT_EQ(text, "a\u00E4\u20AC\U0001F5A8");
}

TEST(Utf8, WhatIsNoCharacterIsAppendedAsTheReplacement) {
    std::string text;
    platform::AppendUtf8(text, 0xD800);
    platform::AppendUtf8(text, 0x110000);
    EXPECT_EQ(text, "\uFFFD\uFFFD");
}

TEST(Utf8, ATextIsMadeValidByReplacingWhatIsNoCharacter) {
    EXPECT_EQ(platform::ValidUtf8("D\u00FCsseldorf"), "D\u00FCsseldorf");
    EXPECT_EQ(platform::ValidUtf8("a\xFF\xE2\x82z"), "a\uFFFD\uFFFDz");
    EXPECT_EQ(platform::ValidUtf8(""), "");
}

} // namespace
