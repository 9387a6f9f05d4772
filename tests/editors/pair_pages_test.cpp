// New, Save, Delete and the list on the three pages of migration pairs.
#include "editors/pair_pages.h"

#include "tests/editors/page_test.h"

namespace window_test {
namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

struct PairPage {
    const char* name;
    const char* list;
    Texts boxes;
    const char* newButton;
    const char* saveButton;
    const char* deleteButton;
    const char* question;
    const char* required;
    bool typingMarks;
    Texts first; ///< what is typed for a first pair, and the item it becomes
    const char* firstItem;
    Texts second;
    const char* secondItem;
};

void PrintTo(const PairPage& page, std::ostream* out) {
    *out << page.name;
}

const PairPage kServers{
    "Servers",
    "lstServerPairs",
    {"txtFromServer", "txtToServer"},
    "cmdNewServerPair",
    "cmdSaveServerPair",
    "cmdDeleteServer",
    "Are you sure that you want to delete the selected Print Server pair?",
    "Both a From and To Print Server name is required. Please enter both print server names.",
    false,
    {"OLDSRV", "NEWSRV"},
    "OLDSRV -> NEWSRV",
    {" old two ", "new two"},
    " old two  -> new two"};

const PairPage kPrinters{
    "Printers",
    "lstPrinterPairs",
    {"txtFromPrinter", "txtToPrinter"},
    "cmdNewPrinter",
    "cmdPrinterSave",
    "cmdDeletePrinter",
    "Are you sure that you want to delete the selected Printer pair?",
    "Both a From and To Printer name is required. Please enter both printer names.",
    true,
    {"HP1", "HP2"},
    "HP1 -> HP2",
    {"Büro", "Flur"},
    "Büro -> Flur"};

const PairPage kMixed{
    "Mixed",
    "lstMixedPrintersAndServers",
    {"txtMixedFromServer", "txtMixedFromPrinter", "txtMixedToServer", "txtMixedToPrinter"},
    "cmdMixedNew",
    "cmdMixedSave",
    "cmdMixedDelete",
    "Are you sure that you want to delete the selected Server and Printer pair?",
    "Both a From and To Server and Printer name is required. Please enter both server and printer "
    "names.",
    true,
    {"OLDSRV", "HP1", "NEWSRV", "HP2"},
    "OLDSRV >> HP1 -> NEWSRV >> HP2",
    {"S3", "P3", "S4", "P4"},
    "S3 >> P3 -> S4 >> P4"};

class PairPages : public PageTest, public testing::WithParamInterface<PairPage> {
protected:
    PairPages() {
        if (spec.name == std::string("Servers")) {
            adding = &Make<editors::ServersPage>(2).m_bolNewServerPair;
        } else if (spec.name == std::string("Printers")) {
            adding = &Make<editors::PrintersPage>(10).m_bolNewPrinterPair;
        } else {
            adding = &Make<editors::MixedPage>(11).m_bolNewMixedPair;
        }
        *adding = true;
    }

    void Fill(const Texts& texts) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            PutText(page, spec.boxes[i], texts[i]);
        }
    }

    [[nodiscard]] Texts Boxes() const {
        Texts texts;
        for (const std::string& box : spec.boxes) {
            texts.push_back(TextIn(page, box));
        }
        return texts;
    }

    [[nodiscard]] Texts Empty() const { return Texts(spec.boxes.size()); }
    [[nodiscard]] Texts Items() const { return ItemsIn(page, spec.list); }

    void HasBothPairs() {
        PutItems(page, spec.list, {spec.firstItem, spec.secondItem});
        *adding = false;
    }

    void ExpectRequired(ModalScript& dialogs) const {
        dialogs.ExpectMessage({spec.required, "Save Error", Buttons::Ok, Icon::Critical});
    }

    void ExpectQuestion(ModalScript& dialogs, Answer answer) const {
        dialogs.ExpectMessage({spec.question, "Delete?", Buttons::YesNo, Icon::Question}, answer);
    }

    const PairPage& spec = GetParam();
    bool* adding = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Pages, PairPages, testing::Values(kServers, kPrinters, kMixed),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(PairPages, NewEmptiesTheBoxesAndAddsNext) {
    *adding = false;
    Fill(spec.first);
    Push(page, spec.newButton);
    EXPECT_TRUE(*adding);
    EXPECT_EQ(Boxes(), Empty());
    EXPECT_FALSE(Changed());
}

