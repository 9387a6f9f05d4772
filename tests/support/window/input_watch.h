// Counts the input events that reach this program, so that a test knows when its own has come.
#pragma once

namespace window_test {

struct InputCounts {
    int mousePresses = 0;
    int mouseReleases = 0;
    int keyPresses = 0; ///< without Shift, Control and Alt
    int keyReleases = 0;
    bool operator==(const InputCounts&) const = default;
};

/// Counting starts with the first call. An event is counted just before it is handled.
const InputCounts& WatchInput();

} // namespace window_test
