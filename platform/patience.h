// What a caller does while something slow goes on.
#pragma once

#include <functional>

namespace platform {

/// Called again and again while an answer is awaited, so that the caller can let its window live.
/// False abandons what is under way: it fails soon, and what it reports is of no interest.
using KeepWaiting = std::function<bool()>;

} // namespace platform
