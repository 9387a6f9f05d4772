// Lets pending window events run in the middle of a long operation.
#pragma once

namespace platform::ui {

/// Processes what is pending and returns. Does nothing without a running event loop, or while a
/// call further up the stack is doing the same.
void PumpEvents();

} // namespace platform::ui
