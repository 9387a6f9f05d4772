#include "platform/ui/same_choice.h"

namespace platform::ui {

// The native drop-downs send a message of their own.
void TellEveryChoice(wxChoice& /*choice*/) {}

void TellEveryChoice(wxComboBox& /*combo*/) {}

} // namespace platform::ui
