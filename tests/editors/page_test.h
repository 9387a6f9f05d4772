// One page in a window of its own.
#pragma once

#include "document/document.h"
#include "editors/leave_checks.h"
#include "editors/page.h"
#include "platform/ui/message_box.h"
#include "tests/editors/user_acts.h"
#include "tests/support/window/window_test.h"

#include <wx/frame.h>
#include <wx/sizer.h>

#include <memory>
#include <utility>

namespace window_test {

/// The page lives in a frame that is not shown until a test asks for it; nothing is marked changed
/// at the start.
class PageTest : public testing::Test {
protected:
    PageTest() {
        platform::ui::InstallMessageBoxes();
        modINIDocument::g_bolDocumentChanged = false;
        frame = new wxFrame(nullptr, wxID_ANY, "Page", wxPoint(40, 40), wxSize(820, 620));
        // Another colour than the buttons' or the lists', so that each can be told.
        frame->SetBackgroundColour(wxColour(210, 215, 230));
        checks = std::make_unique<editors::LeaveChecks>(*frame);
    }

    ~PageTest() override {
        checks.reset();
        frame->Destroy();
        Pump();
        modINIDocument::g_bolDocumentChanged = false;
    }

    template <class P, class... Arguments> P& Make(Arguments&&... arguments) {
        auto* const made = new P(frame, std::forward<Arguments>(arguments)...);
        auto* const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(made, wxSizerFlags(1).Expand());
        frame->SetSizer(sizer);
        page = made;
        return *made;
    }

    /// Puts the page on the screen, for real input.
    void Show() {
        frame->Show();
        frame->Layout();
        BringToFront(frame);
        WaitFor([this] { return page->IsShownOnScreen() && page->GetSize().x > 200; },
                "the page to be shown");
    }

    static bool Changed() { return modINIDocument::g_bolDocumentChanged; }
    static void ForgetChanges() { modINIDocument::g_bolDocumentChanged = false; }

    wxFrame* frame = nullptr;
    editors::Page* page = nullptr;
    std::unique_ptr<editors::LeaveChecks> checks;
};

} // namespace window_test
