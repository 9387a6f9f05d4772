#include "platform/volumes.h"

#include "platform/program.h"
#include "platform/windows/wide.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace platform {

namespace {

/// A drive without a disk is no question to the user.
class QuietErrors {
public:
    QuietErrors() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &old_); }
    ~QuietErrors() { SetThreadErrorMode(old_, nullptr); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    DWORD old_ = 0;
};

std::string VolumeLabel(const std::string& root) {
    std::array<wchar_t, MAX_PATH + 1> label{};
    GetVolumeInformationW(WideFromUtf8(root).c_str(), label.data(),
                          static_cast<DWORD>(label.size()), nullptr, nullptr, nullptr, nullptr, 0);
    return Utf8FromWide(label.data());
}

int CompareWithoutCase(const std::wstring& one, const std::wstring& other) {
    return CompareStringEx(LOCALE_NAME_USER_DEFAULT, LINGUISTIC_IGNORECASE, one.c_str(), -1,
                           other.c_str(), -1, nullptr, nullptr, 0) -
           CSTR_EQUAL;
}

bool EndsWithoutCase(const std::wstring& name, const std::wstring& extension) {
    return name.size() >= extension.size() &&
           CompareStringOrdinal(name.c_str() + (name.size() - extension.size()), -1,
                                extension.c_str(), -1, TRUE) == CSTR_EQUAL;
}

/// The names in `path` that `wanted` takes, hidden ones and those of the system apart.
template <class Wanted> std::vector<std::string> NamesIn(const std::string& path, Wanted wanted) {
    const QuietErrors quiet;
    std::vector<std::wstring> found;
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileW(WideFromUtf8(JoinPath(path, "*")).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        return {};
    }
    constexpr DWORD kUnseen = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    do {
        const std::wstring name = entry.cFileName;
        if (name != L"." && name != L".." && (entry.dwFileAttributes & kUnseen) == 0 &&
            wanted(name, (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)) {
            found.push_back(name);
        }
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    std::ranges::sort(found, [](const auto& one, const auto& other) {
        const int order = CompareWithoutCase(one, other);
        return order != 0 ? order < 0 : one < other;
    });
    std::vector<std::string> names;
    std::ranges::transform(found, std::back_inserter(names),
                           [](const std::wstring& name) { return Utf8FromWide(name); });
    return names;
}

bool IsSeparator(char character) {
    return character == '\\' || character == '/';
}

/// Length of the part that has nothing above it: "c:\", "\" or "\\server\share\".
std::size_t RootLength(const std::string& path) {
    if (path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1])) {
        const auto server = path.find_first_of("\\/", 2);
        const auto share =
            server == std::string::npos ? server : path.find_first_of("\\/", server + 1);
        return share == std::string::npos ? path.size() : share + 1;
    }
    if (path.size() >= 2 && path[1] == ':') {
        return path.size() >= 3 && IsSeparator(path[2]) ? 3 : 2;
    }
    return !path.empty() && IsSeparator(path[0]) ? 1 : 0;
}

} // namespace

std::vector<Volume> Volumes() {
    const QuietErrors quiet;
    std::vector<Volume> volumes;
    const DWORD drives = GetLogicalDrives();
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        if ((drives >> (letter - 'a') & 1) == 0) {
            continue;
        }
        const std::string drive{letter, ':'};
        const std::string root = drive + '\\';
        const std::string label = VolumeLabel(root);
        volumes.push_back({label.empty() ? drive : drive + " [" + label + ']', root});
    }
    return volumes;
}

std::string VolumePath(const Volume& volume) {
    return volume.label.substr(0, 1) + ":\\";
}

std::vector<std::string> FoldersIn(const std::string& path) {
    return NamesIn(path, [](const std::wstring&, bool isFolder) { return isFolder; });
}

std::vector<std::string> FilesIn(const std::string& path, const std::string& extension) {
    const std::wstring wideExtension = WideFromUtf8(extension);
    return NamesIn(path, [&wideExtension](const std::wstring& name, bool isFolder) {
        return !isFolder && EndsWithoutCase(name, wideExtension);
    });
}

std::vector<std::string> FolderChain(const std::string& path) {
    const std::size_t root = RootLength(path);
    std::vector<std::string> chain = {path.substr(0, root)};
    for (std::size_t at = root; at < path.size();) {
        const auto end = std::min(path.find_first_of("\\/", at), path.size());
        if (end > at) {
            chain.push_back(JoinPath(chain.back(), std::string_view(path).substr(at, end - at)));
        }
        at = end + 1;
    }
    return chain;
}

std::string LastName(const std::string& path) {
    const std::size_t root = RootLength(path);
    const auto end = path.find_last_not_of("\\/");
    if (end == std::string::npos || end < root) {
        return path;
    }
    const auto separator = path.find_last_of("\\/", end);
    const auto start = separator == std::string::npos || separator < root ? root : separator + 1;
    return path.substr(start, end + 1 - start);
}

std::string StartFolder() {
    static const std::string start = [] {
        std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
        folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
        std::string current = Utf8FromWide(folder);
        if (current.size() > RootLength(current)) {
            return current;
        }
        std::array<wchar_t, 32768> home{};
        const DWORD length =
            GetEnvironmentVariableW(L"USERPROFILE", home.data(), static_cast<DWORD>(home.size()));
        return length == 0 ? current : Utf8FromWide({home.data(), length});
    }();
    return start;
}

} // namespace platform
