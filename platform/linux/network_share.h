// Folders and files of network shares (SMB).
//
// The library waits without an end that we could set, so every call here runs in a child process,
// as the current user by Kerberos, else as a guest. Looking ends after ten seconds; a copy ends
// when nothing has moved for thirty. Errors are the system's numbers.
#pragma once

#include "platform/linux/network_path.h"
#include "platform/patience.h"
#include "platform/system_error.h"

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// True for a share, or a folder in it, that can be found.
bool IsNetworkFolder(const NetworkPath& path, const KeepWaiting& keepWaiting);

/// True when a file of this name lies in the folder.
bool NetworkFolderHolds(const NetworkPath& folder, const std::string& name,
                        const KeepWaiting& keepWaiting);

/// Puts the local file `sourcePath`, or `bytes`, in the place of `name` in the folder. Fails when
/// the target is read-only. Whoever opens the target meanwhile finds the old file or the new one; a
/// failure leaves the old one.
SystemError CopyToNetwork(const std::string& sourcePath, const NetworkPath& folder,
                          const std::string& name, const KeepWaiting& keepWaiting);
SystemError WriteToNetwork(std::string_view bytes, const NetworkPath& folder,
                           const std::string& name, const KeepWaiting& keepWaiting);

struct NetworkListing {
    SystemError error;
    std::vector<std::string> names; ///< sorted without regard to case
};

/// The shares of a computer, the folders of anything below; hidden shares (ending in "$") are left
/// out.
NetworkListing ListNetwork(const NetworkPath& path, const KeepWaiting& keepWaiting);

} // namespace platform
