#include "document/item_text.h"

#include <gtest/gtest.h>

namespace {

using namespace modINIDocument;
using Texts = std::vector<std::string>;

TEST(ItemText, SplitsAtTheWholeSeparatorOnly) {
    EXPECT_EQ(Split("a -> b -> c", kArrow), (Texts{"a", "b", "c"}));
    EXPECT_EQ(Split("a->b", kArrow), Texts{"a->b"});
    EXPECT_EQ(Split("", kArrow), Texts{});
    EXPECT_EQ(Split(" -> ", kArrow), (Texts{"", ""}));
}

TEST(ItemText, AMissingPieceIsEmpty) {
    EXPECT_EQ(Piece({"a"}, 0), "a");
    EXPECT_EQ(Piece({"a"}, 1), "");
    EXPECT_EQ(Piece({}, 0), "");
}

TEST(ItemText, ShowsEachKindOfElement) {
    EXPECT_EQ(ItemText(NamePair{"A", "B"}), "A -> B");
    EXPECT_EQ(ItemText(MixedPair{"S1", "P1", "P2", "S2"}), "S1 >> P1 -> S2 >> P2");
    EXPECT_EQ(ItemText(ServerPrinterName{"S", "P"}), "S >> P");
    EXPECT_EQ(ItemText(PrinterDriver{"P", "D", "F", "O"}), "P >> D >> F >> O");
}

TEST(ItemText, ReadsEachKindBack) {
    EXPECT_EQ(NamePairFromItem("A -> B"), (NamePair{"A", "B"}));
    EXPECT_EQ(MixedPairFromItem("S1 >> P1 -> S2 >> P2"), (MixedPair{"S1", "P1", "P2", "S2"}));
    EXPECT_EQ(ServerPrinterNameFromItem("S >> P"), (ServerPrinterName{"S", "P"}));
    EXPECT_EQ(PrinterDriverFromItem("P >> D >> F >> O"), (PrinterDriver{"P", "D", "F", "O"}));
}

TEST(ItemText, PiecesAreNotTrimmed) {
    EXPECT_EQ(NamePairFromItem(" A  ->  B "), (NamePair{" A ", " B "}));
}

TEST(ItemText, AnIncompleteTextLeavesFieldsEmpty) {
    EXPECT_EQ(NamePairFromItem("A"), (NamePair{"A", ""}));
    EXPECT_EQ(NamePairFromItem(""), (NamePair{"", ""}));
    EXPECT_EQ(MixedPairFromItem("S1"), (MixedPair{"S1", "", "", ""}));
    EXPECT_EQ(MixedPairFromItem("S1 -> S2"), (MixedPair{"S1", "", "", "S2"}));
    EXPECT_EQ(ServerPrinterNameFromItem("S"), (ServerPrinterName{"S", ""}));
    EXPECT_EQ(PrinterDriverFromItem("Laser"), (PrinterDriver{"Laser", "", "", ""}));
    EXPECT_EQ(PrinterDriverFromItem("Laser >> D"), (PrinterDriver{"Laser", "D", "", ""}));
}

TEST(ItemText, PiecesBeyondTheLastFieldAreLost) {
    EXPECT_EQ(NamePairFromItem("A -> B -> C"), (NamePair{"A", "B"}));
    EXPECT_EQ(PrinterDriverFromItem("1 >> 2 >> 3 >> 4 >> 5"), (PrinterDriver{"1", "2", "3", "4"}));
}

TEST(ItemText, PlaceholdersAreNotShown) {
    EXPECT_EQ(ServerOrPrinterPairItems({{"", ""}, {"A", "B"}, {"", "C"}}), Texts{"A -> B"});
    EXPECT_EQ(MixedPairItems({{}, {"S", "", "", ""}, {"", "P", "Q", "T"}}), Texts{"S >>  ->  >> "});
    EXPECT_EQ(EmailToItems({"", "a", ""}), Texts{"a"});
    EXPECT_EQ(PopulateItems({{"", "P"}, {"S", ""}}), Texts{"S >> "});
}

TEST(ItemText, APruneItemNeedsServerAndPrinter) {
    EXPECT_EQ(PruneItems({{"S", ""}, {"", "P"}, {".", "*"}}), Texts{". >> *"});
}

TEST(ItemText, ADriverItemNeedsPrinterAndDriver) {
    EXPECT_EQ(PrinterDriverItems({{"P", "", "F", "O"}, {"", "D", "", ""}, {"P", "D", "", ""}}),
              Texts{"P >> D >>  >> "});
}

TEST(ItemText, AListFromItemsBeginsWithAPlaceholder) {
    EXPECT_EQ(NamePairsFromItems({"A -> B"}), (std::vector<NamePair>{{"", ""}, {"A", "B"}}));
    EXPECT_EQ(MixedPairsFromItems({"a >> b -> c >> d"}),
              (std::vector<MixedPair>{{}, {"a", "b", "d", "c"}}));
    EXPECT_EQ(EmailToFromItems({"x", "y"}), (Texts{"", "x", "y"}));
    EXPECT_EQ(ServerPrinterNamesFromItems({"S >> P"}),
              (std::vector<ServerPrinterName>{{}, {"S", "P"}}));
    EXPECT_EQ(PrinterDriversFromItems({"Laser"}),
              (std::vector<PrinterDriver>{{}, {"Laser", "", "", ""}}));
    EXPECT_EQ(NamePairsFromItems({}), std::vector<NamePair>(1));
}

TEST(ItemText, TenThousandItemsGoThereAndBack) {
    std::vector<NamePair> list(1);
    for (int i = 0; i < 10000; ++i) {
        list.push_back({"from" + std::to_string(i), "to" + std::to_string(i)});
    }
    const auto items = ServerOrPrinterPairItems(list);
    EXPECT_EQ(items.size(), 10000u);
    EXPECT_EQ(NamePairsFromItems(items), list);
}

} // namespace
