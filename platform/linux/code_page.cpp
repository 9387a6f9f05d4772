#include "platform/linux/code_page.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>

namespace platform {

namespace {

struct LanguagePage {
    std::string_view language;
    int codePage;
};

// Languages whose page is not 1252. A row with a territory or script stands before the row of the
// bare language, because the first row that matches wins.
constexpr std::array kLanguagePages = std::to_array<LanguagePage>({
    {"bs", 1250},          {"cs", 1250},          {"hr", 1250},   {"hu", 1250},    {"pl", 1250},
    {"ro", 1250},          {"sk", 1250},          {"sl", 1250},   {"sq", 1250},    {"tk", 1250},
    {"sr@latin", 1250},    {"be@latin", 1250},    {"be", 1251},   {"bg", 1251},    {"ba", 1251},
    {"kk", 1251},          {"ky", 1251},          {"mk", 1251},   {"mn", 1251},    {"ru", 1251},
    {"sah", 1251},         {"sr", 1251},          {"tg", 1251},   {"tt", 1251},    {"uk", 1251},
    {"uz@cyrillic", 1251}, {"az@cyrillic", 1251}, {"el", 1253},   {"az_IR", 1256}, {"az", 1254},
    {"tr", 1254},          {"uz", 1254},          {"he", 1255},   {"iw", 1255},    {"yi", 1255},
    {"ar", 1256},          {"ckb", 1256},         {"fa", 1256},   {"ks", 1256},    {"pa_PK", 1256},
    {"ps", 1256},          {"sd", 1256},          {"ug", 1256},   {"ur", 1256},    {"et", 1257},
    {"lt", 1257},          {"lv", 1257},          {"vi", 1258},   {"th", 874},     {"ja", 932},
    {"zh_CN", 936},        {"zh_SG", 936},        {"zh_TW", 950}, {"zh_HK", 950},  {"zh_MO", 950},
    {"zh", 936},           {"ko", 949},
});

bool Matches(std::string_view row, std::string_view language, std::string_view territory,
             std::string_view modifier) {
    const auto at = row.find_first_of("_@");
    if (row.substr(0, at) != language) {
        return false;
    }
    if (at == std::string_view::npos) {
        return true;
    }
    return row.substr(at + 1) == (row[at] == '_' ? territory : modifier);
}

} // namespace

std::string LocaleOfTexts() {
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            return value;
        }
    }
    return {};
}

int CodePageOfLocale(std::string_view locale) {
    const auto part = [locale](char start) -> std::string_view {
        const auto at = locale.find(start);
        if (at == std::string_view::npos) {
            return {};
        }
        const auto rest = locale.substr(at + 1);
        return rest.substr(0, rest.find_first_of("_.@"));
    };
    const auto language = locale.substr(0, locale.find_first_of("_.@"));
    const auto row = std::ranges::find_if(kLanguagePages, [&](const LanguagePage& candidate) {
        return Matches(candidate.language, language, part('_'), part('@'));
    });
    return row == kLanguagePages.end() ? 1252 : row->codePage;
}

} // namespace platform
