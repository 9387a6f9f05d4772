// What a text field of the system leaves free in front of its text.
#pragma once

class wxTextCtrl;

namespace platform::ui {

/// The pixels from the left edge of a field of one line to its text, where that is not scrolled.
int TextInset(const wxTextCtrl& field);

} // namespace platform::ui
