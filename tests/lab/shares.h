// The lab's shares, as the server's disk holds them, and what befalls them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace lab {

/// `\\dc1.corp.example\name`.
std::string Share(const std::string& name);

/// Where the server keeps it.
std::string SharePath(const std::string& name);

int EntryCount(const std::string& name);

/// Removes what the tests put into any of the shares.
void EmptyShares();

/// Sets the read-only attribute of a file on a share.
void MakeReadOnly(const std::string& share, const std::string& name);

/// One of the SMB client library's attributes of a file on a share, such as its rights; "" for
/// none.
std::string Attribute(const std::string& share, const std::string& name,
                      const std::string& attribute);
void SetAttribute(const std::string& share, const std::string& name, const std::string& attribute,
                  const std::string& value);

/// Runs lab-control.
void Control(const std::string& command);

/// The user has no Kerberos ticket while one of these lives.
class WithoutTicket {
public:
    WithoutTicket();
    ~WithoutTicket();
    WithoutTicket(const WithoutTicket&) = delete;
    WithoutTicket& operator=(const WithoutTicket&) = delete;

private:
    std::string ticket_;
};

/// A disk of a megabyte at `path`.
class SmallDisk {
public:
    explicit SmallDisk(std::string path);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    std::string path_;
};

/// Acts once, as soon as a copy into the share has brought some of its bytes there.
class MidCopy {
public:
    MidCopy(const std::string& share, std::function<void()> act);

    /// For calling again and again; always true.
    bool Look();
    [[nodiscard]] bool Done() const { return done_; }

private:
    std::string path_;
    std::function<void()> act_;
    bool done_ = false;
};

/// A client in a process of its own that opens the file over and over.
class Reader {
public:
    struct Seen {
        int whole = 0;      ///< how often it found one of `versions`
        std::string faults; ///< what else it found
    };

    Reader(const std::string& folder, const std::string& name, std::vector<std::string> versions);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    Seen Stop();

private:
    pid_t child_ = -1;
    int results_ = -1;
};

} // namespace lab
