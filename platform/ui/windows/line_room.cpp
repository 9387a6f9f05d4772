#include "platform/ui/line_room.h"

namespace platform::ui {

// The system's fields are as high as their font wants them.
void RoomForLine(wxWindow& /*field*/) {}

} // namespace platform::ui
