#include "document/keys.h"

#include <gtest/gtest.h>

namespace {

using namespace modINIDocument;
using R = SettingsRecord;

struct Expected {
    std::string_view section;
    std::string_view name;
    char kind; ///< b boolean, i integer, t text, f folder, l list
    std::size_t bufferSize;
};

// The file's keys once more, by hand and in the order of a new file's lines.
const std::vector<Expected> kExpected = {
    {"GENERAL", "UseActiveDirectory", 'b', 100},
    {"GENERAL", "UseManualDefinitions", 'b', 100},
    {"GENERAL", "AlwaysRun", 'b', 100},
    {"GENERAL", "ShowProgress", 'b', 100},
    {"ACTIVE DIRECTORY", "DomainName", 't', 1000},
    {"MANUAL DEFINITIONS SERVERS", "FromServers", 'l', 10000},
    {"MANUAL DEFINITIONS SERVERS", "ToServers", 'l', 10000},
    {"MANUAL DEFINITIONS PRINTERS", "FromPrinters", 'l', 10000},
    {"MANUAL DEFINITIONS PRINTERS", "ToPrinters", 'l', 10000},
    {"MANUAL DEFINITIONS MIXED", "FromServers", 'l', 10000},
    {"MANUAL DEFINITIONS MIXED", "FromPrinters", 'l', 10000},
    {"MANUAL DEFINITIONS MIXED", "ToServers", 'l', 10000},
    {"MANUAL DEFINITIONS MIXED", "ToPrinters", 'l', 10000},
    {"NOTIFICATION SMTP", "UseSMTP", 'b', 100},
    {"NOTIFICATION SMTP", "SMTPServerNameOrIP", 't', 1000},
    {"NOTIFICATION SMTP", "ServerPort", 't', 1000},
    {"NOTIFICATION SMTP", "EmailSubject", 't', 1000},
    {"NOTIFICATION SMTP", "EmailTo", 'l', 10000},
    {"NOTIFICATION SMTP", "EmailFrom", 't', 1000},
    {"NOTIFICATION FILE OUTPUT", "UseFileOutput", 'b', 100},
    {"NOTIFICATION FILE OUTPUT", "FileOutputPath", 'f', 1000},
    {"NOTIFICATION FILE OUTPUT", "FileOutputName", 't', 1000},
    {"NOTIFICATION FILE OUTPUT", "IncludeComputerName", 'b', 100},
    {"NOTIFICATION FILE OUTPUT", "IncludeOutcome", 'b', 100},
    {"NOTIFICATION FILE OUTPUT", "WriteToEventLog", 'b', 100},
    {"NOTIFICATION CLIENT POP-UP", "UseClientPopup", 'b', 100},
    {"NOTIFICATION CLIENT POP-UP", "UseSuccessClientPopup", 'b', 100},
    {"NOTIFICATION CLIENT POP-UP", "SuccessMessage", 't', 1000},
    {"NOTIFICATION CLIENT POP-UP", "UseFailureClientPopup", 'b', 100},
    {"NOTIFICATION CLIENT POP-UP", "FailureMessage", 't', 1000},
    {"DEPLOYMENT", "DeploymentPath", 'f', 1000},
    {"DEPLOYMENT", "CreateWebLaunchPage", 'b', 100},
    {"DEPLOYMENT", "CreateBatchFile", 'b', 100},
    {"DEPLOYMENT", "IncludeMDAC", 'b', 100},
    {"DEPLOYMENT", "MDACOption", 'i', 100},
    {"POPULATE", "ServerNames", 'l', 10000},
    {"POPULATE", "PrinterNames", 'l', 10000},
    {"PRUNE", "ServerNames", 'l', 10000},
    {"PRUNE", "PrinterNames", 'l', 10000},
    {"PRUNE", "DeleteADOrphans", 'b', 100},
    {"PRUNE", "DeleteAllNonNetworked", 'b', 100},
    {"PRINTER_DRIVER", "PrinterName", 'l', 10000},
    {"PRINTER_DRIVER", "DriverName", 'l', 10000},
    {"PRINTER_DRIVER", "DriverFileName", 'l', 10000},
    {"PRINTER_DRIVER", "PortName", 'l', 10000},
    {"PRINTER_DRIVER", "DriverSharePath", 't', 1000},
    {"SET_DEFAULT", "DefaultType", 'i', 100},
    {"SET_DEFAULT", "DefaultPrinterName", 't', 1000},
    {"SUPPORT", "DebugOn", 'b', 100},
};

char KindOf(const Flag&) {
    return 'b';
}
char KindOf(const Number&) {
    return 'i';
}
char KindOf(const Text&) {
    return 't';
}
char KindOf(const Folder&) {
    return 'f';
}
template <class Element> char KindOf(const Column<Element>&) {
    return 'l';
}

TEST(Keys, AreThe49OfTheFileInItsOrder) {
    ASSERT_EQ(kExpected.size(), 49u);
    ASSERT_EQ(kKeys.size(), kExpected.size());
    for (std::size_t i = 0; i < kExpected.size(); ++i) {
        EXPECT_EQ(kKeys[i].section, kExpected[i].section) << i;
        EXPECT_EQ(kKeys[i].name, kExpected[i].name) << i;
        std::visit(
            [&](const auto& setting) {
                EXPECT_EQ(KindOf(setting), kExpected[i].kind) << kExpected[i].name;
                EXPECT_EQ(setting.kBufferSize, kExpected[i].bufferSize) << kExpected[i].name;
            },
            kKeys[i].setting);
    }
}

} // namespace
