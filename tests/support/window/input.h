// Real mouse and keyboard input, through the system's own queue.
#pragma once

#include <wx/defs.h>
#include <wx/gdicmn.h>

#include <string_view>

class wxWindow;

namespace window_test {

/// Raises the top-level window that holds `window` and waits until it is the active one.
void BringToFront(wxWindow* window);

/// Gives the control the focus by program and waits until it has it.
void FocusOn(wxWindow* window);

/// True when the control, or a part of it, has the focus.
bool HasFocus(const wxWindow* window);

/// Clicks the middle of a control that is shown and enabled, and returns when the click was
/// handled. `offset` is a point of its client area instead of the middle.
void ClickOn(wxWindow* window, const wxPoint& offset = wxDefaultPosition);
void DoubleClickOn(wxWindow* window, const wxPoint& offset = wxDefaultPosition);

/// Clicks a point of the screen that belongs to the window; for rows, tabs and other parts that are
/// no controls. Take the point after BringToFront: a window that comes up is still being placed.
void ClickAt(wxWindow* window, const wxPoint& screen);
void DoubleClickAt(wxWindow* window, const wxPoint& screen);

/// Types into whatever has the focus; US keyboard characters. Returns when all keys were handled.
void Type(std::string_view text);

/// Presses and releases one key (a WXK_ code or a character), with wxMOD_ flags.
void Press(int key, int modifiers = wxMOD_NONE);

} // namespace window_test
