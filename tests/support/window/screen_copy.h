// The pixels of the screen.
#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>

namespace window_test {

/// `area` lies on the screen.
wxImage CopyOfScreen(const wxRect& area);

} // namespace window_test
