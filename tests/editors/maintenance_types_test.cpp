// The type choices of Populate and Prune and the reserved names that they write.
#include "editors/maintenance_pages.h"

#include "tests/editors/page_test.h"

namespace window_test {
namespace {

class PopulateType : public PageTest {
protected:
    PopulateType() {
        populate = &Make<editors::PopulatePage>(17);
        populate->m_bolNewPopulate = true;
    }

    void ExpectServerBox(const std::string& text, bool open) {
        EXPECT_EQ(TextIn(page, "txtPopulateServerName"), text);
        EXPECT_EQ(IsEnabled(page, "txtPopulateServerName"), open);
        EXPECT_EQ(ColourOf(page, "txtPopulateServerName"),
                  open ? ColourOf(page, "lstPopulate") : ColourText(frame->GetBackgroundColour()));
    }

    editors::PopulatePage* populate;
};

TEST_F(PopulateType, LocalFillsAndClosesTheServerBox) {
    PutText(page, "txtPopulateServerName", "SRV");
    PutText(page, "txtPopulatePrinterName", "HP");
    Choose(page, "cboPopulateType", 0);
    ExpectServerBox(".", false);
    EXPECT_EQ(TextIn(page, "txtPopulatePrinterName"), "HP");
    EXPECT_FALSE(Changed());
}

TEST_F(PopulateType, NetworkedEmptiesAndOpensTheServerBox) {
    Choose(page, "cboPopulateType", 0);
    PutText(page, "txtPopulatePrinterName", "HP");
    Choose(page, "cboPopulateType", 1);
    ExpectServerBox("", true);
    EXPECT_EQ(TextIn(page, "txtPopulatePrinterName"), "HP");
    EXPECT_FALSE(Changed());
}

TEST_F(PopulateType, NewKeepsTheTypeAndItsServer) {
    Choose(page, "cboPopulateType", 0);
    PutText(page, "txtPopulatePrinterName", "HP");
    Push(page, "cmdPopulateNew");
    ExpectServerBox(".", false);
    EXPECT_EQ(TextIn(page, "txtPopulatePrinterName"), "");
    EXPECT_EQ(TextIn(page, "cboPopulateType"), "Local");
    Enter(page, "txtPopulatePrinterName", "Desk");
    Push(page, "cmdPopulateSave");
    EXPECT_EQ(ItemsIn(page, "lstPopulate"), Texts{". >> Desk"});
}

TEST_F(PopulateType, AClickChoosesTheTypeByTheServer) {
    PutItems(page, "lstPopulate", {"SRV >> HP", ". >> Desk", "* >> X", ".* >> Y"});
    struct Row {
        int row;
        const char* type;
        const char* server;
        bool open;
    };
    for (const Row& row : {Row{1, "Local", ".", false}, Row{0, "Networked", "SRV", true},
                           Row{1, "Local", ".", false}, Row{2, "Networked", "*", true},
                           Row{3, "Networked", ".*", true}}) {
        ClickRow(page, "lstPopulate", row.row);
        EXPECT_EQ(TextIn(page, "cboPopulateType"), row.type);
        ExpectServerBox(row.server, row.open);
    }
    EXPECT_EQ(TextIn(page, "txtPopulatePrinterName"), "Y");
    EXPECT_FALSE(populate->m_bolNewPopulate);
    EXPECT_FALSE(Changed());
}

class PruneType : public PageTest {
protected:
    PruneType() {
        prune = &Make<editors::PrunePage>(12);
        prune->m_bolNewPrune = true;
    }

    void ExpectBox(const char* box, const std::string& text, bool open) {
        EXPECT_EQ(TextIn(page, box), text) << box;
        EXPECT_EQ(IsEnabled(page, box), open) << box;
        EXPECT_EQ(ColourOf(page, box), open ? ColourOf(page, "lstManualPrune")
                                            : ColourText(frame->GetBackgroundColour()))
            << box;
    }

    void ExpectBoxes(const std::string& server, bool serverOpen, const std::string& printer,
                     bool printerOpen) {
        ExpectBox("txtPruneServerName", server, serverOpen);
        ExpectBox("txtPrunePrinterName", printer, printerOpen);
    }

