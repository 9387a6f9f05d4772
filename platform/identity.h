// Who runs the program, and where.
#pragma once

#include <optional>
#include <string>

namespace platform {

/// The current user's name followed by one NUL character. The NUL belongs to the text: the size
/// that the system hands back counts the terminator, and the files that carry the name have always
/// had it. On failure what the system left of the name.
std::string CurrentUserName();

/// The computer's name, or nothing when the system does not tell.
std::optional<std::string> ComputerName();

} // namespace platform
