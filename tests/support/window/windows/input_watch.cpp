#include "tests/support/window/input_watch.h"

#include <windows.h>

namespace window_test {

namespace {

InputCounts& Counts() {
    static InputCounts counts;
    return counts;
}

bool IsModifier(WPARAM key) {
    return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU;
}

void CountMouse(const MSG& message, InputCounts& counts) {
    switch (message.message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_NCLBUTTONDOWN:
        ++counts.mousePresses;
        break;
    case WM_LBUTTONUP:
    case WM_NCLBUTTONUP:
        ++counts.mouseReleases;
        break;
    default:
        break;
    }
}

LRESULT CALLBACK OnGetMessage(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && wParam == PM_REMOVE) {
        CountMouse(*reinterpret_cast<const MSG*>(lParam), Counts());
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

// The toolkit takes the keys that work a dialog out of the queue in a hook of its own, so that they
// never come out as messages. Hooks run newest first: ours sees them all.
LRESULT CALLBACK OnKey(int code, WPARAM key, LPARAM details) {
    if (code == HC_ACTION && !IsModifier(key)) {
        const bool released = (HIWORD(details) & KF_UP) != 0;
        ++(released ? Counts().keyReleases : Counts().keyPresses);
    }
    return ::CallNextHookEx(nullptr, code, key, details);
}

} // namespace

const InputCounts& WatchInput() {
    static const bool installed = [] {
        const DWORD thread = ::GetCurrentThreadId();
        return ::SetWindowsHookExW(WH_GETMESSAGE, OnGetMessage, nullptr, thread) != nullptr &&
               ::SetWindowsHookExW(WH_KEYBOARD, OnKey, nullptr, thread) != nullptr;
    }();
    static_cast<void>(installed);
    return Counts();
}

} // namespace window_test
