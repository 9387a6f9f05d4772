// Lets pending window events run in the middle of a long operation.
#pragma once

namespace platform::ui {

/// Processes what is pending and returns. Does nothing without a running event loop. May be called
/// from a handler that such a call is running.
void PumpEvents();

/// The same for the inside of a quick loop: does nothing while no event is pending and less than a
/// frame's time has passed since the last one of these calls that did something.
void PumpEventsWhenDue();

} // namespace platform::ui
