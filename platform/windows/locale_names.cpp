#include "platform/locale_names.h"

#include "platform/windows/wide.h"

#include <windows.h>

#include <array>

namespace platform {

namespace {

std::string Word(LCTYPE item) {
    std::array<wchar_t, 128> text{};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, item, text.data(), static_cast<int>(text.size()));
    return Utf8FromWide(text.data());
}

} // namespace

std::string MonthName(int month) {
    return Word(LOCALE_SMONTHNAME1 + static_cast<LCTYPE>(month));
}

std::string AmPmDesignator(int hour) {
    const bool morning = hour < 12;
    std::string word = Word(morning ? LOCALE_S1159 : LOCALE_S2359);
    if (!word.empty()) {
        return word;
    }
    return morning ? "AM" : "PM";
}

} // namespace platform
