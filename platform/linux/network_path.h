// Paths of network shares, as administrators type them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// `\\server\share\folder\...`, taken apart. UTF-8.
struct NetworkPath {
    std::string server;
    std::string share; ///< "" for the computer as a whole
    std::vector<std::string> folders;
};

/// True when the text starts with two separators, "\" or "/": then it never means a local folder.
bool IsNetworkPath(std::string_view typed);

/// Nothing when no server is named (also for the device names "." and "?"). Doubled separators
/// count once; "." and ".." are followed in the text, never out of the share.
std::optional<NetworkPath> ParseNetworkPath(std::string_view typed);

/// False for a name that no share can hold: with a character that separates or is forbidden there.
bool IsNetworkFileName(std::string_view name);

/// The path as it is typed: `\\server\share\folder`.
std::string TextOf(const NetworkPath& path);

/// The address that libsmbclient takes, with everything escaped that means something there;
/// `name`, when not empty, is a file or folder in `path`.
std::string UrlOf(const NetworkPath& path, std::string_view name = {});

} // namespace platform
