#include "tests/lab/server_stand_in.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lab {

namespace {

sockaddr_in Loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

int Listen(int& port) {
    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = Loopback(0);
    socklen_t size = sizeof address;
    if (bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
        listen(listener, 4) != 0 ||
        getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
        throw std::runtime_error("no port to listen on");
    }
    port = ntohs(address.sin_port);
    return listener;
}

int ConnectTo(int port) {
    const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = Loopback(port);
    if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        _exit(1);
    }
    return server;
}

void WaitForEver() {
    for (;;) {
        pause();
    }
}

/// Passes on what has come from one end. False when that end has closed.
bool PassOn(int from, int to, std::size_t& room) {
    std::array<char, 16384> buffer{};
    const ssize_t length = read(from, buffer.data(), std::min(buffer.size(), room));
    if (length <= 0) {
        return false;
    }
    room -= static_cast<std::size_t>(length);
    return send(to, buffer.data(), static_cast<std::size_t>(length), MSG_NOSIGNAL) == length;
}

void PassOnUntil(std::size_t bytes, int client, int server) {
    std::size_t toServer = std::numeric_limits<std::size_t>::max();
    while (bytes > 0) {
        std::array<pollfd, 2> ends{pollfd{client, POLLIN, 0}, pollfd{server, POLLIN, 0}};
        poll(ends.data(), ends.size(), -1);
        if ((ends[0].revents != 0 && !PassOn(client, server, toServer)) ||
            (ends[1].revents != 0 && !PassOn(server, client, bytes))) {
            return;
        }
    }
}

} // namespace

template <class Serve> StandIn::StandIn(Serve serve) {
    const int listener = Listen(port_);
    const pid_t parent = getpid();
    process_ = fork();
    if (process_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() == parent) {
            serve(accept(listener, nullptr, nullptr));
        }
        _exit(0);
    }
    close(listener);
}

StandIn::~StandIn() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
}

StandIn StandIn::Silent() {
    return StandIn([](int) { WaitForEver(); });
}

StandIn StandIn::HangingUp() {
    return StandIn([](int client) { close(client); });
}

StandIn StandIn::Answering(const std::string& bytes) {
    return StandIn([bytes](int client) {
        std::array<char, 16384> request{};
        while (read(client, request.data(), request.size()) > 0) {
            send(client, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        }
    });
}

StandIn StandIn::CuttingOff(int port, std::size_t bytes) {
    return StandIn([port, bytes](int client) { PassOnUntil(bytes, client, ConnectTo(port)); });
}

StandIn StandIn::FallingSilent(int port, std::size_t bytes) {
    return StandIn([port, bytes](int client) {
        PassOnUntil(bytes, client, ConnectTo(port));
        WaitForEver();
    });
}

} // namespace lab
