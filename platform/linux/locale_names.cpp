#include "platform/locale_names.h"

#include <iconv.h>
#include <langinfo.h>
#include <locale.h>

#include <array>
#include <string_view>

namespace platform {

namespace {

std::string Utf8FromCharset(std::string text, const char* charset) {
    if (std::string_view(charset) == "UTF-8") {
        return text;
    }
    const iconv_t handle = iconv_open("UTF-8", charset);
    if (handle == reinterpret_cast<iconv_t>(-1)) {
        return text;
    }
    std::array<char, 256> output{};
    char* from = text.data();
    std::size_t fromLeft = text.size();
    char* to = output.data();
    std::size_t toLeft = output.size();
    const bool converted = iconv(handle, &from, &fromLeft, &to, &toLeft) == 0;
    iconv_close(handle);
    return converted ? std::string(output.data(), to) : text;
}

/// A word of the user's locale for times, UTF-8; that of the C locale where the user's is not
/// installed.
std::string Word(nl_item item) {
    locale_t locale = newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr) {
        locale = newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "C", nullptr);
    }
    std::string word = Utf8FromCharset(nl_langinfo_l(item, locale), nl_langinfo_l(CODESET, locale));
    freelocale(locale);
    return word;
}

} // namespace

std::string MonthName(int month) {
    constexpr std::array<nl_item, 12> kMonths = {MON_1, MON_2, MON_3, MON_4,  MON_5,  MON_6,
                                                 MON_7, MON_8, MON_9, MON_10, MON_11, MON_12};
    return Word(kMonths.at(static_cast<std::size_t>(month)));
}

std::string AmPmDesignator(int hour) {
    const bool morning = hour < 12;
    std::string word = Word(morning ? AM_STR : PM_STR);
    if (!word.empty()) {
        return word;
    }
    return morning ? "AM" : "PM";
}

} // namespace platform
