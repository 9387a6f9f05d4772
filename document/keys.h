// The table of everything that the settings file holds: one row per key, in the order in which a
// new file gets its lines. Reader and writer walk over it; a new setting is a new row.
#pragma once

#include "document/record.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <variant>

namespace modINIDocument {

// What a key holds. kBufferSize is the size of the buffer that its value is read into, terminator
// included: the engine reads with the same limits.

struct Flag {
    static constexpr std::size_t kBufferSize = 100;
    Boolean SettingsRecord::*field;
};

struct Number {
    static constexpr std::size_t kBufferSize = 100;
    Integer SettingsRecord::*field;
};

struct Text {
    static constexpr std::size_t kBufferSize = 1000;
    std::string SettingsRecord::*field;
};

/// A text that loses one trailing "\" when it is read, so that names can be joined to it.
struct Folder {
    static constexpr std::size_t kBufferSize = 1000;
    std::string SettingsRecord::*field;
};

/// One field of every element of a list. The keys of a list are neighbours in the table, and the
/// first of them says how many elements there are.
template <class Element> struct Column {
    static constexpr std::size_t kBufferSize = 10000;
    std::vector<Element> SettingsRecord::*list;
    std::string Element::*field;
    /// Put in the place of an empty piece, so that the administrator sees the damage in the list.
    std::string_view errorText;
};

/// A list whose elements are the texts themselves.
template <> struct Column<std::string> {
    static constexpr std::size_t kBufferSize = 10000;
    std::vector<std::string> SettingsRecord::*list;
    std::string_view errorText;
};

/// The column's field of an element, as constant as the element is.
template <class Element, class Given> auto& FieldOf(const Column<Element>& column, Given& element) {
    if constexpr (std::is_same_v<Element, std::string>) {
        return element;
    } else {
        return element.*column.field;
    }
}

using Setting = std::variant<Flag, Number, Text, Folder, Column<NamePair>, Column<MixedPair>,
                             Column<ServerPrinterName>, Column<PrinterDriver>, Column<std::string>>;

struct Key {
    std::string_view section;
    std::string_view name;
    Setting setting;
};

namespace detail {

using R = SettingsRecord;
using Pair = Column<NamePair>;
using Mixed = Column<MixedPair>;
using Queue = Column<ServerPrinterName>;
using Driver = Column<PrinterDriver>;
using Addresses = Column<std::string>;

inline constexpr std::string_view kGeneral = "GENERAL";
inline constexpr std::string_view kServers = "MANUAL DEFINITIONS SERVERS";
inline constexpr std::string_view kPrinters = "MANUAL DEFINITIONS PRINTERS";
inline constexpr std::string_view kMixed = "MANUAL DEFINITIONS MIXED";
inline constexpr std::string_view kMail = "NOTIFICATION SMTP";
inline constexpr std::string_view kFile = "NOTIFICATION FILE OUTPUT";
inline constexpr std::string_view kPopup = "NOTIFICATION CLIENT POP-UP";
inline constexpr std::string_view kDeploy = "DEPLOYMENT";
inline constexpr std::string_view kDrivers = "PRINTER_DRIVER";

inline constexpr std::string_view kFromServer = "Error in From Server Name";
inline constexpr std::string_view kToServer = "Error in To Server Name";
inline constexpr std::string_view kFromPrinter = "Error in From Printer Name";
inline constexpr std::string_view kToPrinter = "Error in To Printer Name";
/// Prune entries and two driver fields may be empty: an empty piece is no damage there.
inline constexpr std::string_view kMayBeEmpty;

} // namespace detail

// clang-format off
inline constexpr auto kKeys = [] {
    using namespace detail;
    return std::to_array<Key>({
    {kGeneral, "UseActiveDirectory", Flag{&R::UseActiveDirectory}},
    {kGeneral, "UseManualDefinitions", Flag{&R::UseManualDefinitions}},
    {kGeneral, "AlwaysRun", Flag{&R::AlwaysRun}},
    {kGeneral, "ShowProgress", Flag{&R::ShowProgress}},
    {"ACTIVE DIRECTORY", "DomainName", Text{&R::DomainName}},
    {kServers, "FromServers", Pair{&R::ServerPairs, &NamePair::From, kFromServer}},
    {kServers, "ToServers", Pair{&R::ServerPairs, &NamePair::To, kToServer}},
    {kPrinters, "FromPrinters", Pair{&R::PrinterPairs, &NamePair::From, kFromPrinter}},
    {kPrinters, "ToPrinters", Pair{&R::PrinterPairs, &NamePair::To, kToPrinter}},
    {kMixed, "FromServers", Mixed{&R::MixedPairs, &MixedPair::FromServer, kFromServer}},
    {kMixed, "FromPrinters", Mixed{&R::MixedPairs, &MixedPair::FromPrinter, kFromPrinter}},
    {kMixed, "ToServers", Mixed{&R::MixedPairs, &MixedPair::ToServer, kToServer}},
    {kMixed, "ToPrinters", Mixed{&R::MixedPairs, &MixedPair::ToPrinter, kToPrinter}},
    {kMail, "UseSMTP", Flag{&R::UseSMTP}},
    {kMail, "SMTPServerNameOrIP", Text{&R::SMTPServerNameOrIP}},
    {kMail, "ServerPort", Text{&R::ServerPort}},
    {kMail, "EmailSubject", Text{&R::EmailSubject}},
    {kMail, "EmailTo", Addresses{&R::EmailTo, "Error in To Email Address"}},
    {kMail, "EmailFrom", Text{&R::EmailFrom}},
    {kFile, "UseFileOutput", Flag{&R::UseFileOutput}},
    {kFile, "FileOutputPath", Folder{&R::FileOutputPath}},
    {kFile, "FileOutputName", Text{&R::FileOutputName}},
    {kFile, "IncludeComputerName", Flag{&R::IncludeComputerName}},
    {kFile, "IncludeOutcome", Flag{&R::IncludeOutcome}},
    {kFile, "WriteToEventLog", Flag{&R::WriteToEventLog}}, // the engine looks for it here
    {kPopup, "UseClientPopup", Flag{&R::UseClientPopup}},
    {kPopup, "UseSuccessClientPopup", Flag{&R::UseSuccessClientPopup}},
    {kPopup, "SuccessMessage", Text{&R::SuccessMessage}},
    {kPopup, "UseFailureClientPopup", Flag{&R::UseFailureClientPopup}},
    {kPopup, "FailureMessage", Text{&R::FailureMessage}},
    {kDeploy, "DeploymentPath", Folder{&R::DeploymentPath}},
    {kDeploy, "CreateWebLaunchPage", Flag{&R::CreateWebLaunchPage}},
    {kDeploy, "CreateBatchFile", Flag{&R::CreateBatchFile}},
    {kDeploy, "IncludeMDAC", Flag{&R::IncludeMDAC}},
    {kDeploy, "MDACOption", Number{&R::MDACOption}},
    {"POPULATE", "ServerNames", Queue{&R::PopulateList, &ServerPrinterName::ServerName, "Error in Server Name"}},
    {"POPULATE", "PrinterNames", Queue{&R::PopulateList, &ServerPrinterName::PrinterName, "Error in Printer Name"}},
    {"PRUNE", "ServerNames", Queue{&R::PruneList, &ServerPrinterName::ServerName, kMayBeEmpty}},
    {"PRUNE", "PrinterNames", Queue{&R::PruneList, &ServerPrinterName::PrinterName, kMayBeEmpty}},
    {"PRUNE", "DeleteADOrphans", Flag{&R::DeleteADOrphans}},
    {"PRUNE", "DeleteAllNonNetworked", Flag{&R::DeleteAllNonNetworked}},
    {kDrivers, "PrinterName", Driver{&R::PrinterDrivers, &PrinterDriver::PrinterName, "Error in Printer Name"}},
    {kDrivers, "DriverName", Driver{&R::PrinterDrivers, &PrinterDriver::DriverName, "Error in Driver Name"}},
    {kDrivers, "DriverFileName", Driver{&R::PrinterDrivers, &PrinterDriver::DriverFileName, kMayBeEmpty}},
    {kDrivers, "PortName", Driver{&R::PrinterDrivers, &PrinterDriver::PortName, kMayBeEmpty}},
    {kDrivers, "DriverSharePath", Text{&R::DriverSharePath}},
    {"SET_DEFAULT", "DefaultType", Number{&R::DefaultType}},
    {"SET_DEFAULT", "DefaultPrinterName", Text{&R::DefaultPrinterName}},
    {"SUPPORT", "DebugOn", Flag{&R::DebugOn}},
    });
}();
// clang-format on

} // namespace modINIDocument
