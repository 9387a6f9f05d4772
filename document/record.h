// The settings record: every setting and list of the document being edited.
//
// The record exists once and lives for the whole run. It starts zeroed, with lists that hold no
// element until the first reset. Texts are UTF-8. A setting is named after the INI key that
// carries it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace modINIDocument {

/// A 16-bit flag. True has all bits set; every other value is written as false, so that a number
/// that slipped into a flag never switches a setting on.
using Boolean = std::int16_t;
inline constexpr Boolean kTrue = -1;
inline constexpr Boolean kFalse = 0;

using Integer = std::int16_t;

struct NamePair {
    std::string From;
    std::string To;
    bool operator==(const NamePair&) const = default;
};

struct MixedPair {
    std::string FromServer;
    std::string FromPrinter;
    std::string ToPrinter;
    std::string ToServer;
    bool operator==(const MixedPair&) const = default;
};

struct ServerPrinterName {
    std::string ServerName;
    std::string PrinterName;
    bool operator==(const ServerPrinterName&) const = default;
};

struct PrinterDriver {
    std::string PrinterName;
    std::string DriverName;
    std::string DriverFileName;
    std::string PortName;
    bool operator==(const PrinterDriver&) const = default;
};

/// Lists are indexed from 0 and hold at least one element after the first reset. An element whose
/// key field is empty is a placeholder: neither shown nor written.
struct SettingsRecord {
    bool DocumentDirty = false; ///< cleared by reset, read and write; nothing sets or tests it

    Boolean UseActiveDirectory = kFalse;
    Boolean UseManualDefinitions = kFalse;
    Boolean AlwaysRun = kFalse;
    Boolean ShowProgress = kFalse;
    std::string DomainName;
    std::vector<NamePair> ServerPairs;
    std::vector<NamePair> PrinterPairs;
    std::vector<MixedPair> MixedPairs;
    Boolean UseSMTP = kFalse;
    std::string SMTPServerNameOrIP;
    std::string ServerPort; ///< kept as text
    std::string EmailSubject;
    std::vector<std::string> EmailTo;
    std::string EmailFrom;
    Boolean UseFileOutput = kFalse;
    std::string FileOutputPath; ///< without a trailing "\" after a read
    std::string FileOutputName;
    Boolean IncludeComputerName = kFalse;
    Boolean IncludeOutcome = kFalse;
    Boolean WriteToEventLog = kFalse;
    Boolean UseClientPopup = kFalse;
    Boolean UseSuccessClientPopup = kFalse;
    std::string SuccessMessage;
    Boolean UseFailureClientPopup = kFalse;
    std::string FailureMessage;
    std::string DeploymentPath; ///< without a trailing "\" after a read
    Boolean CreateWebLaunchPage = kFalse;
    Boolean CreateBatchFile = kFalse;
    Boolean IncludeMDAC = kFalse;
    Integer MDACOption = 0;
    std::vector<ServerPrinterName> PopulateList;
    std::vector<ServerPrinterName> PruneList;
    Boolean DeleteADOrphans = kFalse;
    Boolean DeleteAllNonNetworked = kFalse;
    std::vector<PrinterDriver> PrinterDrivers;
    std::string DriverSharePath;
    Integer DefaultType = 0; ///< 0 nothing, 1 follow the migration, 2 force DefaultPrinterName
    std::string DefaultPrinterName;
    Boolean DebugOn = kFalse;

    bool WriteFailed = false; ///< some write of the last save failed
    bool ReadFailed = false;  ///< some read of this run failed; never cleared
};

} // namespace modINIDocument
