// What Populate and Prune have in common: New, Save, Delete and the list.
#include "editors/maintenance_pages.h"

#include "tests/editors/page_test.h"

namespace window_test {
namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

struct MaintenancePage {
    const char* name;
    const char* list;
    const char* server;
    const char* printer;
    const char* newButton;
    const char* saveButton;
    const char* deleteButton;
    const char* required;
    const char* question;
    bool typingMarks;
};

void PrintTo(const MaintenancePage& page, std::ostream* out) {
    *out << page.name;
}

class MaintenancePages : public PageTest, public testing::WithParamInterface<MaintenancePage> {
protected:
    MaintenancePages() {
        if (spec.name == std::string("Populate")) {
            auto& populate = Make<editors::PopulatePage>(17);
            adding = &populate.m_bolNewPopulate;
            Choose(page, "cboPopulateType", 1);
        } else {
            auto& prune = Make<editors::PrunePage>(12);
            adding = &prune.m_bolNewPrune;
            Choose(page, "cboPruneType", 4);
        }
        *adding = true;
    }

    void Fill(const std::string& server, const std::string& printer) {
        PutText(page, spec.server, server);
        PutText(page, spec.printer, printer);
    }

    [[nodiscard]] Texts Boxes() const {
        return {TextIn(page, spec.server), TextIn(page, spec.printer)};
    }

    [[nodiscard]] Texts Items() const { return ItemsIn(page, spec.list); }

    const MaintenancePage& spec = GetParam();
    bool* adding = nullptr;
};

INSTANTIATE_TEST_SUITE_P(
    Pages, MaintenancePages,
    testing::Values(
        MaintenancePage{
            "Populate", "lstPopulate", "txtPopulateServerName", "txtPopulatePrinterName",
            "cmdPopulateNew", "cmdPopulateSave", "cmdPopulateDelete",
            "Please enter either a printer name and a server name. Boht are is required.",
            "Are you sure that you want to delete the selected Printer and Server pair?", true},
        MaintenancePage{
            "Prune", "lstManualPrune", "txtPruneServerName", "txtPrunePrinterName", "cmdPruneNew",
            "cmdPruneSave", "cmdPruneDelete",
            "Please enter either a printer name or a server name. Either one is required.",
            "Are you sure that you want to delete the selected Printer and/or Server pair?",
            false}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_P(MaintenancePages, NewEmptiesTheBoxesAndAddsNext) {
    *adding = false;
    Fill("SRV", "HP");
    Push(page, spec.newButton);
    EXPECT_TRUE(*adding);
    EXPECT_EQ(Boxes(), (Texts{"", ""}));
    EXPECT_FALSE(Changed());
}

TEST_P(MaintenancePages, SaveWhileAddingAppendsAndSelects) {
    PutItems(page, spec.list, {"A >> B"});
    Fill("SRV", "HP 1");
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), (Texts{"A >> B", "SRV >> HP 1"}));
    EXPECT_EQ(RowIn(page, spec.list), 1);
    EXPECT_FALSE(*adding);
    EXPECT_TRUE(Changed());
}

TEST_P(MaintenancePages, SaveWhileEditingReplacesInPlace) {
    PutItems(page, spec.list, {"A >> B", "C >> D", "E >> F"});
    ClickRow(page, spec.list, 1);
    Fill("C", "changed");
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), (Texts{"A >> B", "C >> changed", "E >> F"}));
    EXPECT_EQ(RowIn(page, spec.list), 1);
    EXPECT_TRUE(Changed());
}

TEST_P(MaintenancePages, SaveRefusesAMissingName) {
    for (const Texts& texts : {Texts{"", ""}, Texts{"SRV", ""}, Texts{"", "HP"}}) {
        for (const bool state : {true, false}) {
            *adding = state;
            PutItems(page, spec.list, {"A >> B"});
            Fill(texts[0], texts[1]);
            ModalScript dialogs;
            dialogs.ExpectMessage(
                {spec.required, "Error, Input Required", Buttons::Ok, Icon::Exclamation});
            Push(page, spec.saveButton);
            EXPECT_EQ(Items(), Texts{"A >> B"});
            EXPECT_EQ(Boxes(), texts);
            EXPECT_EQ(*adding, state);
            EXPECT_FALSE(Changed());
        }
    }
}

