#include "platform/typed_folder.h"

#include "platform/windows/file_replacement.h"
#include "platform/windows/wide.h"

#include <optional>
#include <utility>

namespace platform {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Which file a path leads to, whatever way it is spelt.
struct FileIdentity {
    DWORD volume;
    DWORD indexHigh;
    DWORD indexLow;
    bool operator==(const FileIdentity&) const = default;
};

std::optional<FileIdentity> IdentityOf(const std::wstring& path) {
    const FileHandle file(
        CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    BY_HANDLE_FILE_INFORMATION information{};
    if (!file.IsOpen() || !GetFileInformationByHandle(file.Get(), &information)) {
        return std::nullopt;
    }
    return FileIdentity{information.dwVolumeSerialNumber, information.nFileIndexHigh,
                        information.nFileIndexLow};
}

/// Puts what `fill` writes in the place of `target`. `fill` takes the path to write to and returns
/// 0 or the last error.
template <class Fill> DWORD Replace(const std::wstring& target, Fill fill) {
    if (const DWORD error = WriteObstacle(target); error != 0) {
        return error;
    }
    const std::wstring temporary = CreateBeside(target);
    if (temporary.empty()) {
        const DWORD error = GetLastError();
        // Who may write the file but add none beside it gets it written in place.
        const bool exists = GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES;
        return error == ERROR_ACCESS_DENIED && exists ? fill(target) : error;
    }
    DWORD error = fill(temporary);
    if (error == 0) {
        error = ReplaceTarget(temporary, target);
    }
    if (error != 0) {
        // A copy of a read-only file is read-only and could not be deleted as it is.
        SetFileAttributesW(temporary.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(temporary.c_str());
    }
    return error;
}

DWORD CopyFileTo(const std::wstring& source, const std::wstring& target) {
    const auto from = IdentityOf(source);
    const auto to = IdentityOf(target);
    if (from && to && *from == *to) {
        return ERROR_FILE_EXISTS;
    }
    return Replace(target, [&source](const std::wstring& path) -> DWORD {
        return CopyFileW(source.c_str(), path.c_str(), FALSE) ? 0 : GetLastError();
    });
}

DWORD WriteBytes(const std::wstring& path, std::string_view bytes) {
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    const bool done =
        file.IsOpen() &&
        WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
        FlushFileBuffers(file.Get());
    return done ? 0 : GetLastError();
}

SystemError Result(DWORD error) {
    return SystemErrorFromNumber(static_cast<int>(error));
}

std::wstring PathIn(const std::string& folder, const std::string& name) {
    return WideFromUtf8(folder + '\\' + name);
}

} // namespace

TypedFolder::TypedFolder(std::string_view typed, KeepWaiting keepWaiting)
    : typed_(typed), keepWaiting_(std::move(keepWaiting)) {}

bool TypedFolder::Exists() const {
    const DWORD attributes = GetFileAttributesW(WideFromUtf8(typed_).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool TypedFolder::Holds(const std::string& name) const {
    // Joined to no folder the name would mean the root of the current drive.
    if (typed_.empty()) {
        return false;
    }
    const DWORD attributes = GetFileAttributesW(PathIn(typed_, name).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

SystemError TypedFolder::CopyInto(const std::string& sourcePath, const std::string& name) const {
    return Result(typed_.empty() ? ERROR_PATH_NOT_FOUND
                                 : CopyFileTo(WideFromUtf8(sourcePath), PathIn(typed_, name)));
}

SystemError TypedFolder::WriteInto(const std::string& name, std::string_view bytes) const {
    if (typed_.empty()) {
        return Result(ERROR_PATH_NOT_FOUND);
    }
    return Result(Replace(PathIn(typed_, name),
                          [bytes](const std::wstring& path) { return WriteBytes(path, bytes); }));
}

} // namespace platform
