// Putting a new file in the place of an old one in one step.
#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

namespace platform {

/// An open file that closes itself.
class FileHandle {
public:
    FileHandle() = default;
    explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
    ~FileHandle();
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    FileHandle(FileHandle&& other) noexcept;
    FileHandle& operator=(FileHandle&& other) noexcept;

    [[nodiscard]] bool IsOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int Get() const { return descriptor_; }
    /// Returns 0 or errno; some file systems report a failed write only here.
    int Close();

private:
    int descriptor_ = -1;
};

/// A regular file, opened for reading. Returns 0 or errno; a folder is EISDIR, a pipe or device
/// EINVAL, because reading those could wait for ever.
int OpenRegularFile(const std::string& path, FileHandle& file, struct stat& status);

/// `path` with the symbolic links at its end followed, also when the last one leads nowhere yet.
/// Returns 0 or errno (ELOOP).
int FollowLinks(std::string& path);

enum class Flush { Yes, No };

/// A temporary file beside the target that becomes the target when it is committed, and goes away
/// when it is not. The order of calls is Open, writes into Descriptor(), Commit.
class FileReplacement {
public:
    FileReplacement() = default;
    /// Removes the temporary file of a replacement that was not committed.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Checks that the target may be replaced and creates the temporary file. A new target gets
    /// the permissions `newMode` less the user's mask. Returns 0 or errno.
    int Open(const std::string& target, mode_t newMode = 0666);

    [[nodiscard]] int Descriptor() const { return file_.Get(); }

    /// Writes all bytes. Returns 0 or errno.
    int Write(std::string_view bytes);

    /// Flushes to the disk, if wanted, and renames over the target. Returns 0 or errno. What was
    /// not flushed may be lost in a power cut, and the old file with it.
    int Commit(Flush flush = Flush::Yes);

private:
    int CreateBeside(mode_t mode);
    void KeepOwnerAndPermissions(const struct stat& old);

    std::string target_;
    std::string temporary_;
    FileHandle file_;
};

/// Why a file at `path` could not be written: EACCES for a protected file, EISDIR for a folder,
/// ENOENT for a missing folder above it and so on; 0 when nothing speaks against it.
int WriteObstacle(const std::string& path);

} // namespace platform
