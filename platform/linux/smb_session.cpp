#include "platform/linux/smb_session.h"

#include "platform/linux/smb_rename.h"

#include <array>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <libsmbclient.h>
#include <unistd.h>

namespace platform::smb {

namespace {

constexpr int kRequestLimit = 25'000; // milliseconds that one answer of the server may take

/// Asked only after Kerberos: an administrator without a ticket is a guest, without a password.
void NameGuest(const char* /*server*/, const char* /*share*/, char* /*workgroup*/,
               int /*workgroupSize*/, char* user, int userSize, char* password, int passwordSize) {
    std::snprintf(user, static_cast<std::size_t>(userSize), "guest");
    std::snprintf(password, static_cast<std::size_t>(passwordSize), "%s", "");
}

/// The library's log belongs to nobody who looks at a window.
void DropLog(void* /*unused*/, int /*level*/, const char* /*message*/) {}

int Result(bool done) {
    return done ? 0 : errno;
}

/// Whether the file could be written, asked without touching it. `exists` tells whether there is
/// one.
int WriteObstacle(const std::string& url, bool& exists) {
    const int file = smbc_open(url.c_str(), O_WRONLY, 0);
    exists = file >= 0;
    if (exists) {
        return Result(smbc_close(file) == 0);
    }
    return errno == ENOENT ? 0 : errno;
}

int CreateBeside(const NetworkPath& folder, std::string& name) {
    const std::string stem = ".queueshift-" + std::to_string(getppid()) + '-';
    for (int attempt = 0; attempt < 1000; ++attempt) {
        name = stem + std::to_string(attempt);
        const int file = smbc_open(UrlOf(folder, name).c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666);
        if (file >= 0 || errno != EEXIST) {
            return file;
        }
    }
    return -1;
}

/// A share that keeps no such times does no harm.
void SetTimes(const std::string& url, const struct stat& times) {
    std::array<timeval, 2> values{};
    values[0].tv_sec = times.st_atim.tv_sec;
    values[1].tv_sec = times.st_mtim.tv_sec;
    values[1].tv_usec = times.st_mtim.tv_nsec / 1000;
    static_cast<void>(smbc_utimes(url.c_str(), values.data()));
}

} // namespace

int Begin() {
    SMBCCTX* const context = smbc_new_context();
    if (context == nullptr) {
        return errno;
    }
    smbc_setDebug(context, 0);
    smbc_setLogCallback(context, nullptr, DropLog);
    smbc_setTimeout(context, kRequestLimit);
    smbc_setOptionUseKerberos(context, 1);
    smbc_setOptionFallbackAfterKerberos(context, 1);
    smbc_setFunctionAuthData(context, NameGuest);
    if (smbc_init_context(context) == nullptr) {
        return errno;
    }
    smbc_set_context(context);
    return 0;
}

int Stat(const std::string& url, struct stat& status) {
    return Result(smbc_stat(url.c_str(), &status) == 0);
}

int Replace(const NetworkPath& folder, const std::string& name, const Fill& fill,
            const struct stat* times) {
    const std::string target = UrlOf(folder, name);
    // A replacement would not notice that the file itself may not be written.
    bool exists = false;
    if (const int error = WriteObstacle(target, exists); error != 0) {
        return error;
    }
    std::string temporaryName;
    const int file = CreateBeside(folder, temporaryName);
    if (file < 0) {
        return errno;
    }
    const std::string temporary = UrlOf(folder, temporaryName);
    int error = fill(file);
    if (smbc_close(file) != 0 && error == 0) {
        error = errno;
    }
    if (error == 0 && times != nullptr) {
        SetTimes(temporary, *times);
    }
    if (error == 0) {
        error = exists ? RenameOver(folder, temporaryName, name)
                       : Result(smbc_rename(temporary.c_str(), target.c_str()) == 0);
    }
    if (error != 0) {
        smbc_unlink(temporary.c_str());
    }
    return error;
}

int Writer::Write(std::string_view bytes) {
    using Clock = std::chrono::steady_clock;
    constexpr std::size_t kMost = std::size_t{64} << 20;
    const auto start = Clock::now();
    while (!bytes.empty()) {
        const ssize_t written = smbc_write(descriptor_, bytes.data(), bytes.size());
        if (written < 0) {
            return errno;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
        progress_();
    }
    if (size_ < kMost && Clock::now() - start < std::chrono::milliseconds(100)) {
        size_ *= 2;
    }
    return 0;
}

int List(const std::string& url, unsigned type, std::vector<std::string>& names) {
    const int folder = smbc_opendir(url.c_str());
    if (folder < 0) {
        return errno;
    }
    errno = 0;
    while (const smbc_dirent* entry = smbc_readdir(static_cast<unsigned>(folder))) {
        const std::string name(entry->name);
        if (entry->smbc_type == type && name != "." && name != "..") {
            names.push_back(name);
        }
    }
    smbc_closedir(folder);
    return 0;
}

} // namespace platform::smb
