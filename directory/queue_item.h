// The item text of a published print queue.
#pragma once

#include <optional>
#include <string>

namespace modADPrinters {

/// Cuts the names of queues, "server-printer", one after the other.
class QueueItem {
public:
    /// The item "server >> printer". The server is what stands before the first "-" and the
    /// printer all behind it. Without a "-" nothing can be cut off as a server: the previous one
    /// stands, and the whole name is the printer. A record without a name is taken for the one
    /// before it.
    std::string Next(const std::optional<std::string>& name);

private:
    std::string name_;
    std::string server_;
};

} // namespace modADPrinters
