#include "bench/window/screen.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <poll.h>
#include <sys/wait.h>

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace bench {

namespace {

constexpr double kDrawn = 0.5;

// Windows go away while they are asked about.
int Ignore(Display* /*display*/, XErrorEvent* /*error*/) {
    return 0;
}

std::optional<std::string> Property(Display* display, Window window, const char* name) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* bytes = nullptr;
    if (XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, 1024, False,
                           AnyPropertyType, &type, &format, &count, &left, &bytes) != Success ||
        bytes == nullptr) {
        return {};
    }
    // The library hands out numbers of 32 bits as longs.
    const std::size_t item = format == 32 ? sizeof(long) : 1;
    std::string value(reinterpret_cast<const char*>(bytes), count * item);
    XFree(bytes);
    return value;
}

unsigned long Number(const std::optional<std::string>& value) {
    unsigned long number = 0;
    if (value && value->size() >= sizeof number) {
        std::copy_n(value->data(), sizeof number, reinterpret_cast<char*>(&number));
    }
    return number;
}

} // namespace

struct Screen::Deadline {
    pid_t process;
    Clock::time_point end = Clock::now() + std::chrono::minutes(1);

    void Check() const {
        siginfo_t ended{};
        waitid(P_PID, static_cast<id_t>(process), &ended, WEXITED | WNOHANG | WNOWAIT);
        if (ended.si_pid != 0) {
            throw std::runtime_error("a program has ended before it was measured");
        }
        if (Clock::now() > end) {
            throw std::runtime_error("no window came up in a minute");
        }
    }
};

Screen::Screen() : display_(XOpenDisplay(nullptr)), root_(0) {
    int errors = 0;
    if (display_ == nullptr || XDamageQueryExtension(display_, &damageEvents_, &errors) == False) {
        throw std::runtime_error("no display that tells what is drawn");
    }
    XSetErrorHandler(Ignore);
    root_ = DefaultRootWindow(display_);
    XSelectInput(display_, root_, SubstructureNotifyMask | PropertyChangeMask);
    XSync(display_, False);
}

Screen::~Screen() {
    XCloseDisplay(display_);
}

pid_t Screen::ProcessOf(unsigned long window) const {
    return static_cast<pid_t>(Number(Property(display_, window, "_NET_WM_PID")));
}

std::string Screen::TitleOf(unsigned long window) const {
    return Property(display_, window, "_NET_WM_NAME").value_or("");
}

unsigned long Screen::Active() const {
    return Number(Property(display_, root_, "_NET_ACTIVE_WINDOW"));
}

// Takes what the display has to tell; waits a moment when that is nothing.
void Screen::Look(const Deadline& deadline) {
    if (XPending(display_) == 0) {
        pollfd waiting{ConnectionNumber(display_), POLLIN, 0};
        poll(&waiting, 1, 100);
        deadline.Check();
    }
    while (XPending(display_) > 0) {
        XEvent event;
        XNextEvent(display_, &event);
        if (event.type == CreateNotify && event.xcreatewindow.override_redirect == False) {
            const Window window = event.xcreatewindow.window;
            XDamageCreate(display_, window, XDamageReportRawRectangles);
            drawn_.try_emplace(window, 0.0);
        } else if (event.type == damageEvents_ + XDamageNotify) {
            const auto& damage = reinterpret_cast<const XDamageNotifyEvent&>(event);
            const auto area = [](const XRectangle& part) {
                return double{1} * part.width * part.height;
            };
            ++drawings_;
            drawn_[damage.drawable] += area(damage.area) / std::max(area(damage.geometry), 1.0);
        }
    }
}

void Screen::WaitForDrawn(pid_t process, const std::string& title) {
    const Deadline deadline{process};
    for (;;) {
        Look(deadline);
        for (const auto& [window, part] : drawn_) {
            if (part >= kDrawn && ProcessOf(window) == process &&
                TitleOf(window).find(title) != std::string::npos) {
                return;
            }
        }
    }
}

void Screen::WaitForKeys(pid_t process) {
    const Deadline deadline{process};
    while (ProcessOf(Active()) != process) {
        Look(deadline);
    }
}

void Screen::Press(const char* key, bool control) {
    const auto code = [this](const char* name) {
        return XKeysymToKeycode(display_, XStringToKeysym(name));
    };
    if (control) {
        XTestFakeKeyEvent(display_, code("Control_L"), True, CurrentTime);
    }
    XTestFakeKeyEvent(display_, code(key), True, CurrentTime);
    XTestFakeKeyEvent(display_, code(key), False, CurrentTime);
    if (control) {
        XTestFakeKeyEvent(display_, code("Control_L"), False, CurrentTime);
    }
    XSync(display_, False);
}

void Screen::PressAndSee(pid_t process, const char* key, bool control) {
    const Deadline deadline{process};
    const int before = drawings_;
    Press(key, control);
    while (drawings_ == before) {
        Look(deadline);
    }
}

void Screen::Forget() {
    XSync(display_, True);
    drawn_.clear();
}

} // namespace bench