TEST_P(PairPages, SaveWhileAddingAppendsAndSelects) {
    PutItems(page, spec.list, {spec.secondItem});
    Fill(spec.first);
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), (Texts{spec.secondItem, spec.firstItem}));
    EXPECT_EQ(RowIn(page, spec.list), 1);
    EXPECT_FALSE(*adding);
    EXPECT_TRUE(Changed());
    EXPECT_EQ(Boxes(), spec.first);
}

TEST_P(PairPages, SaveKeepsBlanksAndDuplicates) {
    HasBothPairs();
    *adding = true;
    Fill(spec.second);
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), (Texts{spec.firstItem, spec.secondItem, spec.secondItem}));
}

TEST_P(PairPages, SaveWhileEditingReplacesInPlace) {
    PutItems(page, spec.list, {spec.firstItem, spec.firstItem, spec.firstItem});
    *adding = false;
    SelectRow(page, spec.list, 1);
    Fill(spec.second);
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), (Texts{spec.firstItem, spec.secondItem, spec.firstItem}));
    EXPECT_EQ(RowIn(page, spec.list), 1);
    EXPECT_FALSE(*adding);
    EXPECT_TRUE(Changed());
}

TEST_P(PairPages, SaveRefusesAnyMissingName) {
    for (std::size_t missing = 0; missing < spec.boxes.size(); ++missing) {
        HasBothPairs();
        *adding = true;
        Texts texts = spec.first;
        texts[missing].clear();
        Fill(texts);
        ModalScript dialogs;
        ExpectRequired(dialogs);
        Push(page, spec.saveButton);
        EXPECT_EQ(Items(), (Texts{spec.firstItem, spec.secondItem})) << spec.boxes[missing];
        EXPECT_EQ(Boxes(), texts);
        EXPECT_TRUE(*adding);
        EXPECT_FALSE(Changed());
    }
}

TEST_P(PairPages, SaveWhileEditingRefusesAMissingName) {
    HasBothPairs();
    SelectRow(page, spec.list, 0);
    Fill(Empty());
    ModalScript dialogs;
    ExpectRequired(dialogs);
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), (Texts{spec.firstItem, spec.secondItem}));
    EXPECT_FALSE(*adding);
    EXPECT_FALSE(Changed());
}

TEST_P(PairPages, SaveWhileEditingWithNothingSelectedSaysSo) {
    HasBothPairs();
    SelectRow(page, spec.list, wxNOT_FOUND);
    Fill(spec.first);
    ModalScript dialogs;
    dialogs.ExpectMessage({"Please select the entry to change, or press New.", "Save Error",
                           Buttons::Ok, Icon::Critical});
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), (Texts{spec.firstItem, spec.secondItem}));
    EXPECT_FALSE(*adding);
    EXPECT_FALSE(Changed());
}

TEST_P(PairPages, SaveWhileEditingAnEmptyListMarksTheDocumentOnly) {
    *adding = false;
    Fill(spec.first);
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), Texts{});
    EXPECT_FALSE(*adding);
    EXPECT_TRUE(Changed());
}

TEST_P(PairPages, DeleteWhileAddingEmptiesTheBoxesWithoutAQuestion) {
    HasBothPairs();
    *adding = true;
    SelectRow(page, spec.list, 0);
    Fill(spec.first);
    const ModalScript noDialogs;
    Push(page, spec.deleteButton);
    EXPECT_EQ(Boxes(), Empty());
    EXPECT_EQ(Items(), (Texts{spec.firstItem, spec.secondItem}));
    EXPECT_TRUE(*adding);
    EXPECT_FALSE(Changed());
}

TEST_P(PairPages, DeleteFromAnEmptyListDoesNothing) {
    *adding = false;
    Fill(spec.first);
    const ModalScript noDialogs;
    Push(page, spec.deleteButton);
    EXPECT_EQ(Boxes(), spec.first);
    EXPECT_FALSE(*adding);
    EXPECT_FALSE(Changed());
}

