// Which of the system's pointers a window shows.
#pragma once

#include <wx/cursor.h>

namespace window_test {

/// The arrow with a question mark.
bool IsQuestionArrow(const wxCursor& cursor);

} // namespace window_test
