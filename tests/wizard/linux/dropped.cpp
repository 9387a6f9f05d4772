#include "tests/wizard/dropped.h"

#include <gtk/gtk.h>

namespace window_test {

bool IsDropped(const wxWindow& combo) {
    gboolean shown = FALSE;
    g_object_get(combo.GetHandle(), "popup-shown", &shown, nullptr);
    return shown != FALSE;
}

} // namespace window_test
