// Putting a new file in the place of an old one in one step.
#pragma once

#include <windows.h>

#include <string>

namespace platform {

/// A file or search handle that closes itself.
class FileHandle {
public:
    explicit FileHandle(HANDLE handle) : handle_(handle) {}
    ~FileHandle() { Close(); }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    [[nodiscard]] bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE Get() const { return handle_; }
    void Close();

private:
    HANDLE handle_;
};

/// Why a file at `path` could not be written: ERROR_ACCESS_DENIED for a read-only file or a
/// folder, ERROR_PATH_NOT_FOUND for a missing folder above it; 0 when nothing speaks against it.
DWORD WriteObstacle(const std::wstring& path);

/// Creates an empty file of a fresh name beside `target` and returns its path. On failure "" and
/// the last error tells.
std::wstring CreateBeside(const std::wstring& target);

/// Flushes the file to the disk. Returns 0 or the last error.
DWORD FlushFile(const std::wstring& path);

/// Makes `temporary`, a file beside `target`, the target, whose attributes and access rights stay.
/// Returns 0 or the last error; then the target is as it was and `temporary` is still there.
DWORD ReplaceTarget(const std::wstring& temporary, const std::wstring& target);

} // namespace platform
