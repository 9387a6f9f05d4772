#include "platform/windows/file_replacement.h"

#include <utility>

namespace platform {

namespace {

std::wstring FolderOf(const std::wstring& path) {
    const auto separator = path.find_last_of(L"\\/");
    return separator == std::wstring::npos ? L"." : path.substr(0, separator + 1);
}

} // namespace

void FileHandle::Close() {
    const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
    if (handle != INVALID_HANDLE_VALUE) {
        CloseHandle(handle);
    }
}

DWORD WriteObstacle(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = GetLastError();
        return error == ERROR_FILE_NOT_FOUND ? 0 : error;
    }
    constexpr DWORD kNeverWritten = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    if ((attributes & kNeverWritten) != 0) {
        return ERROR_ACCESS_DENIED;
    }
    // A replacement would not notice that the file itself may not be written.
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const FileHandle file(
        CreateFileW(path.c_str(), GENERIC_WRITE, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    return file.IsOpen() ? 0 : GetLastError();
}

std::wstring CreateBeside(const std::wstring& target) {
    const std::wstring stem =
        FolderOf(target) + L"queueshift-" + std::to_wstring(GetCurrentProcessId()) + L'-';
    for (unsigned attempt = 0; attempt < 1000; ++attempt) {
        std::wstring path = stem + std::to_wstring(attempt) + L".tmp";
        const FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                          FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file.IsOpen()) {
            return path;
        }
        if (GetLastError() != ERROR_FILE_EXISTS) {
            return {};
        }
    }
    return {};
}

DWORD FlushFile(const std::wstring& path) {
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr));
    return file.IsOpen() && FlushFileBuffers(file.Get()) ? 0 : GetLastError();
}

DWORD ReplaceTarget(const std::wstring& temporary, const std::wstring& target) {
    if (GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES &&
        ReplaceFileW(target.c_str(), temporary.c_str(), nullptr, 0, nullptr, nullptr)) {
        return 0;
    }
    // A new file, or a file system that replaces only by renaming.
    constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return MoveFileExW(temporary.c_str(), target.c_str(), kFlags) ? 0 : GetLastError();
}

} // namespace platform
