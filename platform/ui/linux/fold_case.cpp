#include "platform/ui/fold_case.h"

#include <glib.h>

#include <algorithm>

namespace platform::ui {

// Not the C library's: what that folds depends on the locale the process was started in.
std::wstring FoldCase(std::wstring text) {
    std::ranges::transform(text, text.begin(), [](wchar_t letter) {
        return static_cast<wchar_t>(g_unichar_tolower(static_cast<gunichar>(letter)));
    });
    return text;
}

} // namespace platform::ui
