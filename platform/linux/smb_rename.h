// Renaming over an existing file of a share.
//
// The client library cannot: it deletes the target first, and when a client holds it open the old
// file is lost and the new one does not arrive. The protocol has a rename that replaces in one
// step, and so has the program smbclient, which is used here.
#pragma once

#include "platform/linux/network_path.h"

#include <string>

namespace platform::smb {

/// Puts the file `from` of the folder in the place of its file `to`. Returns 0 or errno: EBUSY when
/// somebody holds the target open for longer than the few seconds that this tries, ENOPKG without
/// smbclient. After a failure both files are as they were. Blocks; for a child process.
int RenameOver(const NetworkPath& folder, const std::string& from, const std::string& to);

} // namespace platform::smb
