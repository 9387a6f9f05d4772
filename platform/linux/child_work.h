// Library calls that may block for minutes, made in a process that can be ended.
//
// Name resolution and Kerberos give no way to wait for them a little at a time. A child process
// makes the call and writes its result, a text, into a pipe; the caller polls the pipe, lets its
// window live meanwhile, and ends the child when its patience does.
#pragma once

#include "platform/patience.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace platform {

/// How long a wait sleeps before the window has its turn again.
constexpr std::chrono::milliseconds kSlice{15};

/// The time by which a wait must be over.
using Deadline = std::chrono::steady_clock::time_point;

/// What `work` returned. Nothing when the deadline passed, the wait was abandoned, or no process
/// could be made. `work` runs in a copy of this process: what it changes there is lost, but for
/// files and the Kerberos credential cache.
std::optional<std::string> ResultOfChild(const std::function<std::string()>& work,
                                         Deadline deadline, const KeepWaiting& keepWaiting);

/// Called in the child to show that its work goes on.
using Progress = std::function<void()>;

/// The same for work that may take any time as long as it shows progress: ends when `silence` has
/// passed without any. The result must not begin with a NUL character.
std::optional<std::string>
ResultOfLongChild(const std::function<std::string(const Progress&)>& work,
                  std::chrono::milliseconds silence, const KeepWaiting& keepWaiting);

/// Waits until one of `events` (POLLIN, POLLOUT) holds on the descriptor. False when the deadline
/// passed or the wait was abandoned.
bool WaitForDescriptor(int descriptor, short events, Deadline deadline,
                       const KeepWaiting& keepWaiting);

} // namespace platform
