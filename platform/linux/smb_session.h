// The SMB client library, for use in a child process only: its calls block, and what it keeps is
// global. All functions return 0 or errno.
#pragma once

#include "platform/linux/child_work.h"
#include "platform/linux/network_path.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/stat.h>

namespace platform::smb {

/// Loads the library, in the parent of the processes that use it: once for all of them.
void Load();

/// Makes the library ready: the current user's Kerberos credentials, else a guest. ENOPKG without
/// the library.
int Begin();

/// What to tell the user for `error`: the library calls a computer that nobody knows an invalid
/// argument, and a server that went away an abort of ours.
int Explained(int error, const std::string& server);

int Stat(const std::string& url, struct stat& status);

/// Writes to the descriptor of the library that it is given.
using Fill = std::function<int(int descriptor)>;

/// Puts a new file, written beside it by `fill`, in the place of `name` in one step of the
/// server's. The file gets the times of `times`, when there are any, and the rights of the
/// one it replaces.
int Replace(const NetworkPath& folder, const std::string& name, const Fill& fill,
            const struct stat* times);

/// Writes all bytes, in pieces as large as the network makes worth while.
class Writer {
public:
    Writer(int descriptor, const Progress& progress)
        : descriptor_(descriptor), progress_(progress) {}

    /// How many bytes are best given to the next Write.
    [[nodiscard]] std::size_t PieceSize() const { return size_; }
    int Write(std::string_view bytes);

private:
    int descriptor_;
    const Progress& progress_;
    std::size_t size_ = std::size_t{1} << 20;
};

/// The names of the entries of one of `types` (SMBC_DIR, SMBC_FILE_SHARE).
int List(const std::string& url, unsigned type, std::vector<std::string>& names);

} // namespace platform::smb
