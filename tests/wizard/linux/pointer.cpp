#include "tests/wizard/pointer.h"

#include <gdk/gdk.h>

namespace window_test {

bool IsQuestionArrow(const wxCursor& cursor) {
    return cursor.IsOk() && gdk_cursor_get_cursor_type(cursor.GetCursor()) == GDK_QUESTION_ARROW;
}

} // namespace window_test
