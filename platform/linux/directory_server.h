// Finding a directory server and connecting to it.
#pragma once

#include "platform/linux/child_work.h"
#include "platform/system_error.h"

#include <string>

namespace platform {

/// A connected socket, closed by its holder.
struct ServerConnection {
    int descriptor = -1; ///< non-blocking; -1 when there is none
    std::string host;    ///< the server's name, which Kerberos knows it by
    int port = 0;
    SystemError error; ///< why there is none
};

/// Connects to a domain controller of `domain`, found by the service records that the domain keeps
/// in DNS, or to the host of that name when it keeps none. "host:port" and "[address]:port" name a
/// server directly. The text is only ever looked up as a name.
ServerConnection ConnectToDirectory(const std::string& domain, Deadline deadline,
                                    const KeepWaiting& keepWaiting);

} // namespace platform
