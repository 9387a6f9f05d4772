#include "platform/ui/one_line.h"

namespace platform::ui {

// The system's own fields take the first line and nothing more.
void TakeOneLine(wxWindow& /*field*/) {}

} // namespace platform::ui
