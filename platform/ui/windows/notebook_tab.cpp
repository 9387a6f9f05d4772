#include "platform/ui/notebook_tab.h"

namespace platform::ui {

// The tab control of Windows draws all its tabs alike.
void ShowTabAvailable(wxNotebook&, std::size_t, bool) {}

} // namespace platform::ui
