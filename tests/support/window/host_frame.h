// A shown window for panels and dialogs under test.
#pragma once

#include <wx/frame.h>

namespace window_test {

/// Lives as long as the object; shown and active from the start.
class HostFrame {
public:
    explicit HostFrame(const wxSize& size = wxSize(800, 600));
    ~HostFrame();
    HostFrame(const HostFrame&) = delete;
    HostFrame& operator=(const HostFrame&) = delete;

    [[nodiscard]] wxFrame& Frame() const { return *frame_; }

    /// Gives `content`, a child of the frame, the whole client area and waits until it is on the
    /// screen.
    void Show(wxWindow* content);

private:
    wxFrame* frame_;
};

} // namespace window_test
