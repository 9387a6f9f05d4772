// Lets pending window events run in the middle of a long operation.
#pragma once

namespace platform::ui {

/// Processes what is pending and returns. Does nothing without a running event loop. May be called
/// from a handler that such a call is running.
void PumpEvents();

/// For the inside of a quick loop: true when events are pending, looked at once a millisecond, or a
/// frame's time has passed since events were last pumped.
bool PumpIsDue();

/// Pumps events when that is due.
void PumpWhenDue();

/// Lets the windows be drawn; what the user types or clicks waits, and no window is closed. Does
/// nothing without a running event loop. Always true, as whoever asks whether to wait on wants it.
bool PumpPainting();

} // namespace platform::ui
