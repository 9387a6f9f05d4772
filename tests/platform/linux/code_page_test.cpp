#include "platform/linux/code_page.h"

#include "platform/ansi.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace {

using platform::CodePageOfLocale;

class CodePages : public testing::Test {
protected:
    ~CodePages() override {
        SetLocale("LC_ALL", "C.UTF-8");
        SetLocale("LC_CTYPE", nullptr);
        SetLocale("LANG", nullptr);
    }
    static void SetLocale(const char* name, const char* value) {
        if (value == nullptr) {
            unsetenv(name);
        } else {
            setenv(name, value, 1);
        }
    }
};

TEST_F(CodePages, FollowTheLanguage) {
    EXPECT_EQ(CodePageOfLocale("de_DE.UTF-8"), 1252);
    EXPECT_EQ(CodePageOfLocale("pl_PL.UTF-8"), 1250);
    EXPECT_EQ(CodePageOfLocale("ru_RU.KOI8-R"), 1251);
    EXPECT_EQ(CodePageOfLocale("el"), 1253);
    EXPECT_EQ(CodePageOfLocale("tr_TR"), 1254);
    EXPECT_EQ(CodePageOfLocale("he_IL.UTF-8"), 1255);
    EXPECT_EQ(CodePageOfLocale("ar_EG.UTF-8"), 1256);
    EXPECT_EQ(CodePageOfLocale("lt_LT.UTF-8"), 1257);
    EXPECT_EQ(CodePageOfLocale("vi_VN"), 1258);
    EXPECT_EQ(CodePageOfLocale("th_TH.UTF-8"), 874);
    EXPECT_EQ(CodePageOfLocale("ja_JP.UTF-8"), 932);
    EXPECT_EQ(CodePageOfLocale("ko_KR.UTF-8"), 949);
}

TEST_F(CodePages, TerritoryAndScriptDecideWhereTheLanguageDoesNot) {
    EXPECT_EQ(CodePageOfLocale("zh_CN.UTF-8"), 936);
    EXPECT_EQ(CodePageOfLocale("zh_TW.UTF-8"), 950);
    EXPECT_EQ(CodePageOfLocale("zh_HK"), 950);
    EXPECT_EQ(CodePageOfLocale("sr_RS.UTF-8"), 1251);
    EXPECT_EQ(CodePageOfLocale("sr_RS.UTF-8@latin"), 1250);
    EXPECT_EQ(CodePageOfLocale("de_DE@euro"), 1252);
}

TEST_F(CodePages, AnUnknownLanguageIsWesternEuropean) {
    for (const auto locale : {"", "C", "POSIX", "C.UTF-8", "tlh_KL", "e"}) {
        EXPECT_EQ(CodePageOfLocale(locale), 1252) << locale;
    }
}

TEST_F(CodePages, TheFirstVariableThatSaysSomethingCounts) {
    SetLocale("LC_ALL", "");
    SetLocale("LC_CTYPE", nullptr);
    SetLocale("LANG", "ru_RU.UTF-8");
    EXPECT_EQ(platform::LocaleOfTexts(), "ru_RU.UTF-8");
    SetLocale("LC_CTYPE", "pl_PL.UTF-8");
    EXPECT_EQ(platform::LocaleOfTexts(), "pl_PL.UTF-8");
    SetLocale("LC_ALL", "el_GR.UTF-8");
    EXPECT_EQ(platform::LocaleOfTexts(), "el_GR.UTF-8");
}

TEST_F(CodePages, TextsAreConvertedInTheUsersPage) {
    SetLocale("LC_ALL", "ru_RU.UTF-8");
    EXPECT_EQ(platform::AnsiFromUtf8("Принтер ü"), "\xCF\xF0\xE8\xED\xF2\xE5\xF0 ?");
    EXPECT_EQ(platform::Utf8FromAnsi("\xCF\xF0\xE8"), "При");
}

TEST_F(CodePages, APageOfTwoBytesToACharacterWorks) {
    SetLocale("LC_ALL", "ja_JP.UTF-8");
    EXPECT_EQ(platform::AnsiFromUtf8("日本aｱ"), "\x93\xFA\x96{a\xB1");
    EXPECT_EQ(platform::Utf8FromAnsi("\x93\xFA\x96{a\xB1"), "日本aｱ");
}

TEST_F(CodePages, HalfACharacterIsAQuestionMark) {
    SetLocale("LC_ALL", "ja_JP.UTF-8");
    EXPECT_EQ(platform::Utf8FromAnsi("a\x93"), "a?");
}

TEST_F(CodePages, EveryByteOfEverySingleBytePageSurvives) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    for (const auto locale : {"pl", "ru", "de", "el", "tr", "he", "ar", "lt", "vi", "th"}) {
        SetLocale("LC_ALL", locale);
        EXPECT_EQ(platform::AnsiFromUtf8(platform::Utf8FromAnsi(bytes)), bytes) << locale;
    }
}

} // namespace
