#include "platform/ui/list_box.h"

namespace platform::ui {

// The native list moves its caret with the selection and selects nothing for the focus.
void PlaceListCursor(wxListBox& /*list*/, int /*row*/) {}

} // namespace platform::ui
