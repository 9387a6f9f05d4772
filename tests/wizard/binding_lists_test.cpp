// The binding of the list boxes: which elements are shown, and what items are stored as.
#include "tests/wizard/wizard_test.h"

namespace window_test {
namespace {

using modINIDocument::MixedPair;
using modINIDocument::NamePair;
using modINIDocument::PrinterDriver;
using modINIDocument::ServerPrinterName;

class BindingLists : public WizardTest {
protected:
    BindingLists() { Start(kManual); }
};

template <class Element>
std::vector<Element> WithPlaceholder(const std::vector<Element>& elements) {
    std::vector<Element> list(1);
    list.insert(list.end(), elements.begin(), elements.end());
    return list;
}

TEST_F(BindingLists, ShowServerAndPrinterPairsWithAFromName) {
    Record().ServerPairs = {{"A", "B"}, {"", ""}, {"", "lost"}, {"C", ""}};
    Record().PrinterPairs = {{"", ""}, {"HP 1", "HP 2"}};
    Load();
    EXPECT_EQ(ItemsIn(window, "lstServerPairs"), (Texts{"A -> B", "C -> "}));
    EXPECT_EQ(ItemsIn(window, "lstPrinterPairs"), Texts{"HP 1 -> HP 2"});
    Store();
    EXPECT_EQ(Record().ServerPairs, WithPlaceholder<NamePair>({{"A", "B"}, {"C", ""}}));
    EXPECT_EQ(Record().PrinterPairs, WithPlaceholder<NamePair>({{"HP 1", "HP 2"}}));
}

TEST_F(BindingLists, ShowMixedPairsWithAFromServer) {
    Record().MixedPairs = {
        {.FromServer = "S1", .FromPrinter = "P1", .ToPrinter = "P2", .ToServer = "S2"},
        {.FromServer = "", .FromPrinter = "x", .ToPrinter = "y", .ToServer = "z"},
        {.FromServer = "S3", .FromPrinter = "", .ToPrinter = "", .ToServer = ""}};
    Load();
    EXPECT_EQ(ItemsIn(window, "lstMixedPrintersAndServers"),
              (Texts{"S1 >> P1 -> S2 >> P2", "S3 >>  ->  >> "}));
    Store();
    ASSERT_EQ(Record().MixedPairs.size(), 3U);
    EXPECT_EQ(Record().MixedPairs[0], MixedPair{});
    EXPECT_EQ(Record().MixedPairs[1].FromServer, "S1");
    EXPECT_EQ(Record().MixedPairs[1].FromPrinter, "P1");
    EXPECT_EQ(Record().MixedPairs[1].ToServer, "S2");
    EXPECT_EQ(Record().MixedPairs[1].ToPrinter, "P2");
}

TEST_F(BindingLists, ShowRecipientsThatAreNotEmpty) {
    Record().EmailTo = {"", "a@x", " ", "", "b@y"};
    Load();
    EXPECT_EQ(ItemsIn(window, "lstToEmailAddresses"), (Texts{"a@x", " ", "b@y"}));
    Store();
    EXPECT_EQ(Record().EmailTo, (Texts{"", "a@x", " ", "b@y"}));
}

TEST_F(BindingLists, ShowPopulateEntriesWithAServerAndPruneEntriesWithBothNames) {
    Record().PopulateList = {{"S", "P"}, {"", "P"}, {"S", ""}, {".", "Desk"}};
    Record().PruneList = {{"S", "P"}, {"", "P"}, {"S", ""}, {".*", "*"}};
    Load();
    EXPECT_EQ(ItemsIn(window, "lstPopulate"), (Texts{"S >> P", "S >> ", ". >> Desk"}));
    EXPECT_EQ(ItemsIn(window, "lstManualPrune"), (Texts{"S >> P", ".* >> *"}));
    Store();
    EXPECT_EQ(Record().PopulateList,
              WithPlaceholder<ServerPrinterName>({{"S", "P"}, {"S", ""}, {".", "Desk"}}));
    EXPECT_EQ(Record().PruneList, WithPlaceholder<ServerPrinterName>({{"S", "P"}, {".*", "*"}}));
}

TEST_F(BindingLists, ShowDriversWithPrinterAndDriverName) {
    Record().PrinterDrivers = {
        {"P", "D", "F", "L"}, {"", "D", "F", "L"}, {"P", "", "F", "L"}, {"Q", "D", "", ""}};
    Load();
    EXPECT_EQ(ItemsIn(window, "lstPrinterDrivers"), (Texts{"P >> D >> F >> L", "Q >> D >>  >> "}));
    Store();
    EXPECT_EQ(Record().PrinterDrivers,
              WithPlaceholder<PrinterDriver>({{"P", "D", "F", "L"}, {"Q", "D", "", ""}}));
}

TEST_F(BindingLists, AnEmptyListBoxIsStoredAsOnePlaceholder) {
    Load();
    Store();
    EXPECT_EQ(Record().ServerPairs, std::vector<NamePair>(1));
    EXPECT_EQ(Record().PrinterPairs, std::vector<NamePair>(1));
    EXPECT_EQ(Record().MixedPairs, std::vector<MixedPair>(1));
    EXPECT_EQ(Record().EmailTo, Texts(1));
    EXPECT_EQ(Record().PopulateList, std::vector<ServerPrinterName>(1));
    EXPECT_EQ(Record().PruneList, std::vector<ServerPrinterName>(1));
    EXPECT_EQ(Record().PrinterDrivers, std::vector<PrinterDriver>(1));
}

TEST_F(BindingLists, MissingPiecesAreStoredEmpty) {
    PutItems(window, "lstServerPairs", {"alone"});
    PutItems(window, "lstMixedPrintersAndServers", {"alone", "A -> B"});
    PutItems(window, "lstPopulate", {"alone"});
    PutItems(window, "lstPrinterDrivers", {"bare", "two >> driver"});
    Store();
    EXPECT_EQ(Record().ServerPairs, WithPlaceholder<NamePair>({{"alone", ""}}));
    ASSERT_EQ(Record().MixedPairs.size(), 3U);
    EXPECT_EQ(Record().MixedPairs[1].FromServer, "alone");
    EXPECT_EQ(Record().MixedPairs[1].ToServer, "");
    EXPECT_EQ(Record().MixedPairs[2].ToServer, "B");
    EXPECT_EQ(Record().PopulateList, WithPlaceholder<ServerPrinterName>({{"alone", ""}}));
    EXPECT_EQ(Record().PrinterDrivers,
              WithPlaceholder<PrinterDriver>({{"bare", "", "", ""}, {"two", "driver", "", ""}}));
}

TEST_F(BindingLists, ListsAreReplacedNotAppended) {
    Record().ServerPairs = {{"A", "B"}};
    Load();
    Load();
    EXPECT_EQ(ItemsIn(window, "lstServerPairs"), Texts{"A -> B"});
    Store();
    Store();
    EXPECT_EQ(Record().ServerPairs, WithPlaceholder<NamePair>({{"A", "B"}}));
}

} // namespace
} // namespace window_test
