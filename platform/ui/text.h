// The border between the record's UTF-8 texts and the windows' strings.
#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

namespace platform::ui {

inline wxString ToWx(std::string_view utf8) {
    return wxString::FromUTF8(utf8.data(), utf8.size());
}

inline std::string FromWx(const wxString& text) {
    return text.utf8_string();
}

} // namespace platform::ui
