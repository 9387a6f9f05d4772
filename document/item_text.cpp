#include "document/item_text.h"

#include <algorithm>
#include <iterator>

namespace modINIDocument {

namespace {

std::string Joined(std::string_view first, std::string_view separator, std::string_view second) {
    std::string text;
    text.reserve(first.size() + separator.size() + second.size());
    return text.append(first).append(separator).append(second);
}

template <class Element> std::string TextOf(const Element& element) {
    return ItemText(element);
}
std::string TextOf(const std::string& address) {
    return address;
}

template <class Element, class Shown>
std::vector<std::string> Items(const std::vector<Element>& list, Shown shown) {
    std::vector<std::string> items;
    items.reserve(list.size());
    for (const Element& element : list) {
        if (shown(element)) {
            items.push_back(TextOf(element));
        }
    }
    return items;
}

template <class Element, class Parse>
std::vector<Element> Elements(const std::vector<std::string>& items, Parse parse) {
    std::vector<Element> list(1);
    list.reserve(items.size() + 1);
    std::ranges::transform(items, std::back_inserter(list), parse);
    return list;
}

} // namespace

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    if (text.empty()) {
        return pieces;
    }
    for (;;) {
        const auto end = text.find(separator);
        pieces.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(end + separator.size());
    }
}

std::string Piece(const std::vector<std::string>& pieces, std::size_t index) {
    return index < pieces.size() ? pieces[index] : std::string();
}

std::string ItemText(const NamePair& pair) {
    return Joined(pair.From, kArrow, pair.To);
}

std::string ItemText(const MixedPair& pair) {
    return Joined(Joined(pair.FromServer, kChevrons, pair.FromPrinter), kArrow,
                  Joined(pair.ToServer, kChevrons, pair.ToPrinter));
}

std::string ItemText(const ServerPrinterName& name) {
    return Joined(name.ServerName, kChevrons, name.PrinterName);
}

std::string ItemText(const PrinterDriver& driver) {
    return Joined(Joined(driver.PrinterName, kChevrons, driver.DriverName), kChevrons,
                  Joined(driver.DriverFileName, kChevrons, driver.PortName));
}

NamePair NamePairFromItem(std::string_view text) {
    const auto sides = Split(text, kArrow);
    return {Piece(sides, 0), Piece(sides, 1)};
}

MixedPair MixedPairFromItem(std::string_view text) {
    const auto sides = Split(text, kArrow);
    const auto from = Split(Piece(sides, 0), kChevrons);
    const auto to = Split(Piece(sides, 1), kChevrons);
    MixedPair pair;
    pair.FromServer = Piece(from, 0);
    pair.FromPrinter = Piece(from, 1);
    pair.ToServer = Piece(to, 0);
    pair.ToPrinter = Piece(to, 1);
    return pair;
}

ServerPrinterName ServerPrinterNameFromItem(std::string_view text) {
    const auto fields = Split(text, kChevrons);
    return {Piece(fields, 0), Piece(fields, 1)};
}

PrinterDriver PrinterDriverFromItem(std::string_view text) {
    const auto fields = Split(text, kChevrons);
    return {Piece(fields, 0), Piece(fields, 1), Piece(fields, 2), Piece(fields, 3)};
}

std::vector<std::string> ServerOrPrinterPairItems(const std::vector<NamePair>& list) {
    return Items(list, [](const NamePair& pair) { return !pair.From.empty(); });
}

std::vector<std::string> MixedPairItems(const std::vector<MixedPair>& list) {
    return Items(list, [](const MixedPair& pair) { return !pair.FromServer.empty(); });
}

std::vector<std::string> EmailToItems(const std::vector<std::string>& list) {
    return Items(list, [](const std::string& address) { return !address.empty(); });
}

std::vector<std::string> PopulateItems(const std::vector<ServerPrinterName>& list) {
    return Items(list, [](const ServerPrinterName& name) { return !name.ServerName.empty(); });
}

std::vector<std::string> PruneItems(const std::vector<ServerPrinterName>& list) {
    return Items(list, [](const ServerPrinterName& name) {
        return !name.ServerName.empty() && !name.PrinterName.empty();
    });
}

std::vector<std::string> PrinterDriverItems(const std::vector<PrinterDriver>& list) {
    return Items(list, [](const PrinterDriver& driver) {
        return !driver.PrinterName.empty() && !driver.DriverName.empty();
    });
}

std::vector<NamePair> NamePairsFromItems(const std::vector<std::string>& items) {
    return Elements<NamePair>(items, NamePairFromItem);
}

std::vector<MixedPair> MixedPairsFromItems(const std::vector<std::string>& items) {
    return Elements<MixedPair>(items, MixedPairFromItem);
}

std::vector<std::string> EmailToFromItems(const std::vector<std::string>& items) {
    return Elements<std::string>(items, [](const std::string& item) { return item; });
}

std::vector<ServerPrinterName> ServerPrinterNamesFromItems(const std::vector<std::string>& items) {
    return Elements<ServerPrinterName>(items, ServerPrinterNameFromItem);
}

std::vector<PrinterDriver> PrinterDriversFromItems(const std::vector<std::string>& items) {
    return Elements<PrinterDriver>(items, PrinterDriverFromItem);
}

} // namespace modINIDocument
