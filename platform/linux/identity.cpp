#include "platform/identity.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <vector>

namespace platform {

namespace {

std::string AccountName() {
    std::vector<char> buffer(1024);
    passwd entry{};
    passwd* found = nullptr;
    while (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE) {
        buffer.resize(buffer.size() * 2);
    }
    if (found != nullptr) {
        return found->pw_name;
    }
    // A container may run under a number that no account has.
    const char* named = std::getenv("USER");
    return named == nullptr ? std::string() : named;
}

} // namespace

std::string CurrentUserName() {
    std::string name = AccountName();
    if (!name.empty()) {
        name += '\0';
    }
    return name;
}

std::optional<std::string> ComputerName() {
    std::array<char, 256> name{};
    if (gethostname(name.data(), name.size() - 1) != 0 || name.front() == '\0') {
        return std::nullopt;
    }
    return name.data();
}

} // namespace platform
