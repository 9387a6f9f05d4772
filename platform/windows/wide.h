// The program's UTF-8 texts as the system's wide characters, and back.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Bytes that are no UTF-8, and halves of characters, become U+FFFD.
std::wstring WideFromUtf8(std::string_view utf8);
std::string Utf8FromWide(std::wstring_view wide);

} // namespace platform
