// Pictures of what a test sees.
#pragma once

#include <string>

class wxWindow;

namespace window_test {

/// Writes NAME.png into the folder that the environment variable QUEUESHIFT_SHOTS names: the
/// window with its frame, or the whole screen. Does nothing when the variable is not set.
void Screenshot(const std::string& name, wxWindow* window = nullptr);

} // namespace window_test
