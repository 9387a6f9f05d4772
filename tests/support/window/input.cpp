#include "tests/support/window/input.h"

#include "tests/support/window/input_watch.h"
#include "tests/support/window/wait.h"

#include <gtest/gtest.h>
#include <wx/toplevel.h>
#include <wx/uiaction.h>
#include <wx/utils.h>
#include <wx/weakref.h>

#include <chrono>
#include <stdexcept>
#include <string>

namespace window_test {

namespace {

using WeakTop = wxWeakRef<wxTopLevelWindow>;

wxTopLevelWindow* TopOf(wxWindow* window) {
    return dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(window));
}

// A press may close its window, and the release then belongs to whatever lies underneath.
bool Gone(const WeakTop& top) {
    return !top || !top->IsShown();
}

std::string Named(const wxWindow* window) {
    return window->GetName().utf8_string();
}

wxPoint TargetOf(const wxWindow* window, const wxPoint& offset) {
    const wxSize size = window->GetClientSize();
    return window->ClientToScreen(offset == wxDefaultPosition ? wxPoint(size.x / 2, size.y / 2)
                                                              : offset);
}

// Input that went astray makes the rest of a test meaningless.
void Require(const std::function<bool()>& condition, const std::string& what) {
    if (!WaitFor(condition, what)) {
        throw std::runtime_error("gave up after waiting for " + what);
    }
}

void RequireClickable(wxWindow* window) {
    Require([window] { return window->IsShownOnScreen() && window->IsEnabled(); },
            Named(window) + " to be shown and enabled");
    BringToFront(window);
}

// The window manager may still be placing the window: the pointer is there only when the place it
// was sent to is still the place of the target.
void PointAt(const std::function<wxPoint()>& target) {
    wxUIActionSimulator simulator;
    Require(
        [&] {
            const wxPoint place = target();
            simulator.MouseMove(place);
            Pump();
            return wxGetMousePosition() == place && target() == place;
        },
        "the mouse to reach its target");
}

// A click that meets a window on its way to the screen may be lost without a trace: where no press
// came at all within this time it is sent once more. No two clicks this far apart make a double
// click.
constexpr std::chrono::milliseconds kLost{3000};
constexpr int kClickTries = 5;

void SendClick(bool twice) {
    wxUIActionSimulator simulator;
    twice ? simulator.MouseDblClick() : simulator.MouseClick();
}

void ClickAndWait(wxWindow* window, bool twice) {
    const WeakTop top(TopOf(window));
    const InputCounts& counts = WatchInput();
    const InputCounts before = counts;
    const int clicks = twice ? 2 : 1;
    const std::string name = Named(window);
    const auto isHandled = [&] {
        return counts.mouseReleases >= before.mouseReleases + clicks ||
               (counts.mousePresses >= before.mousePresses + clicks && Gone(top));
    };
    for (int i = 0; i < kClickTries && counts.mousePresses == before.mousePresses; ++i) {
        SendClick(twice);
        if (ComesTrue(isHandled, kLost)) {
            return;
        }
    }
    Require(isHandled, "the click on " + name + " to be handled");
}

void Stroke(const std::function<bool(wxUIActionSimulator&)>& send, const std::string& what) {
    wxWindow* const focus = wxWindow::FindFocus();
    const WeakTop top(focus == nullptr ? nullptr : TopOf(focus));
    const InputCounts& counts = WatchInput();
    const int presses = counts.keyPresses;
    const int releases = counts.keyReleases;
    wxUIActionSimulator simulator;
    if (!send(simulator)) {
        throw std::runtime_error("the keyboard has no " + what);
    }
    Require(
        [&] { return counts.keyPresses > presses && (counts.keyReleases > releases || Gone(top)); },
        what + " to be handled");
}

} // namespace

void BringToFront(wxWindow* window) {
    wxTopLevelWindow* const top = TopOf(window);
    WatchInput();
    Require([top] { return top->IsShown(); }, Named(top) + " to be shown");
    if (!top->IsActive()) {
        top->Raise();
    }
    Require([top] { return top->IsActive(); }, Named(top) + " to be the active window");
}

bool HasFocus(const wxWindow* window) {
    const wxWindow* const focus = wxWindow::FindFocus();
    return focus != nullptr &&
           (focus == window || window->IsDescendant(const_cast<wxWindow*>(focus)));
}

void FocusOn(wxWindow* window) {
    RequireClickable(window);
    window->SetFocus();
    Require([window] { return HasFocus(window); }, Named(window) + " to have the focus");
}

void ClickOn(wxWindow* window, const wxPoint& offset) {
    RequireClickable(window);
    PointAt([&] { return TargetOf(window, offset); });
    ClickAndWait(window, false);
}

void DoubleClickOn(wxWindow* window, const wxPoint& offset) {
    RequireClickable(window);
    PointAt([&] { return TargetOf(window, offset); });
    ClickAndWait(window, true);
}

void ClickAt(wxWindow* window, const wxPoint& screen) {
    RequireClickable(window);
    PointAt([&] { return screen; });
    ClickAndWait(window, false);
}

void DoubleClickAt(wxWindow* window, const wxPoint& screen) {
    RequireClickable(window);
    PointAt([&] { return screen; });
    ClickAndWait(window, true);
}

void Type(std::string_view text) {
    for (const char letter : text) {
        const std::string one(1, letter);
        Stroke([&](wxUIActionSimulator& simulator) { return simulator.Text(one.c_str()); },
               "key \"" + one + "\"");
    }
}

void Press(int key, int modifiers) {
    Stroke([&](wxUIActionSimulator& simulator) { return simulator.Char(key, modifiers); },
           "key " + std::to_string(key));
}

} // namespace window_test
