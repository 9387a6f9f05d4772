#include "tests/support/window/screen_copy.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>

namespace window_test {

wxImage CopyOfScreen(const wxRect& area) {
    wxScreenDC screen;
    wxBitmap picture(area.width, area.height, 24);
    wxMemoryDC memory(picture);
    memory.Blit(0, 0, area.width, area.height, &screen, area.x, area.y);
    memory.SelectObject(wxNullBitmap);
    return picture.ConvertToImage();
}

} // namespace window_test
