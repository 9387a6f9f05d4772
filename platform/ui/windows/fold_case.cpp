#include "platform/ui/fold_case.h"

#include <windows.h>

namespace platform::ui {

// Not the C library's, which folds English letters only until a locale has been chosen.
std::wstring FoldCase(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

} // namespace platform::ui
