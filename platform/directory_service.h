// One query of a directory of published objects, step by step, and the domains of the network.
//
// The steps are those of the system's own automation objects, so that on Windows each is one call
// of theirs; on Linux the LDAP client library does the work in Bind and Execute. A step that fails
// replaces the error, a step that succeeds leaves it as it is, and none throws: whoever takes the
// steps decides when to look.
#pragma once

#include "platform/patience.h"
#include "platform/system_error.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace platform {

class DirectoryService {
public:
    DirectoryService() = default;
    virtual ~DirectoryService() = default;
    DirectoryService(const DirectoryService&) = delete;
    DirectoryService& operator=(const DirectoryService&) = delete;

    /// Binds to the directory of `domain`, a domain's name or a server's, as the current user.
    virtual void Bind(const std::string& domain) = 0;

    /// Opens the connection that the query goes through.
    virtual void Connect() = 0;

    /// Makes the query: name and printShareName of every published print queue.
    virtual void Prepare() = 0;

    /// Runs the query and fetches its records.
    virtual void Execute() = 0;

    /// The number of records found; after a failed execution that of the records which arrived.
    virtual long RecordCount() = 0;

    /// True when no record is current: at the end, or because there are none.
    virtual bool AtEnd() = 0;

    /// The first value of an attribute of the current record, UTF-8. Nothing when it has none.
    virtual std::optional<std::string> Value(const std::string& attribute) = 0;

    /// Makes the next record current. After a failure AtEnd is true, so that every walk ends.
    virtual void MoveNext() = 0;

    /// The last step's error that failed; number 0 while none did. The number and the description
    /// are those of the directory library (LDAP result codes on Linux, automation's on Windows).
    [[nodiscard]] const SystemError& Error() const { return error_; }

protected:
    void Fail(SystemError error) { error_ = std::move(error); }

private:
    SystemError error_;
};

/// The directory service of the system.
std::unique_ptr<DirectoryService> MakeDirectoryService(KeepWaiting keepWaiting);

/// The names of the domains the system knows: on Windows the children of the directory namespace in
/// its own order; on Linux the realms of the Kerberos configuration, the domains that winbind
/// trusts where it runs, and the resolver's search domains, each name once. Empty when there are
/// none or they cannot be asked for.
std::vector<std::string> DomainNames();

} // namespace platform
