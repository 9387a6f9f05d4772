// Whether a drop-down of the system shows its items.
#pragma once

#include <wx/window.h>

namespace window_test {

bool IsDropped(const wxWindow& combo);

} // namespace window_test
