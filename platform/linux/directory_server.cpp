#include "platform/linux/directory_server.h"

#include "platform/linux/server_order.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <memory>
#include <random>
#include <sstream>
#include <string_view>
#include <vector>

#include <arpa/nameser.h>
#include <fcntl.h>
#include <ldap.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <resolv.h>
#include <sys/socket.h>
#include <unistd.h>

namespace platform {

namespace {

// One service record's data: priority, weight, port, each of 16 bits, and the host's name.
bool ReadServer(const ns_msg& message, const ns_rr& record, DirectoryServer& server) {
    constexpr int kFixedSize = 6;
    if (ns_rr_type(record) != ns_t_srv || ns_rr_rdlen(record) <= kFixedSize) {
        return false;
    }
    const unsigned char* const data = ns_rr_rdata(record);
    std::array<char, NS_MAXDNAME> name{};
    if (dn_expand(ns_msg_base(message), ns_msg_end(message), data + kFixedSize, name.data(),
                  static_cast<int>(name.size())) < 0) {
        return false;
    }
    server.priority = static_cast<int>(ns_get16(data));
    server.weight = static_cast<int>(ns_get16(data + 2));
    server.port = static_cast<int>(ns_get16(data + 4));
    server.host = name.data();
    return !server.host.empty();
}

std::vector<DirectoryServer> ServiceRecords(const std::string& name) {
    struct __res_state state {};
    if (res_ninit(&state) != 0) {
        return {};
    }
    std::vector<unsigned char> answer(NS_MAXMSG);
    const int length =
        res_nquery(&state, name.c_str(), ns_c_in, ns_t_srv, answer.data(), NS_MAXMSG);
    res_nclose(&state);
    ns_msg message{};
    if (length < 0 || ns_initparse(answer.data(), std::min(length, NS_MAXMSG), &message) != 0) {
        return {};
    }
    std::vector<DirectoryServer> servers;
    for (int index = 0; index < ns_msg_count(message, ns_s_an); ++index) {
        ns_rr record{};
        DirectoryServer server;
        if (ns_parserr(&message, ns_s_an, index, &record) == 0 &&
            ReadServer(message, record, server)) {
            servers.push_back(server);
        }
    }
    std::mt19937 random{std::random_device{}()};
    OrderServers(servers, random);
    return servers;
}

// "host:port". An address of several colons stands in brackets when a port follows it.
bool SplitPort(const std::string& text, DirectoryServer& server) {
    const std::size_t colon = text.rfind(':');
    const bool bracketed = text.starts_with('[') && text.rfind("]:") == colon - 1;
    if (colon == std::string::npos || (!bracketed && text.find(':') != colon)) {
        return false;
    }
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data() + colon + 1, end, server.port);
    server.host = bracketed ? text.substr(1, colon - 2) : text.substr(0, colon);
    return error == std::errc{} && rest == end && server.port > 0 && server.port <= 0xFFFF;
}

bool IsAddress(const std::string& host) {
    addrinfo hints{};
    hints.ai_flags = AI_NUMERICHOST;
    addrinfo* found = nullptr;
    if (getaddrinfo(host.c_str(), nullptr, &hints, &found) != 0) {
        return false;
    }
    freeaddrinfo(found);
    return true;
}

std::vector<DirectoryServer> ServersOf(const std::string& domain) {
    DirectoryServer named;
    if (SplitPort(domain, named)) {
        return {named};
    }
    // Nobody keeps records for an address, and a name server out of reach would be waited for.
    if (IsAddress(domain)) {
        return {DirectoryServer{.host = domain}};
    }
    for (const char* service : {"_ldap._tcp.dc._msdcs.", "_ldap._tcp."}) {
        if (std::vector<DirectoryServer> servers = ServiceRecords(service + domain);
            !servers.empty()) {
            return servers;
        }
    }
    return {DirectoryServer{.host = domain}};
}

// A line for each address, "address port host"; behind them, when there is none, "! reason".
std::string Addresses(const std::string& domain) {
    std::ostringstream lines;
    std::string reason;
    for (const DirectoryServer& server : ServersOf(domain)) {
        addrinfo hints{};
        hints.ai_socktype = SOCK_STREAM;
        addrinfo* found = nullptr;
        const int error = getaddrinfo(server.host.c_str(), nullptr, &hints, &found);
        if (error != 0) {
            reason = gai_strerror(error);
            continue;
        }
        for (const addrinfo* address = found; address != nullptr; address = address->ai_next) {
            std::array<char, NI_MAXHOST> text{};
            if (getnameinfo(address->ai_addr, address->ai_addrlen, text.data(), text.size(),
                            nullptr, 0, NI_NUMERICHOST) == 0) {
                lines << text.data() << ' ' << server.port << ' ' << server.host << '\n';
            }
        }
        freeaddrinfo(found);
    }
    return lines.str().empty() ? "! " + reason : lines.str();
}

struct Address {
    std::string text;
    int port = 0;
    std::string host;
};

std::vector<Address> AddressesFrom(const std::string& lines) {
    std::istringstream stream(lines);
    std::vector<Address> addresses;
    Address address;
    while (stream >> address.text >> address.port && stream.get() == ' ' &&
           std::getline(stream, address.host)) {
        addresses.push_back(address);
    }
    return addresses;
}

// A server that is down may take all the time it is given: the next ones need theirs.
Deadline ShareOf(Deadline deadline, std::size_t servers) {
    const Deadline now = std::chrono::steady_clock::now();
    return now + (deadline - now) / static_cast<Deadline::rep>(servers);
}

int OpenSocket(const Address& address, Deadline deadline, const KeepWaiting& keepWaiting) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    addrinfo* found = nullptr;
    if (getaddrinfo(address.text.c_str(), std::to_string(address.port).c_str(), &hints, &found) !=
        0) {
        errno = EHOSTUNREACH;
        return -1;
    }
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owner(found, &freeaddrinfo);
    const int descriptor = socket(found->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (descriptor < 0) {
        return -1;
    }
    int error = connect(descriptor, found->ai_addr, found->ai_addrlen) == 0 ? 0 : errno;
    if (error == EINPROGRESS) {
        socklen_t size = sizeof error;
        if (!WaitForDescriptor(descriptor, POLLOUT, deadline, keepWaiting)) {
            error = ETIMEDOUT;
        } else if (getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &size) != 0) {
            error = errno;
        }
    }
    if (error != 0) {
        close(descriptor);
        errno = error;
        return -1;
    }
    return descriptor;
}

SystemError NoServer(const std::string& reason) {
    const std::string text = ldap_err2string(LDAP_SERVER_DOWN);
    return {LDAP_SERVER_DOWN, reason.empty() ? text : text + ": " + reason};
}

} // namespace

ServerConnection ConnectToDirectory(const std::string& domain, Deadline deadline,
                                    const KeepWaiting& keepWaiting) {
    const std::optional<std::string> lines =
        ResultOfChild([&domain] { return Addresses(domain); }, deadline, keepWaiting);
    if (!lines) {
        return {.error = {LDAP_TIMEOUT, ldap_err2string(LDAP_TIMEOUT)}};
    }
    if (lines->starts_with("! ")) {
        return {.error = NoServer(lines->substr(2))};
    }
    const std::vector<Address> addresses = AddressesFrom(*lines);
    std::size_t left = addresses.size();
    std::string reason;
    for (const Address& address : addresses) {
        const int descriptor = OpenSocket(address, ShareOf(deadline, left--), keepWaiting);
        if (descriptor >= 0) {
            return {.descriptor = descriptor, .host = address.host, .port = address.port};
        }
        reason = SystemErrorFromNumber(errno).description;
    }
    return {.error = NoServer(reason)};
}

} // namespace platform
