#include "tests/wizard/dropped.h"

#include <windows.h>

namespace window_test {

bool IsDropped(const wxWindow& combo) {
    return ::SendMessageW(combo.GetHWND(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

} // namespace window_test
