#include "platform/ui/several_lines.h"

namespace platform::ui {

void AllowSeveralLines(wxWindow& /*button*/) {}

} // namespace platform::ui
