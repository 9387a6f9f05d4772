// An error of the operating system, as a value.
#pragma once

#include <string>

namespace platform {

/// Number and description are the system's own (errno and strerror on Linux, the last-error code
/// and its system message on Windows). Number 0 means success. The description is UTF-8 and has
/// no line end.
struct SystemError {
    int number = 0;
    std::string description;

    explicit operator bool() const { return number != 0; }
};

/// The error with this number and the system's description of it.
SystemError SystemErrorFromNumber(int number);

} // namespace platform
