// A folder as the administrator typed it into a field, and what deployment does there.
//
// On Windows the text is the system's own path. On Linux "\" and "/" separate alike, because an
// administrator types the same path on either system; a text that starts with two separators is a
// network path and never means a local folder: its share is reached by SMB, as the current user by
// Kerberos or as a guest, and what a share takes too long to answer fails. File names that are put
// into the folder are taken as they are, never translated.
#pragma once

#include "platform/patience.h"
#include "platform/system_error.h"

#include <string>
#include <string_view>

namespace platform {

class TypedFolder {
public:
    /// `typed` is UTF-8, used as it stands (blanks and trailing separators included). Where the
    /// system leaves room for it, `keepWaiting` is called while a share is slow.
    explicit TypedFolder(
        std::string_view typed, KeepWaiting keepWaiting = [] { return true; });

    /// True when the folder can be found and is a folder. "" does not exist.
    [[nodiscard]] bool Exists() const;

    /// True when a file of this name lies in the folder; another folder is none.
    [[nodiscard]] bool Holds(const std::string& name) const;

    /// Copies `sourcePath` (a path of the system) to `name` in the folder, replacing an existing
    /// file in one step where the system allows it. Fails on a read-only target (no write
    /// permission, or no write bit at all), and with "file exists" when source and target are the
    /// same file, however spelt. A failure leaves an existing target as it was and no half file.
    [[nodiscard]] SystemError CopyInto(const std::string& sourcePath,
                                       const std::string& name) const;

    /// Creates or replaces `name` with these bytes, under the same rules.
    [[nodiscard]] SystemError WriteInto(const std::string& name, std::string_view bytes) const;

private:
    std::string typed_;
    KeepWaiting keepWaiting_;
};

} // namespace platform
