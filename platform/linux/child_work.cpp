#include "platform/linux/child_work.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string_view>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr char kProgress = '\0';

using Work = std::function<std::string(const Progress&)>;

/// The time by which the next byte must be there.
using Limit = std::function<Deadline()>;

void WriteAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return;
        }
        text.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
}

// Ends without the exit handlers: they belong to the process that was copied. Nor does it outlive
// that one, whose windows would stay on the screen for as long as somebody holds their connection.
[[noreturn]] void RunChild(const Work& work, int descriptor, pid_t parent) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) {
        _exit(EXIT_FAILURE);
    }
    int status = EXIT_FAILURE;
    try {
        WriteAll(descriptor,
                 work([descriptor] { WriteAll(descriptor, std::string_view(&kProgress, 1)); }));
        status = EXIT_SUCCESS;
    } catch (...) {
        // Told by the status: there is nobody here to tell more.
        status = EXIT_FAILURE;
    }
    _exit(status);
}

std::optional<std::string> ReadUntilEnd(int descriptor, const Limit& limit,
                                        const KeepWaiting& keepWaiting) {
    std::string text;
    std::array<char, 4096> buffer{};
    for (;;) {
        if (!WaitForDescriptor(descriptor, POLLIN, limit(), keepWaiting)) {
            return std::nullopt;
        }
        const ssize_t length = read(descriptor, buffer.data(), buffer.size());
        if (length == 0) {
            return text;
        }
        if (length > 0) {
            text.append(buffer.data(), static_cast<std::size_t>(length));
            text.erase(0, text.find_first_not_of(kProgress));
            if (!keepWaiting()) {
                return std::nullopt;
            }
        } else if (errno != EINTR) {
            return std::nullopt;
        }
    }
}

std::optional<std::string> Run(const Work& work, const Limit& limit,
                               const KeepWaiting& keepWaiting) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return std::nullopt;
    }
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child == 0) {
        RunChild(work, ends[1], parent);
    }
    close(ends[1]);
    std::optional<std::string> result;
    if (child > 0) {
        result = ReadUntilEnd(ends[0], limit, keepWaiting);
        if (!result) {
            kill(child, SIGKILL);
        }
        int status = 0;
        while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        if (!WIFEXITED(status) || WEXITSTATUS(status) != EXIT_SUCCESS) {
            result.reset();
        }
    }
    close(ends[0]);
    return result;
}

} // namespace

bool WaitForDescriptor(int descriptor, short events, Deadline deadline,
                       const KeepWaiting& keepWaiting) {
    for (;;) {
        pollfd wanted{descriptor, events, 0};
        if (poll(&wanted, 1, static_cast<int>(kSlice.count())) > 0) {
            return true;
        }
        if (!keepWaiting() || std::chrono::steady_clock::now() >= deadline) {
            return false;
        }
    }
}

std::optional<std::string> ResultOfChild(const std::function<std::string()>& work,
                                         Deadline deadline, const KeepWaiting& keepWaiting) {
    return Run([&work](const Progress&) { return work(); }, [deadline] { return deadline; },
               keepWaiting);
}

std::optional<std::string>
ResultOfLongChild(const std::function<std::string(const Progress&)>& work,
                  std::chrono::milliseconds silence, const KeepWaiting& keepWaiting) {
    return Run(
        work, [silence] { return std::chrono::steady_clock::now() + silence; }, keepWaiting);
}

} // namespace platform
