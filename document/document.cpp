#include "document/document.h"

#include <utility>

namespace modINIDocument {

void ResetDocument() {
    SettingsRecord fresh;
    fresh.ShowProgress = kTrue;
    fresh.ServerPort = "25";
    fresh.ServerPairs.resize(1);
    fresh.PrinterPairs.resize(1);
    fresh.MixedPairs.resize(1);
    fresh.EmailTo.resize(1);
    fresh.PopulateList.resize(1);
    fresh.PruneList.resize(1);
    fresh.PrinterDrivers.resize(1);

    // Whoever sets up several sites in a row keeps the default-printer rule and the support switch.
    fresh.DefaultType = g_Document.DefaultType;
    fresh.DefaultPrinterName = g_Document.DefaultPrinterName;
    fresh.DebugOn = g_Document.DebugOn;
    fresh.WriteFailed = g_Document.WriteFailed;
    fresh.ReadFailed = g_Document.ReadFailed;
    g_Document = std::move(fresh);
}

} // namespace modINIDocument
