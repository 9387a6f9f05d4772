// The texts by which list boxes show the elements of the record's lists, and their way back.
//
// " -> " stands between the from side and the to side of a migration pair, " >> " between server
// and printer and between the fields of a driver entry. Pieces are not trimmed. A piece that a text
// lacks is "" (a bare printer name is an everyday driver item).
#pragma once

#include "document/record.h"

#include <string>
#include <string_view>
#include <vector>

namespace modINIDocument {

inline constexpr std::string_view kArrow = " -> ";
inline constexpr std::string_view kChevrons = " >> ";

/// The pieces of `text` between the separators; one piece when there is none. "" has no pieces.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

/// Piece `index`, or "" when there are fewer.
std::string Piece(const std::vector<std::string>& pieces, std::size_t index);

std::string ItemText(const NamePair& pair);
std::string ItemText(const MixedPair& pair);
std::string ItemText(const ServerPrinterName& name);
std::string ItemText(const PrinterDriver& driver);

NamePair NamePairFromItem(std::string_view text);
MixedPair MixedPairFromItem(std::string_view text);
ServerPrinterName ServerPrinterNameFromItem(std::string_view text);
PrinterDriver PrinterDriverFromItem(std::string_view text);

/// The items that a list box shows for these elements; placeholders and incomplete elements are
/// left out by each list's own test.
std::vector<std::string> ServerOrPrinterPairItems(const std::vector<NamePair>& list);
std::vector<std::string> MixedPairItems(const std::vector<MixedPair>& list);
std::vector<std::string> EmailToItems(const std::vector<std::string>& list);
std::vector<std::string> PopulateItems(const std::vector<ServerPrinterName>& list);
std::vector<std::string> PruneItems(const std::vector<ServerPrinterName>& list);
std::vector<std::string> PrinterDriverItems(const std::vector<PrinterDriver>& list);

/// The list that these items stand for: an empty placeholder at index 0, then one element an item.
std::vector<NamePair> NamePairsFromItems(const std::vector<std::string>& items);
std::vector<MixedPair> MixedPairsFromItems(const std::vector<std::string>& items);
std::vector<std::string> EmailToFromItems(const std::vector<std::string>& items);
std::vector<ServerPrinterName> ServerPrinterNamesFromItems(const std::vector<std::string>& items);
std::vector<PrinterDriver> PrinterDriversFromItems(const std::vector<std::string>& items);

} // namespace modINIDocument
