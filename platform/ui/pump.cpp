#include "platform/ui/pump.h"

#include <chrono>

#include <wx/evtloop.h>

namespace platform::ui {

void PumpEvents() {
    if (wxEventLoopBase* const loop = wxEventLoopBase::GetActive(); loop != nullptr) {
        loop->Yield();
    }
}

void PumpEventsWhenDue() {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds kFrame{16};
    static Clock::time_point lastPump;
    const wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    if (loop == nullptr || (!loop->Pending() && Clock::now() - lastPump < kFrame)) {
        return;
    }
    PumpEvents();
    lastPump = Clock::now();
}

} // namespace platform::ui
