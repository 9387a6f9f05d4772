#include "tests/support/window/screenshot.h"

#include "tests/support/window/screen_copy.h"
#include "tests/support/window/wait.h"

#include <gtest/gtest.h>
#include <wx/filename.h>
#include <wx/image.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include <algorithm>

namespace window_test {

namespace {

bool Alike(const wxImage& one, const wxImage& other) {
    const auto bytes =
        static_cast<std::size_t>(one.GetWidth()) * static_cast<std::size_t>(one.GetHeight()) * 3;
    return std::equal(one.GetData(), one.GetData() + bytes, other.GetData());
}

// Drawing goes on after our events are through (the toolkit draws with the display's frames, the
// window manager draws the border): the picture is taken when several in a row are alike.
wxImage SettledPicture(const wxRect& area) {
    constexpr int kTries = 60;
    constexpr int kAlikeInARow = 5;
    wxImage last = CopyOfScreen(area);
    for (int i = 0, alike = 0; i < kTries && alike < kAlikeInARow; ++i) {
        for (int breath = 0; breath < 10; ++breath) {
            Pump();
            wxMilliSleep(5);
        }
        const wxImage next = CopyOfScreen(area);
        alike = Alike(next, last) ? alike + 1 : 0;
        last = next;
    }
    return last;
}

} // namespace

void Screenshot(const std::string& name, wxWindow* window) {
    wxString folder;
    if (!wxGetEnv("QUEUESHIFT_SHOTS", &folder) || folder.empty()) {
        return;
    }
    const wxRect screen(wxGetDisplaySize());
    wxRect area = window == nullptr ? screen : wxGetTopLevelParent(window)->GetScreenRect();
    area.Intersect(screen);
    const wxString path = wxFileName(folder, wxString::FromUTF8(name), "png").GetFullPath();
    EXPECT_TRUE(SettledPicture(area).SaveFile(path, wxBITMAP_TYPE_PNG))
        << "cannot write " << path.utf8_string();
}

} // namespace window_test
