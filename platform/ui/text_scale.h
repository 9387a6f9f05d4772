// Window sizes for fonts of every size.
#pragma once

#include <wx/window.h>

namespace platform::ui {

/// `size`, given in device-independent pixels for a font of the usual size, in pixels of `window`:
/// more where its font is larger, and never more than fits on a screen together with a frame.
wxSize ForFont(const wxWindow& window, const wxSize& size);

} // namespace platform::ui
