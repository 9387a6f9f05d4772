// The print queues that a domain's directory publishes, and the domains of the network.
//
// A query runs on the window's own thread and lets pending events run meanwhile, so the user may do
// anything while it does: begin another one, open another document, close the window. Every query
// knows after each pause whether it is still wanted, and one that is not ends without a word and
// touches nothing that may be gone.
#pragma once

#include "platform/directory_service.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class wxGauge;
class wxOwnerDrawnComboBox;

namespace modADPrinters {

/// Fills `list` with one item "server >> printer" for each print queue that the directory of the
/// chosen domain publishes, in the directory's order, moving `progress` meanwhile. Tells the number
/// of records and any error in boxes; the list is empty after an error. A call that finds another
/// one filling the same list puts an end to that one.
void FillADPrinterList(wxOwnerDrawnComboBox& list, wxGauge& progress);

/// Moves the bar one step of 50, from the end back to the start, and lets pending events run.
void StepADProgress(wxGauge& progress);

/// Ends every query under way without a box: its list is empty then and its bar hidden.
void AbandonQueries();

/// Calls `action` at once, or when the queries under way have all returned.
void WhenNoQueryRuns(std::function<void()> action);

/// Tells the text of the chosen domain. The main window sets it, and takes it away with null.
void SetDomainSource(std::function<std::string()> source);

/// The domains that the network tells of, in its order; empty when it tells of none.
std::vector<std::string> DomainNames();

/// Lists the domains. Null stands for the system's own service.
using DomainLister = std::function<std::vector<std::string>()>;
void SetDomainLister(DomainLister lister);

/// Makes the service that a query asks. Null stands for the system's own.
using ServiceMaker =
    std::function<std::unique_ptr<platform::DirectoryService>(platform::KeepWaiting)>;
void SetServiceMaker(ServiceMaker maker);

} // namespace modADPrinters
