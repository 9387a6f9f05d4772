// Tabs that cannot be chosen.
#pragma once

#include <cstddef>

class wxNotebook;

namespace platform::ui {

/// Greys the tab of an unavailable page, or shows it as usual, where the system's tab control can.
/// Refusing the change to it is the caller's.
void ShowTabAvailable(wxNotebook& notebook, std::size_t tab, bool available);

} // namespace platform::ui
