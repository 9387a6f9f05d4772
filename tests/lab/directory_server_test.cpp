// Which server a name leads to, and what one that is down costs.
#include "platform/directory_service.h"
#include "platform/linux/directory_server.h"

#include "tests/lab/server_stand_in.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <ldap.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace lab {
namespace {

using namespace std::chrono_literals;

// Of the addresses that two.example has in the lab, the first one tried.
constexpr char kFirst[] = "127.0.0.1";
constexpr char kSecond[] = "127.0.0.9";

class Socket {
public:
    Socket() : descriptor_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
    ~Socket() { close(descriptor_); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    /// Takes as many connections as its queue holds, and accepts none.
    int Listen(const char* address, int port, int queue) {
        sockaddr_in place = Place(address, port);
        socklen_t size = sizeof place;
        if (bind(descriptor_, reinterpret_cast<sockaddr*>(&place), size) != 0 ||
            listen(descriptor_, queue) != 0 ||
            getsockname(descriptor_, reinterpret_cast<sockaddr*>(&place), &size) != 0) {
            throw std::runtime_error("no port to listen on");
        }
        return ntohs(place.sin_port);
    }

    /// Whether the connection is made soon.
    bool Connect(const char* address, int port) {
        const sockaddr_in place = Place(address, port);
        connect(descriptor_, reinterpret_cast<const sockaddr*>(&place), sizeof place);
        pollfd wanted{descriptor_, POLLOUT, 0};
        return poll(&wanted, 1, 200) > 0;
    }

private:
    static sockaddr_in Place(const char* address, int port) {
        sockaddr_in place{};
        place.sin_family = AF_INET;
        place.sin_port = htons(static_cast<std::uint16_t>(port));
        inet_pton(AF_INET, address, &place.sin_addr);
        return place;
    }

    int descriptor_;
};

TEST(DirectoryServer, OneThatIsDownLeavesTimeForTheNext) {
    Socket down;
    Socket up;
    const int port = down.Listen(kFirst, 0, 0);
    up.Listen(kSecond, port, 4);
    // Once its queue is full, the system lets every further attempt wait.
    std::array<Socket, 4> waiting;
    bool full = false;
    for (Socket& client : waiting) {
        full = !client.Connect(kFirst, port);
    }
    ASSERT_TRUE(full);
    const platform::Deadline deadline = std::chrono::steady_clock::now() + 4s;
    const platform::ServerConnection server = platform::ConnectToDirectory(
        "two.example:" + std::to_string(port), deadline, [] { return true; });
    EXPECT_LT(std::chrono::steady_clock::now(), deadline) << "nothing is left for Kerberos";
    ASSERT_GE(server.descriptor, 0) << server.error.description;
    sockaddr_in peer{};
    socklen_t size = sizeof peer;
    getpeername(server.descriptor, reinterpret_cast<sockaddr*>(&peer), &size);
    close(server.descriptor);
    EXPECT_STREQ(inet_ntoa(peer.sin_addr), kSecond);
}

// Kerberos knows no server by its address: it is what refuses here, and the connection stands.
TEST(DirectoryServer, IsReachedByItsAddress) {
    for (const char* address : {"127.0.0.1", "127.0.0.1:389", "::1", "[::1]:389"}) {
        const auto service = platform::MakeDirectoryService([] { return true; });
        service->Bind(address);
        EXPECT_EQ(service->Error().number, LDAP_LOCAL_ERROR) << address;
        EXPECT_THAT(service->Error().description, testing::HasSubstr("not found in Kerberos"))
            << address;
    }
}

TEST(DirectoryServer, OneThatHangsUpDoesNotEndTheProgram) {
    std::signal(SIGPIPE, SIG_DFL);
    const StandIn server = StandIn::HangingUp();
    {
        const auto service = platform::MakeDirectoryService([] { return true; });
        service->Bind("dc1.corp.example:" + std::to_string(server.Port()));
        EXPECT_EQ(service->Error().number, LDAP_SERVER_DOWN) << service->Error().description;
    }
}

} // namespace
} // namespace lab
