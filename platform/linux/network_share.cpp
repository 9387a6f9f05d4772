#include "platform/linux/network_share.h"

#include "platform/linux/file_replacement.h"
#include "platform/linux/smb_session.h"

#include <algorithm>
#include <cerrno>
#include <charconv>

#include <libsmbclient.h>
#include <strings.h>
#include <unistd.h>

namespace platform {

namespace {

using std::chrono::steady_clock;

constexpr std::chrono::seconds kLookLimit{10};
constexpr std::chrono::seconds kSilence{30};

int NumberIn(const std::optional<std::string>& result) {
    int number = ETIMEDOUT;
    if (result) {
        std::from_chars(result->data(), result->data() + result->size(), number);
    }
    return number;
}

/// Makes `look`, which returns 0 or errno, in a child.
int Look(const std::function<int()>& look, const KeepWaiting& keepWaiting) {
    smb::Load();
    const auto work = [&look] {
        const int error = smb::Begin();
        return std::to_string(error != 0 ? error : look());
    };
    return NumberIn(ResultOfChild(work, steady_clock::now() + kLookLimit, keepWaiting));
}

int StatusOf(const std::string& url, bool folder) {
    struct stat status {};
    const int error = smb::Stat(url, status);
    return error == 0 && S_ISDIR(status.st_mode) != folder ? ENOENT : error;
}

/// A source that shrinks meanwhile to less than `size` is an error: half a file must not take the
/// place of a whole one.
int CopyBytes(int from, off_t size, smb::Writer& to) {
    std::string buffer;
    off_t copied = 0;
    for (;;) {
        buffer.resize(to.PieceSize());
        const ssize_t length = read(from, buffer.data(), buffer.size());
        if (length == 0) {
            return copied < size ? EIO : 0;
        }
        if (length < 0 && errno == EINTR) {
            continue;
        }
        const int error =
            length < 0
                ? errno
                : to.Write(std::string_view(buffer).substr(0, static_cast<std::size_t>(length)));
        if (error != 0) {
            return error;
        }
        copied += length;
    }
}

int Copy(const std::string& sourcePath, const NetworkPath& folder, const std::string& name,
         const Progress& progress) {
    FileHandle source;
    struct stat status {};
    if (const int error = OpenRegularFile(sourcePath, source, status); error != 0) {
        return error;
    }
    const auto fill = [&](int descriptor) {
        smb::Writer writer(descriptor, progress);
        return CopyBytes(source.Get(), status.st_size, writer);
    };
    return smb::Replace(folder, name, fill, &status);
}

/// Makes `put`, which returns 0 or errno, in a child.
SystemError Put(const NetworkPath& folder, const std::string& name,
                const std::function<int(const Progress&)>& put, const KeepWaiting& keepWaiting) {
    if (folder.share.empty()) {
        return SystemErrorFromNumber(ENOENT);
    }
    if (!IsNetworkFileName(name)) {
        return SystemErrorFromNumber(EINVAL);
    }
    smb::Load();
    const auto work = [&](const Progress& progress) {
        const int error = smb::Begin();
        return std::to_string(error != 0 ? error : smb::Explained(put(progress), folder.server));
    };
    return SystemErrorFromNumber(NumberIn(ResultOfLongChild(work, kSilence, keepWaiting)));
}

bool LessWithoutCase(const std::string& one, const std::string& other) {
    return strcasecmp(one.c_str(), other.c_str()) < 0;
}

/// Error number, line end, and the names, each with one behind it: no name holds a line end.
std::string ListingText(const NetworkPath& path) {
    const bool computer = path.share.empty();
    std::vector<std::string> names;
    int error = smb::Begin();
    if (error == 0) {
        error = smb::Explained(smb::List(UrlOf(path), computer ? SMBC_FILE_SHARE : SMBC_DIR, names),
                               path.server);
    }
    if (computer) {
        std::erase_if(names, [](const std::string& name) { return name.ends_with('$'); });
    }
    std::ranges::sort(names, LessWithoutCase);
    std::string text = std::to_string(error) + '\n';
    for (const auto& name : names) {
        text += name + '\n';
    }
    return text;
}

std::vector<std::string> LinesBehindTheFirst(std::string_view text) {
    std::vector<std::string> lines;
    for (auto start = text.find('\n') + 1; start < text.size();) {
        const auto end = text.find('\n', start);
        lines.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

} // namespace

bool IsNetworkFolder(const NetworkPath& path, const KeepWaiting& keepWaiting) {
    return !path.share.empty() &&
           Look([&path] { return StatusOf(UrlOf(path), true); }, keepWaiting) == 0;
}

bool NetworkFolderHolds(const NetworkPath& folder, const std::string& name,
                        const KeepWaiting& keepWaiting) {
    return !folder.share.empty() &&
           Look([&] { return StatusOf(UrlOf(folder, name), false); }, keepWaiting) == 0;
}

SystemError CopyToNetwork(const std::string& sourcePath, const NetworkPath& folder,
                          const std::string& name, const KeepWaiting& keepWaiting) {
    return Put(
        folder, name,
        [&](const Progress& progress) { return Copy(sourcePath, folder, name, progress); },
        keepWaiting);
}

SystemError WriteToNetwork(std::string_view bytes, const NetworkPath& folder,
                           const std::string& name, const KeepWaiting& keepWaiting) {
    const auto put = [&](const Progress& progress) {
        const auto fill = [&](int descriptor) {
            return smb::Writer(descriptor, progress).Write(bytes);
        };
        return smb::Replace(folder, name, fill, nullptr);
    };
    return Put(folder, name, put, keepWaiting);
}

NetworkListing ListNetwork(const NetworkPath& path, const KeepWaiting& keepWaiting) {
    smb::Load();
    const auto result = ResultOfChild([&path] { return ListingText(path); },
                                      steady_clock::now() + kLookLimit, keepWaiting);
    NetworkListing listing{SystemErrorFromNumber(NumberIn(result)), {}};
    if (result) {
        listing.names = LinesBehindTheFirst(*result);
    }
    return listing;
}

} // namespace platform
