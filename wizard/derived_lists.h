// The two printer lists that follow from the migration and populate lists, and the check of a
// document that is about to be saved, as plain functions of plain lists.
//
// Nothing here trims a blank. Each refresh takes a time that grows with the entries (times their
// logarithm), not with their square: ten thousand entries are an everyday list.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace modWizard {

using Items = std::vector<std::string>;

/// A list that answers quickly whether it holds a text.
struct IndexedItems {
    Items items;
    std::unordered_set<std::string> texts;

    IndexedItems() = default;
    explicit IndexedItems(const Items& list) : items(list), texts(list.begin(), list.end()) {}
    void Add(const std::string& text) {
        items.push_back(text);
        texts.insert(text);
    }
};

/// True when an entry of the list is exactly `name`, letter case included.
bool IsInDriverList(const IndexedItems& drivers, const std::string& name);
bool IsPrinterAndServerInForceListAlready(const IndexedItems& printers, const std::string& name);

/// The lists that the derived ones are made from, as the list boxes hold them.
struct MigrationLists {
    Items mixedPairs;
    Items printerPairs;
    Items populate;
};

/// The entries of the Drivers page: one for each target printer, taking over the first saved entry
/// that begins with the printer's name, letter case apart. So an entry of a longer name that begins
/// with the same characters can be taken over; documents in use rely on it.
Items DriverItems(const MigrationLists& lists, const Items& saved);

/// The printers that the Set Default page offers. Printer-to-printer pairs name no server and
/// contribute none.
Items DefaultPrinterItems(const MigrationLists& lists);

/// True when some populate entry of a local printer has a driver entry without driver or port name.
/// A local printer without any driver entry passes.
bool LacksLocalDriver(const Items& populate, const Items& drivers);

} // namespace modWizard
