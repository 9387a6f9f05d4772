#include "tests/support/window/screen_copy.h"

#include <gdk/gdkx.h>

namespace window_test {

// Straight from the display: the toolkit's screen device keeps the first picture it was asked for.
wxImage CopyOfScreen(const wxRect& area) {
    Display* const display = GDK_DISPLAY_XDISPLAY(gdk_display_get_default());
    XImage* const pixels = XGetImage(display, DefaultRootWindow(display), area.x, area.y,
                                     static_cast<unsigned>(area.width),
                                     static_cast<unsigned>(area.height), AllPlanes, ZPixmap);
    wxImage picture(area.width, area.height);
    for (int y = 0; pixels != nullptr && y < area.height; ++y) {
        for (int x = 0; x < area.width; ++x) {
            const unsigned long colour = XGetPixel(pixels, x, y);
            picture.SetRGB(x, y, static_cast<unsigned char>(colour >> 16 & 0xFF),
                           static_cast<unsigned char>(colour >> 8 & 0xFF),
                           static_cast<unsigned char>(colour & 0xFF));
        }
    }
    if (pixels != nullptr) {
        XDestroyImage(pixels);
    }
    return picture;
}

} // namespace window_test
