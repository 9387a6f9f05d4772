#include "platform/ui/same_choice.h"

namespace platform::ui {

// The native drop-down sends its own message.
void TellEveryChoice(wxChoice& /*choice*/) {}

} // namespace platform::ui
