#include "platform/linux/smb_rename.h"

#include "platform/linux/file_replacement.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace platform::smb {

namespace {

using Arguments = std::vector<std::string>;

// In the library's own order: the user's ticket, a guest, nobody.
const std::array<Arguments, 3> kCredentials = {
    Arguments{"--use-kerberos=required", "--no-pass"},
    Arguments{"--use-kerberos=off", "--user=guest%"},
    Arguments{"--use-kerberos=off", "--user=%"},
};

constexpr std::string_view kStatus = "NT_STATUS_";
constexpr std::array<std::pair<std::string_view, int>, 7> kErrors = {{
    {"ACCESS_DENIED", EACCES},
    {"SHARING_VIOLATION", EBUSY},
    {"OBJECT_NAME_NOT_FOUND", ENOENT},
    {"OBJECT_PATH_NOT_FOUND", ENOENT},
    {"FILE_IS_A_DIRECTORY", EISDIR},
    {"DISK_FULL", ENOSPC},
    {"IO_TIMEOUT", ETIMEDOUT},
}};

std::string PathInShare(const NetworkPath& folder, const std::string& name) {
    std::string path;
    for (const auto& part : folder.folders) {
        path += '\\' + part;
    }
    return path + '\\' + name;
}

class SpawnActions {
public:
    SpawnActions() { posix_spawn_file_actions_init(&actions_); }
    ~SpawnActions() { posix_spawn_file_actions_destroy(&actions_); }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;

    void Use(int descriptor, int as) {
        posix_spawn_file_actions_adddup2(&actions_, descriptor, as);
    }
    [[nodiscard]] const posix_spawn_file_actions_t* Get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

struct Pipe {
    Pipe() {
        std::array<int, 2> ends{-1, -1};
        if (pipe2(ends.data(), O_CLOEXEC) == 0) {
            out = FileHandle(ends[0]);
            in = FileHandle(ends[1]);
        }
    }
    FileHandle out;
    FileHandle in;
};

/// Runs it with `input`, and returns what it wrote. `error` is 0 or errno.
std::string Run(Arguments arguments, const std::string& input, int& error) {
    Pipe to;
    Pipe from;
    SpawnActions actions;
    actions.Use(to.out.Get(), STDIN_FILENO);
    actions.Use(from.in.Get(), STDOUT_FILENO);
    actions.Use(from.in.Get(), STDERR_FILENO);
    std::vector<char*> texts;
    for (auto& argument : arguments) {
        texts.push_back(argument.data());
    }
    texts.push_back(nullptr);
    pid_t process = 0;
    error = posix_spawnp(&process, texts[0], actions.Get(), nullptr, texts.data(), environ);
    if (error != 0) {
        return {};
    }
    to.out.Close();
    from.in.Close();
    // One line always fits into a pipe that nobody has written to.
    if (write(to.in.Get(), input.data(), input.size()) < 0) {
        error = errno;
    }
    to.in.Close();
    std::string output;
    std::array<char, 1024> piece{};
    for (ssize_t length = 0; (length = read(from.out.Get(), piece.data(), piece.size())) > 0;) {
        output.append(piece.data(), static_cast<std::size_t>(length));
    }
    while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
    return output;
}

int ErrorIn(std::string_view output) {
    const auto at = output.find(kStatus);
    if (at == std::string_view::npos) {
        return 0;
    }
    output.remove_prefix(at + kStatus.size());
    for (const auto& [name, number] : kErrors) {
        if (output.starts_with(name)) {
            return number;
        }
    }
    return EIO;
}

int TryOnce(const std::string& service, const std::string& command) {
    for (const auto& credentials : kCredentials) {
        Arguments arguments = {"smbclient", "--configfile=/dev/null", service};
        arguments.insert(arguments.end(), credentials.begin(), credentials.end());
        int error = 0;
        const std::string output = Run(std::move(arguments), command, error);
        if (error != 0) {
            return error == ENOENT ? ENOPKG : error;
        }
        // Anything before the renaming itself may go better as somebody else.
        const bool connected = output.find("renaming files") != std::string::npos;
        if (const int status = ErrorIn(output); status == 0 || connected) {
            return status;
        }
    }
    return EACCES;
}

} // namespace

int RenameOver(const NetworkPath& folder, const std::string& from, const std::string& to) {
    const std::string service = "//" + folder.server + '/' + folder.share;
    const std::string command =
        "rename \"" + PathInShare(folder, from) + "\" \"" + PathInShare(folder, to) + "\" -f\n";
    // A server refuses while a client holds the target open, and that soon passes when it only
    // reads the file.
    constexpr int kAttempts = 20;
    int error = 0;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        error = TryOnce(service, command);
        if (error != EACCES && error != EBUSY) {
            return error;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return EBUSY;
}

} // namespace platform::smb
