// Waiting for conditions while events are processed.
#pragma once

#include <chrono>
#include <functional>
#include <string_view>

namespace window_test {

/// Processes everything that is pending, idle work included.
void Pump();

/// Processes events until the condition holds. False, with a test failure that names `what`, after
/// a limit far above what a slow machine needs.
bool WaitFor(const std::function<bool()>& condition, std::string_view what);

/// The same without the failure and with this limit, for those who then try again.
bool ComesTrue(const std::function<bool()>& condition, std::chrono::milliseconds limit);

} // namespace window_test
