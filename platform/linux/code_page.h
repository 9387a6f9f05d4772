// The Windows code page that a language of this system's user has.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// The language of the user's texts: the first of LC_ALL, LC_CTYPE and LANG that is set, such as
/// "de_DE.UTF-8"; "" when none is.
std::string LocaleOfTexts();

/// The number of the ANSI code page that Windows gives a locale of this name; 1252 when unknown.
int CodePageOfLocale(std::string_view locale);

} // namespace platform
