#include "directory/queue_item.h"

namespace modADPrinters {

std::string QueueItem::Next(const std::optional<std::string>& name) {
    if (name) {
        name_ = *name;
    }
    std::string printer = name_;
    if (const std::size_t dash = name_.find('-'); dash != std::string::npos) {
        server_ = name_.substr(0, dash);
        printer = name_.substr(dash + 1);
    }
    return server_ + " >> " + printer;
}

} // namespace modADPrinters
