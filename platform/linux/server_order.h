// The order in which the servers of a domain are tried.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace platform {

constexpr int kLdapPort = 389;

/// A server as a service record of DNS names it.
struct DirectoryServer {
    int priority = 0; ///< the lowest is tried first
    int weight = 0;   ///< its share of the attempts among those of one priority
    std::string host;
    int port = kLdapPort;
};

/// By priority; among those of one priority by lot, in which a server of twice the weight is drawn
/// first twice as often, and one of weight 0 hardly ever.
void OrderServers(std::vector<DirectoryServer>& servers, std::mt19937& random);

} // namespace platform
