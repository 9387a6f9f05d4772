// The current user's Kerberos ticket for a directory server.
#pragma once

#include "platform/linux/child_work.h"

#include <optional>
#include <string>

namespace platform {

/// Sees to it that the credential cache holds a ticket for the LDAP service of `host`, so that a
/// later bind need not ask the network. Returns what went wrong, empty when nothing did; nothing at
/// all when the deadline passed or the wait was abandoned.
std::optional<std::string> FetchDirectoryTicket(const std::string& host, Deadline deadline,
                                                const KeepWaiting& keepWaiting);

} // namespace platform
