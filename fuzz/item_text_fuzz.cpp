// Item texts: any bytes can be taken apart, and names free of ">" come back from an item as they
// went in. (A name that holds part of a separator may not: the format has no quoting.)
//
// The input's fields stand between zero bytes.
#include "document/item_text.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace modINIDocument;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void TakeApart(std::string_view text) {
    NamePairFromItem(text);
    MixedPairFromItem(text);
    ServerPrinterNameFromItem(text);
    PrinterDriverFromItem(text);
    for (const std::string_view separator : {kArrow, kChevrons}) {
        const auto pieces = Split(text, separator);
        std::size_t length = pieces.empty() ? 0 : (pieces.size() - 1) * separator.size();
        for (const std::string& piece : pieces) {
            length += piece.size();
        }
        Require(length == text.size());
    }
}

std::array<std::string, 4> Names(std::string_view text) {
    std::array<std::string, 4> names;
    std::size_t field = 0;
    for (const char character : text) {
        if (character == '\0') {
            field = (field + 1) % names.size();
        } else if (character != '>') {
            names[field] += character;
        }
    }
    return names;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    TakeApart(text);
    const auto [a, b, c, d] = Names(text);
    const NamePair pair = NamePairFromItem(ItemText(NamePair{a, b}));
    Require(pair.From == a && pair.To == b);
    const ServerPrinterName name = ServerPrinterNameFromItem(ItemText(ServerPrinterName{a, b}));
    Require(name.ServerName == a && name.PrinterName == b);
    const MixedPair mixed = MixedPairFromItem(ItemText(MixedPair{a, b, c, d}));
    Require(mixed.FromServer == a && mixed.FromPrinter == b && mixed.ToPrinter == c &&
            mixed.ToServer == d);
    const PrinterDriver driver = PrinterDriverFromItem(ItemText(PrinterDriver{a, b, c, d}));
    Require(driver.PrinterName == a && driver.DriverName == b && driver.DriverFileName == c &&
            driver.PortName == d);
    return 0;
}
