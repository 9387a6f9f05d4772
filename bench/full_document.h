// The record with as many entries in every list as asked for.
#pragma once

#include "document/document.h"

#include <string>
#include <vector>

namespace bench {

/// Entries that bring every list near the 9,999 characters that a file holds of it.
inline constexpr int kFullList = 380;

template <class Element, class Make>
void FillList(std::vector<Element>& list, int entries, Make make) {
    list.clear();
    for (int i = 0; i < entries; ++i) {
        list.push_back(make("PRINTSRV" + std::to_string(1000 + i) + ".corp.example"));
    }
}

inline void FillDocument(int entries = kFullList) {
    using namespace modINIDocument;
    ResetDocument();
    const auto pair = [](const std::string& name) { return NamePair{name, name}; };
    const auto queue = [](const std::string& name) { return ServerPrinterName{name, name}; };
    FillList(g_Document.ServerPairs, entries, pair);
    FillList(g_Document.PrinterPairs, entries, pair);
    FillList(g_Document.MixedPairs, entries, [](const std::string& name) {
        return MixedPair{name, name, name, name};
    });
    FillList(g_Document.EmailTo, entries, [](const std::string& name) { return name; });
    FillList(g_Document.PopulateList, entries, queue);
    FillList(g_Document.PruneList, entries, queue);
    FillList(g_Document.PrinterDrivers, entries, [](const std::string& name) {
        return PrinterDriver{name, name};
    });
}

} // namespace bench
