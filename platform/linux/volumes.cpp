#include "platform/volumes.h"

#include "platform/program.h"

#include <mntent.h>
#include <pwd.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string_view>

namespace platform {

namespace {

std::string HomeFolder() {
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home == '/') {
        return home;
    }
    const passwd* entry = getpwuid(geteuid());
    return entry == nullptr ? "/" : entry->pw_dir;
}

bool IsFolder(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Disks and shares with the administrator's files, as opposed to what the system mounts for its
/// own use.
bool IsUserVolume(const mntent& mount) {
    constexpr std::array kShares = {"nfs", "nfs4", "cifs", "smb3", "fuse.sshfs", "9p"};
    const std::string_view folder = mount.mnt_dir;
    for (const char* own : {"/boot", "/etc", "/proc", "/sys", "/dev", "/usr", "/snap", "/var"}) {
        if (folder.starts_with(own)) {
            return false;
        }
    }
    return std::string_view(mount.mnt_fsname).starts_with("/dev/") ||
           std::ranges::find(kShares, std::string_view(mount.mnt_type)) != kShares.end();
}

void AddVolume(std::vector<Volume>& volumes, const std::string& path) {
    const bool known = std::ranges::any_of(
        volumes, [&path](const Volume& volume) { return volume.rootPath == path; });
    if (!known && IsFolder(path)) {
        volumes.push_back({path, path});
    }
}

/// As a reader of the user's language looks names up, or without regard to case where the system
/// does not know that language.
bool ComesBefore(const std::string& one, const std::string& other) {
    int order = std::strcoll(one.c_str(), other.c_str());
    const char* locale = std::setlocale(LC_COLLATE, nullptr);
    if (locale == nullptr || std::strcmp(locale, "C") == 0) {
        order = strcasecmp(one.c_str(), other.c_str());
    }
    return order != 0 ? order < 0 : one < other;
}

/// The names in `path` that `wanted` takes, hidden ones apart.
template <class Wanted> std::vector<std::string> NamesIn(const std::string& path, Wanted wanted) {
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(path, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::string name = entry->path().filename().string();
        if (!name.starts_with('.') && wanted(*entry, name)) {
            names.push_back(std::move(name));
        }
    }
    std::ranges::sort(names, ComesBefore);
    return names;
}

bool EndsWithoutCase(const std::string& name, const std::string& extension) {
    return name.size() >= extension.size() &&
           strcasecmp(name.c_str() + (name.size() - extension.size()), extension.c_str()) == 0;
}

} // namespace

std::vector<Volume> Volumes() {
    std::vector<Volume> volumes;
    AddVolume(volumes, "/");
    AddVolume(volumes, HomeFolder());
    const std::unique_ptr<FILE, int (*)(FILE*)> table(setmntent("/proc/self/mounts", "r"),
                                                      endmntent);
    if (table) {
        while (const mntent* mount = getmntent(table.get())) {
            if (IsUserVolume(*mount)) {
                AddVolume(volumes, mount->mnt_dir);
            }
        }
    }
    return volumes;
}

std::string VolumePath(const Volume& volume) {
    return volume.rootPath;
}

std::vector<std::string> FoldersIn(const std::string& path) {
    return NamesIn(path, [](const auto& entry, const std::string&) {
        std::error_code error;
        return entry.is_directory(error);
    });
}

std::vector<std::string> FilesIn(const std::string& path, const std::string& extension) {
    return NamesIn(path, [&extension](const auto& entry, const std::string& name) {
        std::error_code error;
        return EndsWithoutCase(name, extension) && entry.is_regular_file(error);
    });
}

std::vector<std::string> FolderChain(const std::string& path) {
    std::vector<std::string> chain = {"/"};
    for (std::size_t at = 0; at < path.size();) {
        const auto end = std::min(path.find('/', at), path.size());
        if (end > at) {
            chain.push_back(JoinPath(chain.back(), std::string_view(path).substr(at, end - at)));
        }
        at = end + 1;
    }
    return chain;
}

std::string LastName(const std::string& path) {
    const auto end = path.find_last_not_of('/');
    if (end == std::string::npos) {
        return path;
    }
    const auto slash = path.rfind('/', end);
    const auto start = slash == std::string::npos ? 0 : slash + 1;
    return path.substr(start, end + 1 - start);
}

std::string StartFolder() {
    static const std::string start = [] {
        std::error_code error;
        const std::string current = std::filesystem::current_path(error).string();
        return error || current == "/" ? HomeFolder() : current;
    }();
    return start;
}

} // namespace platform
