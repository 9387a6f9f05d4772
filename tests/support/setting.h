// A variable of the environment that a test sets.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace test {

/// Holds for as long as this object lives; then the variable is as it was before.
class Setting {
public:
    Setting(const char* name, const std::string& value) : name_(name) {
        if (const char* const before = std::getenv(name)) {
            before_ = before;
        }
        setenv(name, value.c_str(), 1);
    }
    ~Setting() {
        if (before_) {
            setenv(name_, before_->c_str(), 1);
        } else {
            unsetenv(name_);
        }
    }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

private:
    const char* name_;
    std::optional<std::string> before_;
};

} // namespace test
