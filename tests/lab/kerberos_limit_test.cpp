// A Kerberos server that takes requests and never answers.
#include "platform/directory_service.h"
#include "tests/support/files.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <ldap.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace lab {
namespace {

// Nobody reads what arrives at either socket; the system itself takes the connections.
class SilentKerberos {
public:
    SilentKerberos() : stream_(Bind(SOCK_STREAM, 0)), datagrams_(Bind(SOCK_DGRAM, port_)) {
        if (listen(stream_, 8) != 0) {
            throw std::runtime_error("no port to listen on");
        }
    }
    ~SilentKerberos() {
        close(stream_);
        close(datagrams_);
    }
    SilentKerberos(const SilentKerberos&) = delete;
    SilentKerberos& operator=(const SilentKerberos&) = delete;

    [[nodiscard]] int Port() const { return port_; }

private:
    int Bind(int type, int port) {
        const int descriptor = socket(AF_INET, type | SOCK_CLOEXEC, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        if (bind(descriptor, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
            getsockname(descriptor, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
            throw std::runtime_error("no port to bind to");
        }
        port_ = ntohs(address.sin_port);
        return descriptor;
    }

    int port_ = 0;
    int stream_;
    int datagrams_;
};

// The library itself would go on for half a minute. For the name dc2 no ticket is there yet.
TEST(DirectoryKerberos, AServerThatNeverAnswersIsGivenUpWhileTheWaitGoesOn) {
    const SilentKerberos server;
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File("krb5.conf"),
                     "[libdefaults]\n    default_realm = CORP.EXAMPLE\n    rdns = false\n"
                     "[realms]\n    CORP.EXAMPLE = {\n        kdc = 127.0.0.1:" +
                         std::to_string(server.Port()) +
                         "\n    }\n[domain_realm]\n    .corp.example = CORP.EXAMPLE\n");
    const std::string before = std::getenv("KRB5_CONFIG");
    setenv("KRB5_CONFIG", folder.File("krb5.conf").c_str(), 1);
    int waits = 0;
    const auto service = platform::MakeDirectoryService([&waits] { return ++waits > 0; });
    service->Bind("dc2.corp.example:389");
    setenv("KRB5_CONFIG", before.c_str(), 1);
    EXPECT_EQ(service->Error().number, LDAP_TIMEOUT) << service->Error().description;
    EXPECT_GT(waits, 100) << "the window was left alone for long";
}

} // namespace
} // namespace lab
