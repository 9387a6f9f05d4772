#include "tests/lab/shares.h"

#include "platform/linux/child_work.h"
#include "platform/linux/network_path.h"
#include "platform/linux/smb_session.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include <fcntl.h>
#include <libsmbclient.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lab {

namespace fs = std::filesystem;

namespace {

volatile std::sig_atomic_t g_stop = 0;

/// In the reader's process: everything the file holds, or the error.
std::string Contents(const std::string& url) {
    int file = 0;
    // Between a renaming and its end, who forbids others to delete the file is put off.
    while ((file = smbc_open(url.c_str(), O_RDONLY, 0)) < 0 && errno == EBUSY) {
    }
    if (file < 0) {
        return std::string("error ") + std::strerror(errno);
    }
    std::string bytes;
    std::string piece(1 << 20, '\0');
    for (ssize_t length = 0; (length = smbc_read(file, piece.data(), piece.size())) > 0;) {
        bytes.append(piece, 0, static_cast<std::size_t>(length));
    }
    smbc_close(file);
    return bytes;
}

std::string ReadUntilStopped(const std::string& url, const std::vector<std::string>& versions) {
    int whole = 0;
    std::string faults;
    if (platform::smb::Begin() != 0) {
        faults = "no client";
    }
    while (g_stop == 0 && faults.empty()) {
        const std::string bytes = Contents(url);
        if (std::ranges::find(versions, bytes) != versions.end()) {
            ++whole;
        } else {
            faults = std::to_string(bytes.size()) + " bytes: " + bytes.substr(0, 60);
        }
    }
    return std::to_string(whole) + ' ' + faults;
}

/// What `ask` makes of the file's address, as a client of its own.
std::string AskAbout(const std::string& share, const std::string& name,
                     const std::function<std::string(const char* url)>& ask) {
    const std::string url = UrlOf(*platform::ParseNetworkPath(Share(share)), name);
    const auto work = [&] {
        return platform::smb::Begin() == 0 ? ask(url.c_str()) : std::string();
    };
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    return platform::ResultOfChild(work, deadline, [] { return true; }).value_or("");
}

} // namespace

std::string Share(const std::string& name) {
    return "\\\\dc1.corp.example" + (name.empty() ? "" : '\\' + name);
}

std::string SharePath(const std::string& name) {
    return std::string(std::getenv("LAB_SHARES")) + '/' + name;
}

int EntryCount(const std::string& name) {
    return static_cast<int>(std::distance(fs::directory_iterator(SharePath(name)), {}));
}

void EmptyShares() {
    for (const auto& share : fs::directory_iterator(SharePath(""))) {
        for (const auto& entry : fs::directory_iterator(share)) {
            fs::remove_all(entry);
        }
    }
}

void MakeReadOnly(const std::string& share, const std::string& name) {
    Control("read-only " + share + ' ' + name);
}

std::string Attribute(const std::string& share, const std::string& name,
                      const std::string& attribute) {
    return AskAbout(share, name, [&](const char* url) {
        std::string value(65536, '\0');
        const int length = smbc_getxattr(url, attribute.c_str(), value.data(), value.size());
        return length >= 0 ? std::string(value.c_str()) : std::string();
    });
}

void SetAttribute(const std::string& share, const std::string& name, const std::string& attribute,
                  const std::string& value) {
    const auto set = [&](const char* url) {
        return std::to_string(
            smbc_setxattr(url, attribute.c_str(), value.c_str(), value.size(), 0));
    };
    if (AskAbout(share, name, set) != "0") {
        throw std::runtime_error(name + " takes no " + attribute);
    }
}

void Control(const std::string& command) {
    if (std::system((std::string(std::getenv("LAB_CONTROL")) + ' ' + command).c_str()) != 0) {
        throw std::runtime_error("lab-control " + command + " failed");
    }
}

WithoutTicket::WithoutTicket() : ticket_(std::getenv("KRB5CCNAME")) {
    setenv("KRB5CCNAME", "/nonexistent", 1);
}

WithoutTicket::~WithoutTicket() {
    setenv("KRB5CCNAME", ticket_.c_str(), 1);
}

SmallDisk::SmallDisk(std::string path) : path_(std::move(path)) {
    fs::create_directory(path_);
    if (mount("tmpfs", path_.c_str(), "tmpfs", 0, "size=1m,mode=0777") != 0) {
        throw std::runtime_error("no small disk");
    }
}

SmallDisk::~SmallDisk() {
    umount2(path_.c_str(), MNT_DETACH);
}

MidCopy::MidCopy(const std::string& share, std::function<void()> act)
    : path_(SharePath(share)), act_(std::move(act)) {}

bool MidCopy::Look() {
    for (const auto& entry : fs::directory_iterator(path_)) {
        if (!done_ && entry.path().filename().string().starts_with(".queueshift-") &&
            entry.file_size() > 0) {
            done_ = true;
            act_();
        }
    }
    return true;
}

Reader::Reader(const std::string& folder, const std::string& name,
               std::vector<std::string> versions) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        throw std::runtime_error("no pipe");
    }
    child_ = fork();
    if (child_ == 0) {
        std::signal(SIGTERM, [](int) { g_stop = 1; });
        const std::string result =
            ReadUntilStopped(UrlOf(*platform::ParseNetworkPath(folder), name), versions);
        _exit(write(ends[1], result.data(), result.size()) < 0 ? 1 : 0);
    }
    close(ends[1]);
    results_ = ends[0];
}

Reader::Seen Reader::Stop() {
    kill(child_, SIGTERM);
    std::string text(200, '\0');
    const ssize_t length = read(results_, text.data(), text.size());
    text.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    close(results_);
    waitpid(child_, nullptr, 0);
    child_ = -1;
    const auto blank = text.find(' ');
    if (blank == std::string::npos) {
        return {0, "the reader died"};
    }
    return {std::atoi(text.c_str()), text.substr(blank + 1)};
}

Reader::~Reader() {
    if (child_ > 0) {
        Stop();
    }
}

} // namespace lab
