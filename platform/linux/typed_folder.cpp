#include "platform/typed_folder.h"

#include "platform/linux/file_replacement.h"
#include "platform/linux/network_share.h"
#include "platform/program.h"

#include <fcntl.h>
#include <sys/sendfile.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace platform {

namespace {

/// A text that is no network path means this local folder.
std::string LocalFolder(std::string_view typed) {
    std::string folder(typed);
    std::ranges::replace(folder, '\\', '/');
    return folder;
}

/// Joined to no folder a name would mean the root; a network path without a computer is none.
bool IsNowhere(std::string_view typed) {
    return typed.empty() || IsNetworkPath(typed);
}

bool SameFile(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// Some file systems cannot take this road; the next one is tried from where this one stopped.
bool IsRefusal(int error) {
    return error == EINVAL || error == ENOSYS || error == EXDEV || error == EOPNOTSUPP ||
           error == EPERM;
}

enum class Road { Copy, Send, ReadAndWrite };

ssize_t Move(Road road, int from, FileReplacement& to) {
    constexpr std::size_t kMost = std::size_t{1} << 30;
    switch (road) {
    case Road::Copy:
        return copy_file_range(from, nullptr, to.Descriptor(), nullptr, kMost, 0);
    case Road::Send:
        return sendfile(to.Descriptor(), from, nullptr, kMost);
    case Road::ReadAndWrite:
        break;
    }
    std::array<char, 64 * 1024> buffer{};
    const ssize_t length = read(from, buffer.data(), buffer.size());
    if (length <= 0) {
        return length;
    }
    const int error = to.Write({buffer.data(), static_cast<std::size_t>(length)});
    errno = error;
    return error == 0 ? length : -1;
}

/// Returns 0 or errno.
int CopyBytes(int from, FileReplacement& to) {
    Road road = Road::Copy;
    for (;;) {
        const ssize_t moved = Move(road, from, to);
        if (moved > 0 || (moved < 0 && errno == EINTR)) {
            continue;
        }
        if (moved == 0) {
            // Files of virtual file systems say 0 here though they hold something to read.
            if (road == Road::ReadAndWrite) {
                return 0;
            }
            road = Road::ReadAndWrite;
        } else if (road != Road::ReadAndWrite && IsRefusal(errno)) {
            road = road == Road::Copy ? Road::Send : Road::ReadAndWrite;
        } else {
            return errno;
        }
    }
}

int CopyFileTo(const std::string& sourcePath, const std::string& targetPath) {
    FileHandle source;
    struct stat from {};
    if (const int error = OpenRegularFile(sourcePath, source, from); error != 0) {
        return error;
    }
    struct stat old {};
    if (stat(targetPath.c_str(), &old) == 0 && SameFile(from, old)) {
        return EEXIST;
    }
    FileReplacement target;
    if (const int error = target.Open(targetPath, from.st_mode & 0777); error != 0) {
        return error;
    }
    if (const int error = CopyBytes(source.Get(), target); error != 0) {
        return error;
    }
    // A source that shrank meanwhile would put half a file in the place of a whole one.
    struct stat copied {};
    if (fstat(target.Descriptor(), &copied) != 0 || copied.st_size < from.st_size) {
        return EIO;
    }
    // A copy is as old as what it was made from; a file system that cannot say so does no harm.
    const std::array<timespec, 2> times = {from.st_atim, from.st_mtim};
    static_cast<void>(futimens(target.Descriptor(), times.data()));
    // A copy can be made again from its source; waiting for the disk would double its time.
    return target.Commit(Flush::No);
}

int WriteFile(const std::string& path, std::string_view bytes) {
    FileReplacement target;
    int error = target.Open(path);
    if (error == 0) {
        error = target.Write(bytes);
    }
    return error == 0 ? target.Commit() : error;
}

} // namespace

TypedFolder::TypedFolder(std::string_view typed, KeepWaiting keepWaiting)
    : typed_(typed), keepWaiting_(std::move(keepWaiting)) {}

bool TypedFolder::Exists() const {
    if (const auto path = ParseNetworkPath(typed_)) {
        return IsNetworkFolder(*path, keepWaiting_);
    }
    struct stat status {};
    return !IsNowhere(typed_) && stat(LocalFolder(typed_).c_str(), &status) == 0 &&
           S_ISDIR(status.st_mode);
}

bool TypedFolder::Holds(const std::string& name) const {
    if (const auto path = ParseNetworkPath(typed_)) {
        return NetworkFolderHolds(*path, name, keepWaiting_);
    }
    struct stat status {};
    return !IsNowhere(typed_) && stat(JoinPath(LocalFolder(typed_), name).c_str(), &status) == 0 &&
           !S_ISDIR(status.st_mode);
}

SystemError TypedFolder::CopyInto(const std::string& sourcePath, const std::string& name) const {
    if (const auto path = ParseNetworkPath(typed_)) {
        return CopyToNetwork(sourcePath, *path, name, keepWaiting_);
    }
    return SystemErrorFromNumber(
        IsNowhere(typed_) ? ENOENT : CopyFileTo(sourcePath, JoinPath(LocalFolder(typed_), name)));
}

SystemError TypedFolder::WriteInto(const std::string& name, std::string_view bytes) const {
    if (const auto path = ParseNetworkPath(typed_)) {
        return WriteToNetwork(bytes, *path, name, keepWaiting_);
    }
    return SystemErrorFromNumber(
        IsNowhere(typed_) ? ENOENT : WriteFile(JoinPath(LocalFolder(typed_), name), bytes));
}

} // namespace platform
