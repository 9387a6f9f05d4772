// The main window while it works: hourglass, and deaf to input.
#pragma once

#include <type_traits> // the next header uses it unasked

#include <wx/weakref.h>
#include <wx/window.h>

namespace editors {

/// From construction to destruction the window shows the hourglass and is disabled. Afterwards the
/// focus is where it was.
class BusyWindow {
public:
    explicit BusyWindow(wxWindow& window);
    ~BusyWindow();
    BusyWindow(const BusyWindow&) = delete;
    BusyWindow& operator=(const BusyWindow&) = delete;

private:
    wxWindow& window_;
    wxCursor cursor_;
    wxWeakRef<wxWindow> focus_;
};

} // namespace editors
