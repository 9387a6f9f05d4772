// Which of a domain's servers is tried first, and which one next.
#include "platform/linux/server_order.h"

#include <map>

#include <gmock/gmock.h>

namespace platform {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

using Hosts = std::vector<std::string>;

Hosts HostsOf(const std::vector<DirectoryServer>& servers) {
    Hosts hosts;
    for (const DirectoryServer& server : servers) {
        hosts.push_back(server.host);
    }
    return hosts;
}

class ServerOrder : public testing::Test {
protected:
    Hosts Ordered(std::vector<DirectoryServer> servers) {
        OrderServers(servers, random_);
        return HostsOf(servers);
    }

    // How often, of all draws, the servers come out in each order.
    std::map<Hosts, double> Shares(const std::vector<DirectoryServer>& servers) {
        constexpr int kDraws = 20'000;
        std::map<Hosts, double> shares;
        for (int draw = 0; draw < kDraws; ++draw) {
            shares[Ordered(servers)] += 1.0 / kDraws;
        }
        return shares;
    }

    std::mt19937 random_{4711}; // the same draws in every run
};

// Far more than the deviation of so many draws.
constexpr double kNear = 0.02;

TEST_F(ServerOrder, IsThatOfThePrioritiesWhateverTheWeights) {
    for (int draw = 0; draw < 1000; ++draw) {
        ASSERT_THAT(Ordered({{20, 65535, "last"}, {0, 0, "first"}, {10, 100, "middle"}}),
                    ElementsAre("first", "middle", "last"));
    }
}

TEST_F(ServerOrder, OfOnePriorityFollowsTheShareOfTheWeights) {
    std::map<Hosts, double> shares = Shares({{0, 1, "light"}, {0, 3, "heavy"}});
    EXPECT_THAT((shares[{"heavy", "light"}]), DoubleNear(0.75, kNear));
    EXPECT_THAT((shares[{"light", "heavy"}]), DoubleNear(0.25, kNear));
}

TEST_F(ServerOrder, DrawsTheSecondAmongThoseThatAreLeft) {
    std::map<Hosts, double> shares = Shares({{0, 1, "a"}, {0, 2, "b"}, {0, 3, "c"}});
    EXPECT_EQ(shares.size(), 6U);
    EXPECT_THAT((shares[{"c", "b", "a"}]), DoubleNear(3.0 / 6 * 2 / 3, kNear));
    EXPECT_THAT((shares[{"c", "a", "b"}]), DoubleNear(3.0 / 6 * 1 / 3, kNear));
    EXPECT_THAT((shares[{"a", "b", "c"}]), DoubleNear(1.0 / 6 * 2 / 5, kNear));
}

TEST_F(ServerOrder, AWeightOfZeroIsNextToNever) {
    std::map<Hosts, double> shares = Shares({{0, 0, "spare"}, {0, 100, "used"}});
    EXPECT_GT((shares[{"used", "spare"}]), 0.99);
}

TEST_F(ServerOrder, WeightsOfZeroAloneAreDrawnAlike) {
    std::map<Hosts, double> shares = Shares({{0, 0, "one"}, {0, 0, "other"}});
    EXPECT_THAT((shares[{"one", "other"}]), DoubleNear(0.5, kNear));
}

TEST_F(ServerOrder, WeighsWithinAPriorityOnly) {
    std::map<Hosts, double> shares =
        Shares({{1, 900, "late 9"}, {0, 1, "early 1"}, {1, 100, "late 1"}, {0, 1, "early 2"}});
    EXPECT_EQ(shares.size(), 4U) << "an early one comes after a late one";
    EXPECT_THAT((shares[{"early 1", "early 2", "late 9", "late 1"}]), DoubleNear(0.45, kNear));
}

TEST_F(ServerOrder, KeepsEveryServerAsItWas) {
    std::vector<DirectoryServer> servers{
        {1, 5, "dc2", 3268}, {0, 7, "dc1", 389}, {1, 5, "dc2", 3268}};
    OrderServers(servers, random_);
    EXPECT_THAT(HostsOf(servers), ElementsAre("dc1", "dc2", "dc2"));
    EXPECT_EQ(servers[0].port, 389);
    EXPECT_EQ(servers[0].weight, 7);
    EXPECT_EQ(servers[2].port, 3268);
    EXPECT_EQ(servers[2].priority, 1);
    EXPECT_THAT(Ordered({}), ElementsAre());
    EXPECT_THAT(Ordered({{3, 0, "only"}}), ElementsAre("only"));
}

} // namespace
} // namespace platform