TEST_P(MaintenancePages, SaveWhileEditingWithNothingSelectedSaysSo) {
    PutItems(page, spec.list, {"A >> B"});
    *adding = false;
    Fill("SRV", "HP");
    ModalScript dialogs;
    dialogs.ExpectMessage({"Please select the entry to change, or press New.",
                           "Error, Input Required", Buttons::Ok, Icon::Exclamation});
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), Texts{"A >> B"});
    EXPECT_FALSE(*adding);
    EXPECT_FALSE(Changed());
}

TEST_P(MaintenancePages, SaveWhileEditingAnEmptyListMarksTheDocumentOnly) {
    *adding = false;
    Fill("SRV", "HP");
    Push(page, spec.saveButton);
    EXPECT_EQ(Items(), Texts{});
    EXPECT_FALSE(*adding);
    EXPECT_TRUE(Changed());
}

TEST_P(MaintenancePages, DeleteWhileAddingEmptiesTheBoxesWithoutAQuestion) {
    PutItems(page, spec.list, {"A >> B"});
    SelectRow(page, spec.list, 0);
    Fill("SRV", "HP");
    const ModalScript noDialogs;
    Push(page, spec.deleteButton);
    EXPECT_EQ(Boxes(), (Texts{"", ""}));
    EXPECT_EQ(Items(), Texts{"A >> B"});
    EXPECT_TRUE(*adding);
    EXPECT_FALSE(Changed());
}

TEST_P(MaintenancePages, DeleteFromAnEmptyListDoesNothing) {
    *adding = false;
    Fill("SRV", "HP");
    const ModalScript noDialogs;
    Push(page, spec.deleteButton);
    EXPECT_EQ(Boxes(), (Texts{"SRV", "HP"}));
    EXPECT_FALSE(*adding);
    EXPECT_FALSE(Changed());
}

TEST_P(MaintenancePages, DeleteAsksAndRemovesOnYes) {
    PutItems(page, spec.list, {"A >> B", "C >> D"});
    ClickRow(page, spec.list, 0);
    ModalScript dialogs;
    const platform::Message question{spec.question, "Delete?", Buttons::YesNo, Icon::Question};
    dialogs.ExpectMessage(question, Answer::No);
    Push(page, spec.deleteButton);
    EXPECT_EQ(Items(), (Texts{"A >> B", "C >> D"}));
    EXPECT_EQ(Boxes(), (Texts{"A", "B"}));
    EXPECT_FALSE(*adding);
    EXPECT_FALSE(Changed());
    dialogs.ExpectMessage(question, Answer::Yes);
    Push(page, spec.deleteButton);
    EXPECT_EQ(Items(), Texts{"C >> D"});
    EXPECT_EQ(Boxes(), (Texts{"", ""}));
    EXPECT_TRUE(*adding);
    EXPECT_TRUE(Changed());
}

TEST_P(MaintenancePages, AClickOnTheListFillsTheBoxesAndEdits) {
    PutItems(page, spec.list, {"A >> B", "SRV >> HP", "lonely"});
    ClickRow(page, spec.list, 1);
    EXPECT_EQ(Boxes(), (Texts{"SRV", "HP"}));
    EXPECT_FALSE(*adding);
    EXPECT_FALSE(Changed());
    ClickRow(page, spec.list, 2);
    EXPECT_EQ(Boxes(), (Texts{"lonely", ""}));
}

TEST_P(MaintenancePages, TypingMarksTheDocumentWhereThePageSaysSo) {
    for (const char* box : {spec.server, spec.printer}) {
        ForgetChanges();
        Enter(page, box, "typed");
        EXPECT_EQ(Changed(), spec.typingMarks) << box;
    }
}

} // namespace
} // namespace window_test
