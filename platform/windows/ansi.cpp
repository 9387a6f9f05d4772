#include "platform/ansi.h"

#include "platform/windows/wide.h"

#include <windows.h>

namespace platform {

std::string AnsiFromUtf8(std::string_view utf8) {
    const std::wstring wide = WideFromUtf8(utf8);
    // A system that runs on UTF-8 as its ANSI page knows neither a best fit nor a substitute.
    const bool isUtf8 = GetACP() == CP_UTF8;
    const DWORD flags = isUtf8 ? 0 : WC_NO_BEST_FIT_CHARS;
    const char* substitute = isUtf8 ? nullptr : "?";
    const int size = static_cast<int>(wide.size());
    const int length =
        WideCharToMultiByte(CP_ACP, flags, wide.data(), size, nullptr, 0, substitute, nullptr);
    std::string ansi(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_ACP, flags, wide.data(), size, ansi.data(), length, substitute, nullptr);
    return ansi;
}

std::string Utf8FromAnsi(std::string_view ansi) {
    const int size = static_cast<int>(ansi.size());
    const int length = MultiByteToWideChar(CP_ACP, 0, ansi.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, ansi.data(), size, wide.data(), length);
    return Utf8FromWide(wide);
}

} // namespace platform
