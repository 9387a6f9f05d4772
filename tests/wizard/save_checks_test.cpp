// What is checked before a save, and the derived lists through the window.
#include "tests/wizard/wizard_test.h"

namespace window_test {
namespace {

using platform::Buttons;
using platform::Icon;

const platform::Message kNoDomain{
    "The Active Directory domain name is a required field. Please enter an Active Directory "
    "domain name, before saving.",
    "Error Saving", Buttons::Ok, Icon::Critical};
const platform::Message kNoData{
    "At least one of the Manual Configurations or Maintenace methods must have data. Please enter "
    "at least one set of Manual data before saving.",
    "Error Saving", Buttons::Ok, Icon::Critical};
const platform::Message kNoDriver{
    "When populating a local printer you must provide a driver name\r\nand port name on the "
    "drivers step. Please provide the required information.",
    "Queueshift", Buttons::Ok, Icon::Critical};

class SaveChecks : public WizardTest {};

TEST_F(SaveChecks, AnActiveDirectoryDocumentNeedsADomain) {
    Start(kActiveDirectory);
    Show();
    GoTo(4);
    PutItems(window, "lstServerPairs", {"A -> B"});
    ModalScript dialogs;
    dialogs.ExpectMessage(kNoDomain);
    EXPECT_FALSE(window->CanSaveDocument());
    EXPECT_EQ(CurrentPage(), 1);
    EXPECT_EQ(CurrentNode(), "Key2");
    EXPECT_TRUE(WaitFor([this] { return HasFocus(Find(window, "cboDomainName")); },
                        "the focus on the domain"));
    EXPECT_FALSE(Changed());
    PutText(window, "cboDomainName", "corp.example");
    EXPECT_TRUE(window->CanSaveDocument());
}

TEST_F(SaveChecks, AManualDocumentNeedsData) {
    Start(kManual);
    Show();
    GoTo(4);
    PutItems(window, "lstPrinterDrivers", {"P >> D >> F >> L"});
    ModalScript dialogs;
    dialogs.ExpectMessage(kNoData);
    EXPECT_FALSE(window->CanSaveDocument());
    EXPECT_EQ(CurrentPage(), 2);
    EXPECT_EQ(CurrentNode(), "Key31");
    EXPECT_TRUE(WaitFor([this] { return HasFocus(Find(window, "txtFromServer")); },
                        "the focus on the first name"));
    EXPECT_FALSE(Changed());
}

TEST_F(SaveChecks, AnyOneListOrTheCheckBoxIsData) {
    Start(kManual);
    for (const char* list : {"lstServerPairs", "lstPrinterPairs", "lstMixedPrintersAndServers",
                             "lstPopulate", "lstManualPrune"}) {
        PutItems(window, list, {"SRV >> A"});
        const ModalScript noDialogs;
        EXPECT_TRUE(window->CanSaveDocument()) << list;
        PutItems(window, list, {});
    }
    Tick(window, "chkDeleteNonNetworked");
    const ModalScript noDialogs;
    EXPECT_TRUE(window->CanSaveDocument());
}

TEST_F(SaveChecks, ALocalPrinterNeedsItsDriverAndPort) {
    Start(kManual);
    GoTo(4);
    PutItems(window, "lstPopulate", {"SRV >> HP", ". >> Desk"});
    PutItems(window, "lstPrinterDrivers", {"Desk >> D >> F >> "});
    ModalScript dialogs;
    dialogs.ExpectMessage(kNoDriver);
    EXPECT_FALSE(window->CanSaveDocument());
    EXPECT_EQ(CurrentPage(), 19);
    EXPECT_EQ(CurrentNode(), "Key10");
    EXPECT_EQ(ItemsIn(window, "lstPrinterDrivers"), Texts{"Desk >> D >> F >> "});
    PutItems(window, "lstPrinterDrivers", {"Desk >> D >>  >> LPT1:"});
    EXPECT_TRUE(window->CanSaveDocument());
}

TEST_F(SaveChecks, AnEmptyDriverListIsRefreshedForPopulateEvenAfterARefusal) {
    Start(kManual);
    PutItems(window, "lstPopulate", {"SRV >> HP"});
    EXPECT_TRUE(window->CanSaveDocument());
    EXPECT_EQ(ItemsIn(window, "lstPrinterDrivers"), Texts{"HP"});
    Become(kActiveDirectory);
    PutItems(window, "lstPrinterDrivers", {});
    PutItems(window, "lstPopulate", {". >> Desk"});
    ModalScript dialogs;
    dialogs.ExpectMessage(kNoDomain);
    EXPECT_FALSE(window->CanSaveDocument());
    EXPECT_EQ(ItemsIn(window, "lstPrinterDrivers"), Texts{"Desk"});
    EXPECT_EQ(CurrentPage(), 1);
}

TEST_F(SaveChecks, ABareEntryMadeByTheRefreshStopsTheSaveOfALocalPrinter) {
    Start(kManual);
    PutItems(window, "lstPopulate", {". >> Desk"});
    ModalScript dialogs;
    dialogs.ExpectMessage(kNoDriver);
    EXPECT_FALSE(window->CanSaveDocument());
    EXPECT_EQ(ItemsIn(window, "lstPrinterDrivers"), Texts{"Desk"});
}

TEST_F(SaveChecks, ABareDriverListIsStoredAndDoesNotComeBack) {
    Start(kManual);
    PutItems(window, "lstPopulate", {"SRV >> HP"});
    window->RefreshDriverList();
    Store();
    Load();
    EXPECT_EQ(ItemsIn(window, "lstPrinterDrivers"), Texts{});
}

class DerivedLists : public WizardTest {};

TEST_F(DerivedLists, DriversFollowTheListsAndKeepWhatWasEntered) {
    Start(kManual);
    PutItems(window, "lstMixedPrintersAndServers", {"S >> P -> T >> Q"});
    PutItems(window, "lstPrinterPairs", {"A -> B"});
    PutItems(window, "lstPopulate", {". >> Desk"});
    PutItems(window, "lstPrinterDrivers", {"Old >> D", "B >> D >> F >> L"});
    window->RefreshDriverList();
    EXPECT_EQ(ItemsIn(window, "lstPrinterDrivers"), (Texts{"Q", "B >> D >> F >> L", "Desk"}));
    EXPECT_FALSE(Changed());
}

TEST_F(DerivedLists, DefaultPrintersFollowTheListsAndKeepTheChoice) {
    Start(kManual);
    PutItems(window, "lstMixedPrintersAndServers", {"S >> P -> T >> Q"});
    PutItems(window, "lstPopulate", {". >> Desk", "SRV >> HP"});
    PutItems(window, "cboForceDefault", {"gone", "Desk"});
    SelectRow(window, "cboForceDefault", 1);
    window->RefreshDefaultPrinterList();
    EXPECT_EQ(ItemsIn(window, "cboForceDefault"), (Texts{"\\\\T\\Q", "Desk", "\\\\SRV\\HP"}));
    EXPECT_EQ(TextIn(window, "cboForceDefault"), "Desk");
    EXPECT_FALSE(Changed());
}

TEST_F(DerivedLists, AChoiceThatIsNoLongerOfferedIsLost) {
    Start(kManual);
    PutItems(window, "lstPopulate", {". >> Desk"});
    PutItems(window, "cboForceDefault", {"desk"});
    SelectRow(window, "cboForceDefault", 0);
    window->RefreshDefaultPrinterList();
    EXPECT_EQ(ItemsIn(window, "cboForceDefault"), Texts{"Desk"});
    EXPECT_EQ(RowIn(window, "cboForceDefault"), wxNOT_FOUND);
    EXPECT_EQ(TextIn(window, "cboForceDefault"), "");
}

} // namespace
} // namespace window_test
