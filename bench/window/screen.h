// What a display tells of other programs' windows, and keys for them.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <map>
#include <string>

struct _XDisplay;

namespace bench {

class Screen {
public:
    Screen();
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// Returns as soon as a window of this process whose title holds `title` has been drawn: at
    /// least half of its area, since it was put up. Throws after a minute, or when the process
    /// ends.
    void WaitForDrawn(pid_t process, const std::string& title);
    /// Returns when a window of this process has the keys.
    void WaitForKeys(pid_t process);
    /// Presses and releases a key, Ctrl held down or not.
    void Press(const char* key, bool control = false);
    /// The same, and returns when the process has drawn what the key does.
    void PressAndSee(pid_t process, const char* key, bool control = false);
    /// Forgets what was seen.
    void Forget();

private:
    using Clock = std::chrono::steady_clock;
    struct Deadline;

    void Look(const Deadline& deadline);
    [[nodiscard]] pid_t ProcessOf(unsigned long window) const;
    [[nodiscard]] std::string TitleOf(unsigned long window) const;
    [[nodiscard]] unsigned long Active() const;

    _XDisplay* display_;
    unsigned long root_;
    int damageEvents_ = 0;
    std::map<unsigned long, double> drawn_; ///< the part of each window
    int drawings_ = 0;                      ///< by all windows so far
};

} // namespace bench
