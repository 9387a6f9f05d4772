#include "tests/support/window/host_frame.h"

#include "tests/support/window/input.h"
#include "tests/support/window/wait.h"

#include <wx/sizer.h>

namespace window_test {

HostFrame::HostFrame(const wxSize& size)
    : frame_(new wxFrame(nullptr, wxID_ANY, "Test", wxPoint(40, 40), size)) {
    frame_->Show();
    BringToFront(frame_);
}

HostFrame::~HostFrame() {
    frame_->Destroy();
    Pump();
}

void HostFrame::Show(wxWindow* content) {
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(content, wxSizerFlags(1).Expand());
    frame_->SetSizer(sizer);
    frame_->Layout();
    WaitFor([content] { return content->IsShownOnScreen() && content->GetSize().x > 20; },
            "the window's content to be shown");
}

} // namespace window_test
