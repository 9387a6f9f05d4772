// The Drivers and Set Default pages.
#include "editors/default_page.h"
#include "editors/drivers_page.h"
#include "tests/editors/page_test.h"

namespace window_test {
namespace {

using platform::Buttons;
using platform::Icon;

class DriversPage : public PageTest {
protected:
    DriversPage() {
        const editors::FolderServices folders{[this](wxWindow*) { return picked; },
                                              [](const std::string&) { return true; }};
        Make<editors::DriversPage>(19, folders);
    }

    [[nodiscard]] Texts Boxes() const {
        return {TextIn(page, "txtPrinterNameViewOnly"), TextIn(page, "txtDriverName"),
                TextIn(page, "txtDriverFileName"), TextIn(page, "txtPortName")};
    }

    std::string picked;
};

TEST_F(DriversPage, AClickShowsTheFieldsOfTheItem) {
    PutItems(page, "lstPrinterDrivers",
             {"P1 >> Driver 1 >> d1.dll >> LPT1:", "bare", "two >> driver",
              "three >> driver >> file", "gaps >> d >>  >> LPT2:"});
    const std::vector<Texts> expected{{"P1", "Driver 1", "d1.dll", "LPT1:"},
                                      {"bare", "", "", ""},
                                      {"two", "driver", "", ""},
                                      {"three", "driver", "file", ""},
                                      {"gaps", "d", "", "LPT2:"}};
    for (int row = 0; row < 5; ++row) {
        ClickRow(page, "lstPrinterDrivers", row);
        EXPECT_EQ(Boxes(), expected[static_cast<std::size_t>(row)]);
    }
    EXPECT_FALSE(Changed());
}

TEST_F(DriversPage, ThePrinterNameIsNotEdited) {
    EXPECT_FALSE(Find<wxTextCtrl>(page, "txtPrinterNameViewOnly")->IsEditable());
    EXPECT_TRUE(Find<wxTextCtrl>(page, "txtDriverName")->IsEditable());
}

TEST_F(DriversPage, SaveWantsASelectedPrinter) {
    for (const Texts& items : {Texts{}, Texts{"P1"}}) {
        PutItems(page, "lstPrinterDrivers", items);
        PutText(page, "txtDriverName", "D");
        ModalScript dialogs;
        dialogs.ExpectMessage({"Please select a printer before saving.", "Error, Queueshift",
                               Buttons::Ok, Icon::Exclamation});
        Push(page, "cmdSavePrinterDriver");
        EXPECT_EQ(ItemsIn(page, "lstPrinterDrivers"), items);
        EXPECT_FALSE(Changed());
    }
}

TEST_F(DriversPage, SaveWantsADriverNameOrItsFile) {
    PutItems(page, "lstPrinterDrivers", {"P1"});
    ClickRow(page, "lstPrinterDrivers", 0);
    PutText(page, "txtPortName", "LPT1:");
    ModalScript dialogs;
    dialogs.ExpectMessage({"Please enter a driver name and a driver file name. Both are required.",
                           "Error, Input Required", Buttons::Ok, Icon::Exclamation});
    Push(page, "cmdSavePrinterDriver");
    EXPECT_EQ(ItemsIn(page, "lstPrinterDrivers"), Texts{"P1"});
    EXPECT_EQ(TextIn(page, "txtPortName"), "LPT1:");
    EXPECT_FALSE(Changed());
}

TEST_F(DriversPage, OneOfTheTwoIsEnoughAndEmptyFieldsStayEmpty) {
    PutItems(page, "lstPrinterDrivers", {"P0", "P1", "P2"});
    ClickRow(page, "lstPrinterDrivers", 1);
    Enter(page, "txtDriverName", "Driver");
    Enter(page, "txtPortName", "LPT1:");
    Push(page, "cmdSavePrinterDriver");
    EXPECT_EQ(ItemsIn(page, "lstPrinterDrivers"), (Texts{"P0", "P1 >> Driver >>  >> LPT1:", "P2"}));
    EXPECT_EQ(RowIn(page, "lstPrinterDrivers"), 1);
    EXPECT_TRUE(Changed());
    ClickRow(page, "lstPrinterDrivers", 2);
    Enter(page, "txtDriverFileName", "d.dll");
    Push(page, "cmdSavePrinterDriver");
    EXPECT_EQ(ItemsIn(page, "lstPrinterDrivers")[2], "P2 >>  >> d.dll >> ");
}

TEST_F(DriversPage, APickedFolderBecomesTheDriverShare) {
    Push(page, "cmdBrowseDriverSharePath");
    EXPECT_EQ(TextIn(page, "txtDriverSharePath"), "");
    picked = "D:\\Drivers";
    Push(page, "cmdBrowseDriverSharePath");
    EXPECT_EQ(TextIn(page, "txtDriverSharePath"), "D:\\Drivers");
}

TEST_F(DriversPage, TypingMarksNothing) {
    for (const char* name :
         {"txtDriverName", "txtDriverFileName", "txtPortName", "txtDriverSharePath"}) {
        Enter(page, name, "typed");
        EXPECT_FALSE(Changed()) << name;
    }
}

class DefaultPage : public PageTest {
protected:
    DefaultPage() { Make<editors::DefaultPage>(18); }
};

TEST_F(DefaultPage, ForceAloneOpensTheListOfPrinters) {
    PutItems(page, "cboForceDefault", {"\\\\S\\P", "Desk"});
    SelectRow(page, "cboForceDefault", 1);
    for (const int index : {2, 0, 2, 1}) {
        ForgetChanges();
        Pick(page, "optDefault(" + std::to_string(index) + ")");
        EXPECT_TRUE(Changed());
        EXPECT_EQ(IsEnabled(page, "cboForceDefault"), index == 2);
        EXPECT_EQ(ColourOf(page, "cboForceDefault"),
                  index == 2 ? ColourText(wxListBox::GetClassDefaultAttributes().colBg)
                             : ColourText(frame->GetBackgroundColour()));
        EXPECT_EQ(TextIn(page, "cboForceDefault"), "Desk");
    }
}

TEST_F(DefaultPage, ChoosingAPrinterMarksTheDocument) {
    PutItems(page, "cboForceDefault", {"A", "B"});
    SelectRow(page, "cboForceDefault", 0);
    EXPECT_FALSE(Changed());
    wxWindow* const combo = Find(page, "cboForceDefault");
    wxCommandEvent chosen(wxEVT_COMBOBOX, combo->GetId());
    combo->ProcessWindowEvent(chosen);
    EXPECT_TRUE(Changed());
    EXPECT_EQ(TextIn(page, "cboForceDefault"), "A");
}

} // namespace
} // namespace window_test
