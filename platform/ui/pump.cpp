#include "platform/ui/pump.h"

#include <wx/evtloop.h>

namespace platform::ui {

void PumpEvents() {
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    if (loop != nullptr && !loop->IsYielding()) {
        loop->Yield();
    }
}

} // namespace platform::ui
