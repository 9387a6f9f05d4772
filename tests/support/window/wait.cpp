#include "tests/support/window/wait.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/utils.h>

namespace window_test {

namespace {

constexpr std::chrono::seconds kLimit{20};
constexpr unsigned kBreathMilliseconds = 2;

} // namespace

void Pump() {
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    if (loop == nullptr) {
        return;
    }
    loop->YieldFor(wxEVT_CATEGORY_ALL);
    wxTheApp->ProcessPendingEvents();
    // Update handlers and deferred layout run in idle time; a yield alone does not reach it.
    loop->ProcessIdle();
}

bool ComesTrue(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    for (;;) {
        Pump();
        if (condition()) {
            return true;
        }
        if (std::chrono::steady_clock::now() >= end) {
            return false;
        }
        wxMilliSleep(kBreathMilliseconds);
    }
}

bool WaitFor(const std::function<bool()>& condition, std::string_view what) {
    const bool came = ComesTrue(condition, kLimit);
    if (!came) {
        ADD_FAILURE() << "waited in vain for " << what;
    }
    return came;
}

} // namespace window_test
