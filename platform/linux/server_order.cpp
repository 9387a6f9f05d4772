#include "platform/linux/server_order.h"

#include <algorithm>
#include <utility>

namespace platform {

void OrderServers(std::vector<DirectoryServer>& servers, std::mt19937& random) {
    // So that those of weight 0 are drawn by lot as well where there are no others.
    constexpr double kLeast = 1e-3;
    std::vector<std::pair<double, DirectoryServer>> drawn;
    drawn.reserve(servers.size());
    for (DirectoryServer& server : servers) {
        // Of several exponential times each is the shortest as often as its rate's share says.
        const double time = std::exponential_distribution<>(server.weight + kLeast)(random);
        drawn.emplace_back(time, std::move(server));
    }
    std::ranges::sort(drawn, {},
                      [](const auto& one) { return std::pair(one.second.priority, one.first); });
    std::ranges::transform(drawn, servers.begin(), [](auto& one) { return std::move(one.second); });
}

} // namespace platform
