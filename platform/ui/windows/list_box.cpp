#include "platform/ui/list_box.h"

namespace platform::ui {

// The native list moves its caret with the selection and selects nothing for the focus.
void PlaceListCursor(wxListBox& /*list*/, int /*row*/) {}

// The native list asks for nothing between one row and the next.
RowsUnseen::RowsUnseen(wxListBox& /*list*/) : end_([] {}) {}

} // namespace platform::ui
