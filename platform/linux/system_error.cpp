#include "platform/system_error.h"

#include "platform/utf8.h"

#include <cwchar>
#include <system_error>

namespace platform {

namespace {

/// The system words its descriptions in the encoding of the program's locale.
std::string Utf8FromLocale(std::string_view text) {
    std::string utf8;
    std::mbstate_t state{};
    while (!text.empty()) {
        wchar_t character = 0;
        const std::size_t length = std::mbrtowc(&character, text.data(), text.size(), &state);
        const bool read = length != 0 && length <= text.size();
        AppendUtf8(utf8, read ? static_cast<char32_t>(character) : kNoCharacter);
        if (!read) {
            state = {};
        }
        text.remove_prefix(read ? length : 1);
    }
    return utf8;
}

} // namespace

SystemError SystemErrorFromNumber(int number) {
    if (number == 0) {
        return {};
    }
    return {number, Utf8FromLocale(std::generic_category().message(number))};
}

} // namespace platform
