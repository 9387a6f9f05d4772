#include "platform/ui/pump.h"

#include <chrono>

#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/evtloop.h>

namespace platform::ui {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kFrame{16};
constexpr std::chrono::milliseconds kLook{1}; // a look at the queue costs a call of the system

Clock::time_point g_lastPump;
Clock::time_point g_lastLook;

/// The close box counts among what is drawn, not as the user's input: without this a window could
/// go while a function of its own waits for the network.
class NoClosing : public wxEventFilter {
public:
    NoClosing() { wxEvtHandler::AddFilter(this); }
    ~NoClosing() override { wxEvtHandler::RemoveFilter(this); }
    NoClosing(const NoClosing&) = delete;
    NoClosing& operator=(const NoClosing&) = delete;

    int FilterEvent(wxEvent& event) override {
        return event.GetEventType() == wxEVT_CLOSE_WINDOW ? Event_Processed : Event_Skip;
    }
};

} // namespace

void PumpEvents() {
    if (wxEventLoopBase* const loop = wxEventLoopBase::GetActive(); loop != nullptr) {
        loop->Yield();
        g_lastPump = Clock::now();
    }
}

bool PumpIsDue() {
    const Clock::time_point now = Clock::now();
    if (now - g_lastLook < kLook) {
        return false;
    }
    g_lastLook = now;
    const wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    return loop != nullptr && (now - g_lastPump >= kFrame || loop->Pending());
}

void PumpWhenDue() {
    if (PumpIsDue()) {
        PumpEvents();
    }
}

bool PumpPainting() {
    if (wxEventLoopBase* const loop = wxEventLoopBase::GetActive(); loop != nullptr) {
        const NoClosing open;
        loop->YieldFor(wxEVT_CATEGORY_UI);
    }
    return true;
}

} // namespace platform::ui
