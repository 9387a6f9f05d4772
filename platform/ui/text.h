// The border between the record's UTF-8 texts and the windows' strings.
#pragma once

#include "platform/utf8.h"

#include <wx/string.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace platform::ui {

/// Bytes that are no UTF-8, as the names of files may hold on Linux, show as U+FFFD.
inline wxString ToWx(std::string_view utf8) {
    // Most texts are short and ASCII, and lists have thousands of them: the general way measures
    // each first and copies it twice.
    std::array<wchar_t, 128> wide{};
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (utf8.size() <= wide.size() && std::ranges::all_of(utf8, isAscii)) {
        std::ranges::copy(utf8, wide.begin());
        return {wide.data(), utf8.size()};
    }
    const wxString text = wxString::FromUTF8(utf8.data(), utf8.size());
    if (text.empty() && !utf8.empty()) {
        const std::string valid = ValidUtf8(utf8);
        return wxString::FromUTF8(valid.data(), valid.size());
    }
    return text;
}

inline std::string FromWx(const wxString& text) {
    return text.utf8_string();
}

} // namespace platform::ui
