#include "platform/system_error.h"

#include "platform/windows/wide.h"

#include <windows.h>

#include <array>

namespace platform {

SystemError SystemErrorFromNumber(int number) {
    if (number == 0) {
        return {};
    }
    std::array<wchar_t, 1024> text{};
    // Without arguments: a description may hold placeholders that only its raiser can fill.
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                        nullptr, static_cast<DWORD>(number), 0, text.data(),
                                        static_cast<DWORD>(text.size()), nullptr);
    std::string description = Utf8FromWide({text.data(), length});
    const auto last = description.find_last_not_of("\r\n ");
    description.resize(last == std::string::npos ? 0 : last + 1);
    return {number, description};
}

} // namespace platform
