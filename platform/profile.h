// Profile (INI) files, key by key.
//
// On Windows these are the platform's own GetPrivateProfileStringA and WritePrivateProfileStringA;
// on Linux our implementation gives the same answers: sections and keys match without regard to
// case and the first match wins; blanks and tabs around keys and values are dropped and one pair of
// surrounding quotes (" or ') is stripped when a value is read; a line that starts with ";" is a
// comment; values are cut at size-1 bytes of the ANSI code page; new keys follow the last line of
// their section, new sections go to the end; lines end with CR LF; every byte that no write touches
// stays as it was. A file that begins with a UTF-16 or UTF-8 byte order mark is read and written
// back in that encoding.
//
// All texts are UTF-8 here; they pass through the ANSI code page on their way.
#pragma once

#include "platform/system_error.h"

#include <memory>
#include <string>
#include <string_view>

namespace platform::profile {

/// The value of a key, or "" when there is none.
struct ReadResult {
    std::string value;
    /// On Linux 0, or the errno of a file that could not be opened or read (a missing key is no
    /// error). On Windows the last-error code that the call itself set.
    int error = 0;
};

/// Reads keys of one file. On Linux the file is read and indexed once, at construction, so that a
/// document of 49 keys costs one pass over it.
class Reader {
public:
    /// `path` is a full path, UTF-8. A file that cannot be read is reported by every Read.
    explicit Reader(const std::string& path);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// `size` is the size of the caller's buffer in bytes with the terminator: the value is cut at
    /// size-1 bytes of the ANSI code page.
    [[nodiscard]] ReadResult Read(std::string_view section, std::string_view key,
                                  std::size_t size) const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

/// Collects writes to one file and puts them in place with one atomic replacement: a temporary file
/// beside it, flushed to the disk, then renamed over it; permissions, owner and symbolic links are
/// kept. On Windows the platform's functions work on a copy beside the file, which is flushed and
/// then replaces it; where no copy can be made beside it, on the file itself.
///
/// A protected file (no write permission for the user, or no write bit at all) fails every write
/// and stays whole.
class Update {
public:
    explicit Update(const std::string& path);
    /// An update that was never committed leaves the file as it was.
    ~Update();
    Update(const Update&) = delete;
    Update& operator=(const Update&) = delete;

    /// Sets the key, creating file, section and key as needed. Returns 0 or the system's error
    /// number; a failed write does not stop later ones.
    [[nodiscard]] int Write(std::string_view section, std::string_view key, std::string_view value);

    /// Puts what was written in place. Returns 0 or the system's error number; after an error the
    /// file is as it was before. Nothing written means nothing to do.
    [[nodiscard]] int Commit();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace platform::profile
