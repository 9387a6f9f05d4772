#include "tests/wizard/pointer.h"

#include <windows.h>

namespace window_test {

bool IsQuestionArrow(const wxCursor& cursor) {
    return cursor.IsOk() &&
           reinterpret_cast<HCURSOR>(cursor.GetHCURSOR()) == ::LoadCursorW(nullptr, IDC_HELP);
}

} // namespace window_test
