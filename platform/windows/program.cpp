#include "platform/program.h"

#include "platform/windows/wide.h"

#include <windows.h>

namespace platform {

std::string ProgramFolder() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return Utf8FromWide(path.substr(0, path.rfind(L'\\')));
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.ends_with('\\') && !path.ends_with('/')) {
        path += '\\';
    }
    return path.append(name);
}

bool IsWriteProtected(const std::string& path) {
    const std::wstring wide = WideFromUtf8(path);
    const DWORD attributes = GetFileAttributesW(wide.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return false;
    }
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        return true;
    }
    const HANDLE file = CreateFileW(wide.c_str(), GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return GetLastError() == ERROR_ACCESS_DENIED;
    }
    CloseHandle(file);
    return false;
}

bool PathExists(const std::string& path) {
    return GetFileAttributesW(WideFromUtf8(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

} // namespace platform
