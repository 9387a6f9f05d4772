#include "platform/program.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace platform {

std::string ProgramFolder() {
    std::array<char, PATH_MAX> path{};
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    if (length <= 0) {
        return ".";
    }
    const std::string program(path.data(), static_cast<std::size_t>(length));
    const auto slash = program.rfind('/');
    // The root itself keeps its only separator: without it there would be no path left.
    return slash == 0 ? "/" : program.substr(0, slash);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.ends_with('/')) {
        path += '/';
    }
    return path.append(name);
}

bool IsWriteProtected(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        return false;
    }
    constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    // The permission check alone would let root write anything.
    return (status.st_mode & kAnyWrite) == 0 ||
           faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
}

bool PathExists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

} // namespace platform
