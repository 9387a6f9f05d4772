#include "platform/ui/text_scale.h"

#include <wx/display.h>

#include <algorithm>

namespace platform::ui {

namespace {

// The height of a line in the fonts that desktops come with, in device-independent pixels.
constexpr int kUsualLine = 17;
// What surrounds a window's contents: borders, and title, menu and toolbar.
constexpr int kFrameWidth = 24;
constexpr int kFrameHeight = 40;
constexpr int kBarLines = 5;

} // namespace

wxSize ForFont(const wxWindow& window, const wxSize& size) {
    const int line = window.GetCharHeight();
    const int usual = window.FromDIP(kUsualLine);
    const wxSize plain = window.FromDIP(size);
    const wxSize wanted = line <= usual ? plain : plain * line / usual;
    const wxSize frame =
        window.FromDIP(wxSize(kFrameWidth, kFrameHeight)) + wxSize(0, kBarLines * line);
    wxSize room = wxDisplay(&window).GetClientArea().GetSize() - frame;
    room.IncTo(wxSize(1, 1));
    return {std::min(wanted.x, room.x), std::min(wanted.y, room.y)};
}

} // namespace platform::ui
