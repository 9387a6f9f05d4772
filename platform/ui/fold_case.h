// Texts without their letter case.
#pragma once

#include <string>

namespace platform::ui {

/// The text in small letters, character by character, of every script and in every locale: two
/// texts that differ in letter case alone become the same. The length stays.
std::wstring FoldCase(std::wstring text);

} // namespace platform::ui
