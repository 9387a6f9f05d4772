// The drivers and default printers that follow from the lists, as plain functions.
#include "wizard/derived_lists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace modWizard {
namespace {

MigrationLists Lists(const Items& mixed, const Items& printerPairs = {},
                     const Items& populate = {}) {
    return {mixed, printerPairs, populate};
}

MigrationLists Pairs(const Items& printerPairs) {
    return Lists({}, printerPairs);
}

TEST(MembershipTests, CompareWholeEntriesWithLetterCase) {
    const IndexedItems items({"HP", "\\\\S\\P", "HP >> D", ""});
    for (const auto test : {IsInDriverList, IsPrinterAndServerInForceListAlready}) {
        EXPECT_TRUE(test(items, "HP"));
        EXPECT_TRUE(test(items, "\\\\S\\P"));
        EXPECT_TRUE(test(items, ""));
        EXPECT_FALSE(test(items, "hp"));
        EXPECT_FALSE(test(items, "HP "));
        EXPECT_FALSE(test(items, "H"));
        EXPECT_FALSE(test(IndexedItems(), "HP"));
    }
}

TEST(DriverItems, ComeFromMixedThenPrinterPairsThenPopulate) {
    const MigrationLists lists =
        Lists({"S1 >> P1 -> S2 >> P2", "S1 >> P3 -> S2 >> P4"}, {"A -> B", "C -> P2"},
              {"SRV >> Q", ". >> Desk", "SRV2 >> B"});
    EXPECT_EQ(DriverItems(lists, {}), (Items{"P2", "P4", "B", "Q", "Desk"}));
}

TEST(DriverItems, TakeEachNameOnceButTellLetterCaseApart) {
    EXPECT_EQ(DriverItems(Pairs({"A -> HP", "B -> hp", "C -> HP", "D -> HP "}), {}),
              (Items{"HP", "hp", "HP "}));
}

TEST(DriverItems, ReadMissingPiecesAsEmpty) {
    EXPECT_EQ(DriverItems(Lists({"S1 >> P1"}, {}, {"SRV"}), {}), Items{""});
}

TEST(DriverItems, AreEmptyWithoutTargets) {
    EXPECT_EQ(DriverItems({}, {"HP >> D >> F >> L"}), Items{});
}

TEST(DriverItems, KeepTheSavedEntryOfAPrinterAndDropTheOthers) {
    EXPECT_EQ(DriverItems(Pairs({"A -> HP", "B -> Canon"}),
                          {"Gone >> D >> F >> L", "HP >> D1 >> F1 >> L1"}),
              (Items{"HP >> D1 >> F1 >> L1", "Canon"}));
}

TEST(DriverItems, TakeTheFirstSavedEntryThatBeginsAlikeInAnyCase) {
    EXPECT_EQ(DriverItems(Pairs({"A -> hp"}),
                          {"Other", "HP LaserJet >> D >> F >> L", "hp >> mine >> F >> L"}),
              Items{"HP LaserJet >> D >> F >> L"});
    EXPECT_EQ(DriverItems(Pairs({"A -> HP LaserJet"}), {"HP >> D >> F >> L"}),
              Items{"HP LaserJet"});
}

TEST(DriverItems, KnowTheLetterCaseOfEveryScript) {
    const Items saved{"Büro >> D >> F >> L", "αθηνα >> D", "печать >> D"};
    EXPECT_EQ(DriverItems(Pairs({"A -> BÜRO", "B -> ΑΘΗΝΑ", "C -> ПЕЧАТЬ"}), saved), saved);
}

TEST(DriverItems, LetTwoPrintersTakeTheSameEntry) {
    EXPECT_EQ(DriverItems(Pairs({"A -> H", "B -> HP"}), {"HP 5 >> D >> F >> L"}),
              (Items{"HP 5 >> D >> F >> L", "HP 5 >> D >> F >> L"}));
}

TEST(DriverItems, AnEmptyNameTakesTheFirstSavedEntry) {
    EXPECT_EQ(DriverItems(Pairs({"A -> "}), {"X >> D", "Y"}), Items{"X >> D"});
}

// The plain reading of the rule, entry by entry.
Items DriverItemsStepByStep(const MigrationLists& lists, const Items& saved) {
    const auto lower = [](std::string text) {
        std::ranges::transform(text, text.begin(), [](unsigned char letter) {
            return static_cast<char>(std::tolower(letter));
        });
        return text;
    };
    Items items;
    for (const std::string& pair : lists.printerPairs) {
        const std::string name = pair.substr(pair.find(" -> ") + 4);
        if (std::ranges::find(items, name) == items.end()) {
            items.push_back(name);
        }
    }
    for (std::string& item : items) {
        const auto found = std::ranges::find_if(saved, [&](const std::string& entry) {
            return lower(entry.substr(0, item.size())) == lower(item);
        });
        if (found != saved.end()) {
            item = *found;
        }
    }
    return items;
}

TEST(DriverItems, AgreeWithTheStepsOfTheRuleOnManyLists) {
    unsigned seed = 1;
    const auto random = [&seed](unsigned below) {
        seed = seed * 1103515245U + 12345U;
        return (seed >> 16U) % below;
    };
    const auto word = [&random] {
        std::string text;
        for (unsigned length = random(4) + 1; length > 0; --length) {
            text += "aAbB"[random(4)];
        }
        return text;
    };
    for (int round = 0; round < 300; ++round) {
        MigrationLists lists;
        Items saved;
        for (unsigned count = random(12); count > 0; --count) {
            lists.printerPairs.push_back("x -> " + word());
        }
        for (unsigned count = random(12); count > 0; --count) {
            saved.push_back(word() + (random(2) == 0 ? "" : " >> d >> f >> l"));
        }
        ASSERT_EQ(DriverItems(lists, saved), DriverItemsStepByStep(lists, saved)) << round;
    }
}

TEST(DefaultPrinterItems, AreFullNamesAndBareLocalOnes) {
    const MigrationLists lists =
        Lists({"S1 >> P1 -> S2 >> P2", "x >> y -> S2 >> P2", "x >> y -> s2 >> P2"}, {"A -> B"},
              {"SRV >> Q", ". >> Desk", "S2 >> P2", ". >> Desk", "* >> R"});
    EXPECT_EQ(DefaultPrinterItems(lists),
              (Items{"\\\\S2\\P2", "\\\\s2\\P2", "\\\\SRV\\Q", "Desk", "\\\\*\\R"}));
}

TEST(DefaultPrinterItems, AreEmptyForPrinterPairsAlone) {
    EXPECT_EQ(DefaultPrinterItems(Pairs({"A -> B"})), Items{});
}

TEST(LocalDrivers, MustNameDriverAndPort) {
    struct Row {
        const char* driver;
        bool lacks;
    };
    for (const Row& row :
         {Row{"Desk >> D >> F >> LPT1:", false}, Row{"Desk >> D >>  >> LPT1:", false},
          Row{"Desk >> D >> F >> ", true}, Row{"Desk >>  >> F >> LPT1:", true},
          Row{"Desk >> D", true}, Row{"Desk", true}, Row{"Desk >> D >> F", true},
          Row{"Desk >> D >> F >> L >> more", true}, Row{"desk >> D", false},
          Row{"Desk 2", false}}) {
        EXPECT_EQ(LacksLocalDriver({". >> Desk"}, {row.driver}), row.lacks) << row.driver;
        EXPECT_EQ(LacksLocalDriver({"SRV >> Q", ". >> Desk"}, {"Q", row.driver}), row.lacks);
    }
}

TEST(LocalDrivers, AreNotAskedOfOtherServersOrWithoutAnEntry) {
    EXPECT_FALSE(LacksLocalDriver({"SRV >> Desk", "* >> Desk", ".* >> Desk"}, {"Desk"}));
    EXPECT_FALSE(LacksLocalDriver({". >> Desk"}, {}));
    EXPECT_FALSE(LacksLocalDriver({}, {"Desk"}));
}

TEST(LocalDrivers, AreLackingWhenAnyEntryOfThePrinterIsIncomplete) {
    EXPECT_TRUE(LacksLocalDriver({". >> Desk"}, {"Desk >> D >> F >> L", "Desk"}));
}

} // namespace
} // namespace modWizard
