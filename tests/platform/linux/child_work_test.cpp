// What becomes of the process that makes a call for another one.
#include "platform/linux/child_work.h"

#include <array>
#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace platform {
namespace {

using namespace std::chrono_literals;

Deadline Soon() {
    return std::chrono::steady_clock::now() + 10s;
}

bool Patient() {
    return true;
}

TEST(ChildWork, GivesTheResultHoweverLong) {
    const std::string text(300'000, 'x');
    EXPECT_EQ(ResultOfChild([&text] { return text; }, Soon(), Patient), text);
    EXPECT_EQ(ResultOfChild([] { return std::string(); }, Soon(), Patient), "");
}

TEST(ChildWork, GivesNothingWhenTheWorkFailsOrIsAbandoned) {
    EXPECT_EQ(
        ResultOfChild([]() -> std::string { throw std::runtime_error("no"); }, Soon(), Patient),
        std::nullopt);
    const auto wait = [] {
        pause();
        return std::string();
    };
    EXPECT_EQ(ResultOfChild(wait, Soon(), [] { return false; }), std::nullopt);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a process was left behind";
}

TEST(ChildWork, EndsWithTheProcessThatAskedForIt) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    const pid_t asking = fork();
    if (asking == 0) {
        ResultOfChild(
            [&ends] {
                static_cast<void>(write(ends[1], "!", 1) == 1);
                pause();
                return std::string();
            },
            Soon(), Patient);
        _exit(0);
    }
    close(ends[1]);
    char begun = 0;
    EXPECT_EQ(read(ends[0], &begun, 1), 1);
    kill(asking, SIGKILL);
    waitpid(asking, nullptr, 0);
    // Nobody holds the other end any more.
    pollfd wanted{ends[0], POLLIN, 0};
    EXPECT_EQ(poll(&wanted, 1, 5000), 1) << "it lives on";
    close(ends[0]);
}

} // namespace
} // namespace platform
