// An unprivileged user for the length of a scope, where a test is about permissions.
#pragma once

#include <grp.h>
#include <unistd.h>

#include <stdexcept>

namespace test {

/// As any other user than root the tests run as they are.
class AsNobody {
public:
    AsNobody() {
        constexpr uid_t kNobody = 65534;
        if (wasRoot_ &&
            (setgroups(0, nullptr) != 0 || setegid(kNobody) != 0 || seteuid(kNobody) != 0)) {
            throw std::runtime_error("cannot give up the rights of root");
        }
    }
    ~AsNobody() {
        if (wasRoot_ && (seteuid(0) != 0 || setegid(0) != 0)) {
            _exit(1); // later tests would fail for a reason that nobody finds
        }
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

private:
    const bool wasRoot_ = geteuid() == 0;
};

} // namespace test
