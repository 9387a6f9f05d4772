#include "platform/linux/smb_session.h"

#include "platform/linux/smb_library.h"
#include "platform/linux/smb_rename.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include <fcntl.h>
#include <netdb.h>
#include <unistd.h>

namespace platform::smb {

namespace {

constexpr int kRequestLimit = 25'000; // milliseconds that one answer of the server may take

/// Asked only after Kerberos: an administrator without a ticket is a guest, without a password.
void NameGuest(const char* /*server*/, const char* /*share*/, char* /*workgroup*/,
               int /*workgroupSize*/, char* user, int userSize, char* password, int passwordSize) {
    std::snprintf(user, static_cast<std::size_t>(userSize), "guest");
    std::snprintf(password, static_cast<std::size_t>(passwordSize), "%s", "");
}

/// The library's log belongs to nobody who looks at a window.
void DropLog(void* /*unused*/, int /*level*/, const char* /*message*/) {}

int Result(bool done) {
    return done ? 0 : errno;
}

/// Whether the file could be written, asked without touching it. `exists` tells whether there is
/// one.
int WriteObstacle(const std::string& url, bool& exists) {
    const int file = GetLibrary().Open(url.c_str(), O_WRONLY, 0);
    exists = file >= 0;
    if (exists) {
        return Result(GetLibrary().Close(file) == 0);
    }
    return errno == ENOENT ? 0 : errno;
}

int CreateBeside(const NetworkPath& folder, std::string& name) {
    const std::string stem = ".queueshift-" + std::to_string(getppid()) + '-';
    for (int attempt = 0; attempt < 1000; ++attempt) {
        name = stem + std::to_string(attempt);
        const int file =
            GetLibrary().Open(UrlOf(folder, name).c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666);
        if (file >= 0 || errno != EEXIST) {
            return file;
        }
    }
    return -1;
}

/// A share that keeps no such times does no harm.
void SetTimes(const std::string& url, const struct stat& times) {
    std::array<timeval, 2> values{};
    values[0].tv_sec = times.st_atim.tv_sec;
    values[1].tv_sec = times.st_mtim.tv_sec;
    values[1].tv_usec = times.st_mtim.tv_nsec / 1000;
    static_cast<void>(GetLibrary().SetTimes(url.c_str(), values.data()));
}

constexpr const char* kRights = "system.nt_sec_desc.*";

/// Who may do what with the file: the entries of its list, sorted. None where the server keeps
/// none.
std::vector<std::string> RightsOf(const std::string& url) {
    std::string text(65536, '\0'); // as much as the protocol carries
    if (GetLibrary().GetAttribute(url.c_str(), kRights, text.data(), text.size() - 1) < 0) {
        return {};
    }
    std::vector<std::string> rights;
    std::istringstream parts(text.c_str());
    for (std::string part; std::getline(parts, part, ',');) {
        const auto mask = part.rfind('/') + 1;
        if (part.starts_with("ACL:") && mask != 0) {
            // The library writes the mask as a hexadecimal number, and reads a decimal one.
            const auto bits = std::strtoul(part.c_str() + mask, nullptr, 16);
            rights.push_back(part.substr(0, mask) + std::to_string(bits));
        }
    }
    std::ranges::sort(rights);
    return rights;
}

/// Gives the new file the rights of the old one, where they are not those of its folder anyway. A
/// server that lets nobody set them leaves the new file with its folder's, as it does any other.
void TakeOverRights(const std::string& from, const std::string& to) {
    const auto rights = RightsOf(from);
    if (rights.empty() || rights == RightsOf(to)) {
        return;
    }
    std::string text = "REVISION:1";
    for (const auto& entry : rights) {
        text += ',' + entry;
    }
    static_cast<void>(GetLibrary().SetAttribute(to.c_str(), kRights, text.c_str(), text.size(), 0));
}

} // namespace

void Load() {
    GetLibrary();
}

int Begin() {
    const Library& library = GetLibrary();
    if (!library.complete) {
        return ENOPKG;
    }
    SMBCCTX* const context = library.NewContext();
    if (context == nullptr) {
        return errno;
    }
    library.SetDebug(context, 0);
    library.SetLogCallback(context, nullptr, DropLog);
    library.SetTimeout(context, kRequestLimit);
    library.SetOptionUseKerberos(context, 1);
    library.SetOptionFallbackAfterKerberos(context, 1);
    library.SetFunctionAuthData(context, NameGuest);
    if (library.InitContext(context) == nullptr) {
        return errno;
    }
    library.SetContext(context);
    return 0;
}

int Explained(int error, const std::string& server) {
    if (error == ECONNABORTED) {
        return ECONNRESET;
    }
    addrinfo* addresses = nullptr;
    if ((error != EINVAL && error != ECONNREFUSED) ||
        getaddrinfo(server.c_str(), nullptr, nullptr, &addresses) != EAI_NONAME) {
        if (addresses != nullptr) {
            freeaddrinfo(addresses);
        }
        return error;
    }
    return ENONET;
}

int Stat(const std::string& url, struct stat& status) {
    return Result(GetLibrary().Stat(url.c_str(), &status) == 0);
}

int Replace(const NetworkPath& folder, const std::string& name, const Fill& fill,
            const struct stat* times) {
    const std::string target = UrlOf(folder, name);
    // A replacement would not notice that the file itself may not be written.
    bool exists = false;
    if (const int error = WriteObstacle(target, exists); error != 0) {
        return error;
    }
    std::string temporaryName;
    const int file = CreateBeside(folder, temporaryName);
    if (file < 0) {
        return errno;
    }
    const std::string temporary = UrlOf(folder, temporaryName);
    int error = fill(file);
    if (GetLibrary().Close(file) != 0 && error == 0) {
        error = errno;
    }
    if (error == 0 && exists) {
        TakeOverRights(target, temporary);
    }
    if (error == 0 && times != nullptr) {
        SetTimes(temporary, *times);
    }
    if (error == 0) {
        error = exists ? RenameOver(folder, temporaryName, name)
                       : Result(GetLibrary().Rename(temporary.c_str(), target.c_str()) == 0);
    }
    if (error != 0) {
        GetLibrary().Unlink(temporary.c_str());
    }
    return error;
}

int Writer::Write(std::string_view bytes) {
    using Clock = std::chrono::steady_clock;
    constexpr std::size_t kMost = std::size_t{64} << 20;
    const auto start = Clock::now();
    while (!bytes.empty()) {
        const ssize_t written = GetLibrary().Write(descriptor_, bytes.data(), bytes.size());
        if (written < 0) {
            return errno;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
        progress_();
    }
    if (size_ < kMost && Clock::now() - start < std::chrono::milliseconds(100)) {
        size_ *= 2;
    }
    return 0;
}

int List(const std::string& url, unsigned type, std::vector<std::string>& names) {
    const int folder = GetLibrary().OpenFolder(url.c_str());
    if (folder < 0) {
        return errno;
    }
    errno = 0;
    while (const smbc_dirent* entry = GetLibrary().ReadFolder(static_cast<unsigned>(folder))) {
        const std::string name(entry->name);
        if (entry->smbc_type == type && name != "." && name != "..") {
            names.push_back(name);
        }
    }
    GetLibrary().CloseFolder(folder);
    return 0;
}

} // namespace platform::smb