TEST_P(PairPages, DeleteAnsweredNoKeepsEverything) {
    HasBothPairs();
    ClickRow(page, spec.list, 0);
    ModalScript dialogs;
    ExpectQuestion(dialogs, Answer::No);
    Push(page, spec.deleteButton);
    EXPECT_EQ(Items(), (Texts{spec.firstItem, spec.secondItem}));
    EXPECT_EQ(Boxes(), spec.first);
    EXPECT_FALSE(*adding);
    EXPECT_FALSE(Changed());
}

TEST_P(PairPages, DeleteAnsweredYesRemovesTheRowAndAddsNext) {
    HasBothPairs();
    ClickRow(page, spec.list, 0);
    ModalScript dialogs;
    ExpectQuestion(dialogs, Answer::Yes);
    Push(page, spec.deleteButton);
    EXPECT_EQ(Items(), Texts{spec.secondItem});
    EXPECT_EQ(Boxes(), Empty());
    EXPECT_TRUE(*adding);
    EXPECT_TRUE(Changed());
    Fill(spec.first);
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), (Texts{spec.secondItem, spec.firstItem}));
}

TEST_P(PairPages, AClickOnTheListFillsTheBoxes) {
    HasBothPairs();
    *adding = true;
    ClickRow(page, spec.list, 1);
    EXPECT_EQ(Boxes(), spec.second);
    EXPECT_FALSE(*adding);
    EXPECT_FALSE(Changed());
}

TEST_P(PairPages, ARowSelectedByProgramRunsNothing) {
    HasBothPairs();
    *adding = true;
    SelectRow(page, spec.list, 1);
    EXPECT_EQ(Boxes(), Empty());
    EXPECT_TRUE(*adding);
}

TEST_P(PairPages, AnItemWithoutSeparatorFillsTheFirstBox) {
    PutItems(page, spec.list, {"lonely"});
    Fill(spec.first);
    ClickRow(page, spec.list, 0);
    Texts expected = Empty();
    expected[0] = "lonely";
    EXPECT_EQ(Boxes(), expected);
    EXPECT_FALSE(*adding);
}

TEST_P(PairPages, TypingMarksTheDocumentWhereThePageSaysSo) {
    for (const std::string& box : spec.boxes) {
        ForgetChanges();
        Enter(page, box, "typed");
        EXPECT_EQ(Changed(), spec.typingMarks) << box;
    }
}

TEST(PairPageItems, NamesThatHoldASeparatorAreStoredUnchangedAndSplitAtTheFirst) {
    platform::ui::InstallMessageBoxes();
    HostFrame host;
    auto* const page = new editors::ServersPage(&host.Frame(), 2);
    page->m_bolNewServerPair = true;
    PutText(page, "txtFromServer", "A -> B");
    PutText(page, "txtToServer", "C");
    Push(page, "cmdSaveServerPair");
    EXPECT_EQ(ItemsIn(page, "lstServerPairs"), Texts{"A -> B -> C"});
    ClickRow(page, "lstServerPairs", 0);
    EXPECT_EQ(TextIn(page, "txtFromServer"), "A");
    EXPECT_EQ(TextIn(page, "txtToServer"), "B");
}

TEST(PairPageItems, AMixedItemLacksNoMoreThanItsMissingPieces) {
    platform::ui::InstallMessageBoxes();
    HostFrame host;
    auto* const page = new editors::MixedPage(&host.Frame(), 11);
    PutItems(page, "lstMixedPrintersAndServers", {"S1 -> S2 >> P2", "S1 >> P1 -> S2"});
    ClickRow(page, "lstMixedPrintersAndServers", 0);
    EXPECT_EQ(TextIn(page, "txtMixedFromServer"), "S1");
    EXPECT_EQ(TextIn(page, "txtMixedFromPrinter"), "");
    EXPECT_EQ(TextIn(page, "txtMixedToServer"), "S2");
    EXPECT_EQ(TextIn(page, "txtMixedToPrinter"), "P2");
    ClickRow(page, "lstMixedPrintersAndServers", 1);
    EXPECT_EQ(TextIn(page, "txtMixedFromPrinter"), "P1");
    EXPECT_EQ(TextIn(page, "txtMixedToPrinter"), "");
}

} // namespace
} // namespace window_test