    editors::PrunePage* prune;
};

TEST_F(PruneType, EachTypeClosesTheBoxThatItFills) {
    struct Row {
        int index;
        const char* type;
        const char* server;
        bool serverOpen;
        const char* printer;
        bool printerOpen;
    };
    for (const Row& row : {Row{0, "Local Printer Only", ".", false, "HP", true},
                           Row{1, "Networked Printer Only", "*", false, "HP", true},
                           Row{2, "Local and Networked Printer Only", ".*", false, "HP", true},
                           Row{3, "Server Only", "SRV", true, "*", false},
                           Row{4, "Printer and Server", "SRV", true, "HP", true}}) {
        PutText(page, "txtPruneServerName", "SRV");
        PutText(page, "txtPrunePrinterName", "HP");
        Choose(page, "cboPruneType", row.index);
        EXPECT_EQ(TextIn(page, "cboPruneType"), row.type);
        ExpectBoxes(row.server, row.serverOpen, row.printer, row.printerOpen);
        EXPECT_FALSE(Changed()) << row.type;
    }
}

TEST_F(PruneType, NewAndDeleteGoBackToPrinterAndServer) {
    Choose(page, "cboPruneType", 0);
    prune->m_bolNewPrune = false;
    Push(page, "cmdPruneNew");
    EXPECT_EQ(TextIn(page, "cboPruneType"), "Printer and Server");
    ExpectBoxes("", true, "", true);
    Choose(page, "cboPruneType", 3);
    Push(page, "cmdPruneDelete");
    EXPECT_EQ(TextIn(page, "cboPruneType"), "Printer and Server");
    ExpectBoxes("", true, "", true);
    PutItems(page, "lstManualPrune", {". >> HP"});
    ClickRow(page, "lstManualPrune", 0);
    ModalScript dialogs;
    dialogs.ExpectMessage(
        {"Are you sure that you want to delete the selected Printer and/or Server pair?", "Delete?",
         platform::Buttons::YesNo, platform::Icon::Question},
        platform::Answer::Yes);
    Push(page, "cmdPruneDelete");
    EXPECT_EQ(TextIn(page, "cboPruneType"), "Printer and Server");
    ExpectBoxes("", true, "", true);
}

TEST_F(PruneType, AClickChoosesTheTypeByTheReservedNames) {
    PutItems(page, "lstManualPrune",
             {". >> HP", "* >> HP", ".* >> HP", "SRV >> *", "SRV >> HP", ". >> *", ".* >> *"});
    struct Row {
        int row;
        const char* type;
        const char* server;
        bool serverOpen;
        const char* printer;
        bool printerOpen;
    };
    for (const Row& row : {Row{0, "Local Printer Only", ".", false, "HP", true},
                           Row{1, "Networked Printer Only", "*", false, "HP", true},
                           Row{2, "Local and Networked Printer Only", ".*", false, "HP", true},
                           Row{3, "Server Only", "SRV", true, "*", false},
                           Row{4, "Printer and Server", "SRV", true, "HP", true},
                           Row{5, "Server Only", ".", true, "*", false},
                           Row{6, "Server Only", ".*", true, "*", false},
                           Row{0, "Local Printer Only", ".", false, "HP", true}}) {
        ClickRow(page, "lstManualPrune", row.row);
        EXPECT_EQ(TextIn(page, "cboPruneType"), row.type) << row.row;
        ExpectBoxes(row.server, row.serverOpen, row.printer, row.printerOpen);
        EXPECT_FALSE(prune->m_bolNewPrune);
    }
    EXPECT_FALSE(Changed());
}

TEST_F(PruneType, ServerOnlyIsSavedWithEveryPrinter) {
    Choose(page, "cboPruneType", 3);
    Enter(page, "txtPruneServerName", "SRV1");
    Push(page, "cmdPruneSave");
    EXPECT_EQ(ItemsIn(page, "lstManualPrune"), Texts{"SRV1 >> *"});
}

TEST_F(PruneType, TheTwoCheckBoxesMarkTheDocument) {
    for (const char* name : {"chkADPruneAll", "chkDeleteNonNetworked"}) {
        for (const bool on : {true, false}) {
            ForgetChanges();
            Tick(page, name, on);
            EXPECT_TRUE(Changed()) << name;
        }
    }
}

} // namespace
} // namespace window_test
