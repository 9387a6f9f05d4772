// The running program's own folder: engine, control files, MDAC installers and help book are looked
// for there.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Full path without a trailing separator, UTF-8.
std::string ProgramFolder();

/// `folder` and `name` joined with the system's separator.
std::string JoinPath(std::string_view folder, std::string_view name);

/// True when the file exists and the current user may not write it (no permission, or no write bit
/// or the read-only attribute). `path` is UTF-8.
bool IsWriteProtected(const std::string& path);

/// True when something exists at `path`.
bool PathExists(const std::string& path);

} // namespace platform
