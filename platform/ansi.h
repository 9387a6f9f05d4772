// The border between the program's UTF-8 texts and the 8-bit texts of the files it writes.
//
// The engine reads its settings in the ANSI code page of the computer, so every file of ours is
// written in it. On Windows that is the system's code page; on Linux it is the Windows code page
// of the user's language (LC_ALL, LC_CTYPE, LANG), 1252 when the language is unknown.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// `utf8` in the ANSI code page. A character outside the page becomes "?". Never fails.
std::string AnsiFromUtf8(std::string_view utf8);

/// ANSI bytes as UTF-8. Bytes that the page leaves undefined map to the control character of the
/// same number, as Windows does, so that a text survives the way there and back.
std::string Utf8FromAnsi(std::string_view ansi);

} // namespace platform
