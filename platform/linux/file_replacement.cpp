#include "platform/linux/file_replacement.h"

#include "platform/program.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>
#include <vector>

namespace platform {

namespace {

constexpr mode_t kPermissions = 07777;

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

/// Access lists and labels are kept where the file system has them; a file without them is as
/// good as the user may make it.
void CopyExtendedAttributes(const std::string& from, int to) {
    if (listxattr(from.c_str(), nullptr, 0) <= 0) {
        return;
    }
    std::vector<char> names(64 * 1024);
    const ssize_t length = listxattr(from.c_str(), names.data(), names.size());
    std::vector<char> value(64 * 1024);
    for (ssize_t at = 0; at < length;) {
        const std::string name = &names[static_cast<std::size_t>(at)];
        const ssize_t size = getxattr(from.c_str(), name.c_str(), value.data(), value.size());
        if (size >= 0) {
            static_cast<void>(
                fsetxattr(to, name.c_str(), value.data(), static_cast<std::size_t>(size), 0));
        }
        at += static_cast<ssize_t>(name.size()) + 1;
    }
}

} // namespace

FileHandle::~FileHandle() {
    Close();
}

FileHandle::FileHandle(FileHandle&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

FileHandle& FileHandle::operator=(FileHandle&& other) noexcept {
    if (this != &other) {
        Close();
        descriptor_ = std::exchange(other.descriptor_, -1);
    }
    return *this;
}

int FileHandle::Close() {
    // After EINTR the descriptor is gone on this system: a second close could hit another file.
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor < 0 || close(descriptor) == 0 || errno == EINTR ? 0 : errno;
}

int OpenRegularFile(const std::string& path, FileHandle& file, struct stat& status) {
    file = FileHandle(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.IsOpen() || fstat(file.Get(), &status) != 0) {
        return errno;
    }
    if (S_ISDIR(status.st_mode)) {
        return EISDIR;
    }
    return S_ISREG(status.st_mode) ? 0 : EINVAL;
}

int FollowLinks(std::string& path) {
    constexpr int kMostLinks = 40; // the kernel's own limit
    for (int links = 0; links <= kMostLinks; ++links) {
        std::array<char, PATH_MAX> to{};
        const ssize_t length = readlink(path.c_str(), to.data(), to.size());
        if (length < 0) {
            return errno == EINVAL || errno == ENOENT ? 0 : errno;
        }
        const std::string target(to.data(), static_cast<std::size_t>(length));
        path = target.starts_with('/') ? target : JoinPath(FolderOf(path), target);
    }
    return ELOOP;
}

int WriteObstacle(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) == 0) {
        if (S_ISDIR(status.st_mode)) {
            return EISDIR;
        }
        if (!S_ISREG(status.st_mode)) {
            return EINVAL;
        }
        return IsWriteProtected(path) ? EACCES : 0;
    }
    if (errno != ENOENT) {
        return errno;
    }
    std::string target = path;
    if (const int error = FollowLinks(target); error != 0) {
        return error;
    }
    return stat(FolderOf(target).c_str(), &status) == 0 ? 0 : errno;
}

FileReplacement::~FileReplacement() {
    if (!temporary_.empty()) {
        unlink(temporary_.c_str());
    }
}

int FileReplacement::CreateBeside(mode_t mode) {
    // A short name of its own: the target's may be as long as the file system allows.
    const std::string stem = JoinPath(FolderOf(target_), ".queueshift-" + std::to_string(getpid()));
    for (unsigned attempt = 0; attempt < 1000; ++attempt) {
        std::string name = stem + '-' + std::to_string(attempt);
        file_ = FileHandle(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (file_.IsOpen()) {
            temporary_ = std::move(name);
            return 0;
        }
        if (errno != EEXIST && errno != EINTR) {
            return errno;
        }
    }
    return EEXIST;
}

void FileReplacement::KeepOwnerAndPermissions(const struct stat& old) {
    // Only root may give a file away; another user's new file belongs to its writer.
    const int given = fchown(file_.Get(), old.st_uid, old.st_gid);
    if (given != 0) {
        [[maybe_unused]] const int group = fchown(file_.Get(), static_cast<uid_t>(-1), old.st_gid);
    }
    CopyExtendedAttributes(target_, file_.Get());
    // Last, because a change of owner clears the set-id bits.
    [[maybe_unused]] const int changed = fchmod(file_.Get(), old.st_mode & kPermissions);
}

int FileReplacement::Open(const std::string& target, mode_t newMode) {
    if (const int error = WriteObstacle(target); error != 0) {
        return error;
    }
    target_ = target;
    if (const int error = FollowLinks(target_); error != 0) {
        return error;
    }
    struct stat old {};
    const bool replaces = stat(target_.c_str(), &old) == 0;
    // Nobody may look into the new file who could not look into the old one.
    if (const int error = CreateBeside(replaces ? 0600 : newMode); error != 0) {
        return error;
    }
    if (replaces) {
        KeepOwnerAndPermissions(old);
    }
    return 0;
}

int FileReplacement::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file_.Get(), bytes.data(), bytes.size());
        if (written >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

int FileReplacement::Commit(Flush flush) {
    while (flush == Flush::Yes && fsync(file_.Get()) != 0) {
        if (errno != EINTR) {
            return errno;
        }
    }
    if (const int error = file_.Close(); error != 0) {
        return error;
    }
    if (std::rename(temporary_.c_str(), target_.c_str()) != 0) {
        return errno;
    }
    temporary_.clear();
    // The new name is in place whether or not the folder reaches the disk before a power cut.
    const FileHandle folder(open(FolderOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (flush == Flush::Yes && folder.IsOpen()) {
        static_cast<void>(fsync(folder.Get()));
    }
    return 0;
}

} // namespace platform
