// Captions of several lines.
#pragma once

class wxWindow;

namespace platform::ui {

/// Lets an option button or check box break its caption at line ends, which not every system does
/// of its own accord.
void AllowSeveralLines(wxWindow& button);

} // namespace platform::ui
