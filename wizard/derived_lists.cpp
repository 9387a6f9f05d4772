#include "wizard/derived_lists.h"

#include "document/item_text.h"
#include "platform/ui/fold_case.h"
#include "platform/ui/text.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

namespace modWizard {

using modINIDocument::kArrow;
using modINIDocument::kChevrons;
using modINIDocument::Piece;
using modINIDocument::Split;

namespace {

std::wstring Folded(const std::string& text) {
    return platform::ui::FoldCase(platform::ui::ToWx(text).ToStdWstring());
}

// Finds, among texts, the first in their own order that begins with a given one: the texts are
// sorted, so that those with one beginning stand together, and the smallest place of any run of
// them is looked up in a table of runs of 1, 2, 4, ... texts.
class PrefixIndex {
public:
    explicit PrefixIndex(const Items& texts) {
        folded_.reserve(texts.size());
        for (const std::string& text : texts) {
            folded_.push_back(Folded(text));
        }
        sorted_.resize(texts.size());
        std::iota(sorted_.begin(), sorted_.end(), std::size_t{0});
        std::ranges::sort(sorted_, [this](std::size_t a, std::size_t b) {
            return folded_[a] != folded_[b] ? folded_[a] < folded_[b] : a < b;
        });
        BuildMinima();
    }

    // The place of the first text, or the number of texts when there is none.
    [[nodiscard]] std::size_t FirstWithPrefix(const std::wstring& prefix) const {
        const auto head = [&](std::size_t place) {
            return std::wstring_view(folded_[place]).substr(0, prefix.size());
        };
        const auto begin = std::ranges::lower_bound(sorted_, std::wstring_view(prefix), {}, head);
        const auto end = std::ranges::upper_bound(sorted_, std::wstring_view(prefix), {}, head);
        return begin == end ? folded_.size()
                            : Minimum(static_cast<std::size_t>(begin - sorted_.begin()),
                                      static_cast<std::size_t>(end - sorted_.begin()));
    }

private:
    void BuildMinima() {
        minima_.push_back(sorted_);
        for (std::size_t run = 2; run <= sorted_.size(); run *= 2) {
            const std::vector<std::size_t>& half = minima_.back();
            std::vector<std::size_t> whole(sorted_.size() - run + 1);
            for (std::size_t i = 0; i < whole.size(); ++i) {
                whole[i] = std::min(half[i], half[i + run / 2]);
            }
            minima_.push_back(std::move(whole));
        }
    }

    [[nodiscard]] std::size_t Minimum(std::size_t begin, std::size_t end) const {
        std::size_t level = 0;
        while ((std::size_t{2} << level) <= end - begin) {
            ++level;
        }
        const std::vector<std::size_t>& runs = minima_[level];
        return std::min(runs[begin], runs[end - (std::size_t{1} << level)]);
    }

    std::vector<std::wstring> folded_;
    std::vector<std::size_t> sorted_;
    std::vector<std::vector<std::size_t>> minima_;
};

// The fields behind " -> " of a mixed entry: server and printer.
Items Destination(const std::string& mixedPair) {
    return Split(Piece(Split(mixedPair, kArrow), 1), kChevrons);
}

std::string PrinterOnServer(const std::string& server, const std::string& printer) {
    return "\\\\" + server + "\\" + printer;
}

} // namespace

bool IsInDriverList(const IndexedItems& drivers, const std::string& name) {
    return drivers.texts.contains(name);
}

bool IsPrinterAndServerInForceListAlready(const IndexedItems& printers, const std::string& name) {
    return printers.texts.contains(name);
}

Items DriverItems(const MigrationLists& lists, const Items& saved) {
    IndexedItems drivers;
    const auto add = [&drivers](const std::string& printer) {
        if (!IsInDriverList(drivers, printer)) {
            drivers.Add(printer);
        }
    };
    for (const std::string& pair : lists.mixedPairs) {
        add(Piece(Destination(pair), 1));
    }
    for (const std::string& pair : lists.printerPairs) {
        add(Piece(Split(pair, kArrow), 1));
    }
    for (const std::string& entry : lists.populate) {
        add(Piece(Split(entry, kChevrons), 1));
    }
    const PrefixIndex index(saved);
    for (std::string& item : drivers.items) {
        const std::size_t place = index.FirstWithPrefix(Folded(item));
        if (place < saved.size()) {
            item = saved[place];
        }
    }
    return drivers.items;
}

Items DefaultPrinterItems(const MigrationLists& lists) {
    IndexedItems printers;
    const auto add = [&printers](const std::string& candidate) {
        if (!IsPrinterAndServerInForceListAlready(printers, candidate)) {
            printers.Add(candidate);
        }
    };
    for (const std::string& pair : lists.mixedPairs) {
        const Items destination = Destination(pair);
        add(PrinterOnServer(Piece(destination, 0), Piece(destination, 1)));
    }
    for (const std::string& entry : lists.populate) {
        const Items pieces = Split(entry, kChevrons);
        const std::string server = Piece(pieces, 0);
        const std::string printer = Piece(pieces, 1);
        add(server == "." ? printer : PrinterOnServer(server, printer));
    }
    return printers.items;
}

bool LacksLocalDriver(const Items& populate, const Items& drivers) {
    std::unordered_set<std::string> incomplete;
    for (const std::string& entry : drivers) {
        const Items fields = Split(entry, kChevrons);
        if (fields.size() != 4 || fields[1].empty() || fields[3].empty()) {
            incomplete.insert(Piece(fields, 0));
        }
    }
    return std::ranges::any_of(populate, [&incomplete](const std::string& entry) {
        const Items pieces = Split(entry, kChevrons);
        return Piece(pieces, 0) == "." && incomplete.contains(Piece(pieces, 1));
    });
}

} // namespace modWizard
