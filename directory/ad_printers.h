// The print queues that a domain's directory publishes, and the domains of the network.
#pragma once

#include <string>
#include <vector>

class wxGauge;
class wxOwnerDrawnComboBox;

namespace modADPrinters {

/// Fills `list` with one item "server >> printer" for each print queue that the directory of
/// `domain` publishes, moving `progress` meanwhile. Errors are shown to the user; the list is empty
/// after one.
void FillADPrinterList(const std::string& domain, wxOwnerDrawnComboBox& list, wxGauge& progress);

/// Moves the bar one step of 50, from the end back to the start, and lets pending events run.
void StepADProgress(wxGauge& progress);

/// The domains that the network tells of, in its order; empty when it tells of none.
std::vector<std::string> DomainNames();

} // namespace modADPrinters
