// Walking through UTF-8 text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

/// Stands for bytes that are no UTF-8.
inline constexpr char32_t kNoCharacter = 0xFFFFFFFF;

/// The character that starts at `at`, which moves behind it. The longest run of bytes that could
/// have begun a character, but does not, is skipped as one and yields kNoCharacter.
char32_t NextCharacter(std::string_view utf8, std::size_t& at);

/// Appends `character` in UTF-8. Surrogates and numbers above U+10FFFF become U+FFFD.
void AppendUtf8(std::string& text, char32_t character);

/// The text with U+FFFD for every run of bytes that is no UTF-8.
std::string ValidUtf8(std::string_view text);

} // namespace platform
