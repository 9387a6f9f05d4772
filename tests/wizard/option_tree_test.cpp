// The option tree of both types of document, and what else depends on the type.
#include "tests/wizard/shown_tree.h"
#include "tests/wizard/wizard_test.h"

#include <wx/menu.h>

namespace window_test {
namespace {

using platform::ui::TreeNode;

class OptionTree : public WizardTest {
protected:
    [[nodiscard]] const std::vector<TreeNode>& Nodes() const {
        return window->tvwWizardOptions->Nodes();
    }
    [[nodiscard]] std::vector<ShownNode> Shown() const {
        return ShownNodes(window->tvwWizardOptions->Control());
    }

    // Whether the menu offers these entries, by their captions.
    void ExpectOffered(const std::vector<const char*>& captions, bool offered) {
        const wxMenu& view = *window->GetMenuBar()->GetMenu(1);
        for (const char* caption : captions) {
            const int id = view.FindItem(caption);
            ASSERT_NE(id, wxNOT_FOUND) << caption;
            EXPECT_EQ(view.IsEnabled(id), offered) << caption;
        }
    }
};

TEST_F(OptionTree, AnActiveDirectoryDocumentHasItsNodes) {
    Start(kActiveDirectory);
    const std::vector<TreeNode> expected{
        {"Key1", "General", "", 1, false},
        {"Key2", "Active Directory", "", 1, false},
        {"Key4", "Notification", "", 2, true},
        {"Key41", "SMTP Mail", "Key4", 1, false},
        {"Key42", "File Output", "Key4", 1, false},
        {"Key43", "Client User Pop-Up", "Key4", 1, false},
        {"Key44", "Application Event Log", "Key4", 1, false},
        {"Key6", "Deployment", "", 1, true},
        {"Key61", "General", "Key6", 1, false},
        {"Key62", "MDAC", "Key6", 1, false},
        {"Key8", "Maintenance", "", 1, true},
        {"Key81", "Populate", "Key8", 1, false},
        {"Key82", "Prune", "Key8", 1, false},
        {"Key9", "Set Default", "", 1, false},
        {"Key10", "Drivers", "", 1, false},
        {"Key7", "Support", "", 1, false},
    };
    EXPECT_TRUE(Nodes() == expected);
    const std::vector<ShownNode> shown{
        {"General", 0, false},
        {"Active Directory", 0, false},
        {"Notification", 0, true},
        {"SMTP Mail", 1, false},
        {"File Output", 1, false},
        {"Client User Pop-Up", 1, false},
        {"Application Event Log", 1, false},
        {"Deployment", 0, true},
        {"General", 1, false},
        {"MDAC", 1, false},
        {"Maintenance", 0, true},
        {"Populate", 1, false},
        {"Prune", 1, false},
        {"Set Default", 0, false},
        {"Drivers", 0, false},
        {"Support", 0, false},
    };
    EXPECT_EQ(Shown(), shown);
}

TEST_F(OptionTree, AManualDocumentHasItsNodes) {
    Start(kManual);
    const std::vector<TreeNode> expected{
        {"Key1", "General", "", 1, false},
        {"Key3", "Manual Configuration", "", 2, true},
        {"Key31", "Servers", "Key3", 1, false},
        {"Key32", "Printers", "Key3", 1, false},
        {"Key33", "Mixed", "Key3", 1, false},
        {"Key4", "Notification", "", 2, true},
        {"Key41", "SMTP Mail", "Key4", 1, false},
        {"Key42", "File Output", "Key4", 1, false},
        {"Key43", "Client User Pop-Up", "Key4", 1, false},
        {"Key44", "Application Event Log", "Key4", 1, false},
        {"Key6", "Deployment", "", 1, false},
        {"Key8", "Maintenance", "", 1, true},
        {"Key81", "Populate", "Key8", 1, false},
        {"Key82", "Prune", "Key8", 1, false},
        {"Key9", "Set Default", "", 1, false},
        {"Key10", "Drivers", "", 1, false},
        {"Key7", "Support", "", 1, false},
    };
    EXPECT_TRUE(Nodes() == expected);
    const std::vector<ShownNode> shown{
        {"General", 0, false},
        {"Manual Configuration", 0, true},
        {"Servers", 1, false},
        {"Printers", 1, false},
        {"Mixed", 1, false},
        {"Notification", 0, true},
        {"SMTP Mail", 1, false},
        {"File Output", 1, false},
        {"Client User Pop-Up", 1, false},
        {"Application Event Log", 1, false},
        {"Deployment", 0, false},
        {"Maintenance", 0, true},
        {"Populate", 1, false},
        {"Prune", 1, false},
        {"Set Default", 0, false},
        {"Drivers", 0, false},
        {"Support", 0, false},
    };
    EXPECT_EQ(Shown(), shown);
}

TEST_F(OptionTree, AnotherTypeRebuildsItAndShowsTheFirstPage) {
    Start(kActiveDirectory);
    GoTo(modWizard::kMDACPage);
    ASSERT_EQ(CurrentNode(), "Key62");
    for (const DocumentType type : {kManual, kActiveDirectory}) {
        Become(type);
        EXPECT_EQ(Nodes().size(), type == kManual ? 17U : 16U);
        EXPECT_EQ(Shown().size(), type == kManual ? 17U : 16U);
        EXPECT_EQ(CurrentNode(), "Key1");
        EXPECT_EQ(CurrentPage(), 0);
        GoTo(modWizard::kSupportPage);
        ASSERT_EQ(CurrentNode(), "Key7");
    }
}

TEST_F(OptionTree, TheTypeDecidesWhichCommandsAreOffered) {
    Start(kActiveDirectory);
    const std::vector<const char*> ofActiveDirectory{"Active Directory", "Deployment General",
                                                     "MDAC"};
    const std::vector<const char*> ofManual{"Server To Server", "Printer To Printer",
                                            "Mixed Server And Printer"};
    const std::vector<const char*> ofBoth{
        "General",    "Email Output", "File Output", "Client Pop-up", "Application Event Log",
        "Deployment", "Prune",        "Populate",    "Set Default",   "Drivers",
        "Support"};
    for (const DocumentType type : {kActiveDirectory, kManual, kActiveDirectory}) {
        Become(type);
        ExpectOffered(ofActiveDirectory, type == kActiveDirectory);
        ExpectOffered(ofManual, type == kManual);
        ExpectOffered(ofBoth, true);
    }
}

TEST_F(OptionTree, TheTypeDecidesTitleNoteAndTypeBox) {
    Start(kManual);
    for (const DocumentType type : {kActiveDirectory, kManual, kActiveDirectory}) {
        Become(type);
        const bool ad = type == kActiveDirectory;
        EXPECT_EQ(Find(window, "lblGeneral(14)")->GetLabel(),
                  ad ? "Deployment - General" : "Deployment");
        EXPECT_EQ(Find(window, "lblWizard(1)")->IsShown(), ad);
        EXPECT_EQ(TextIn(window, "cboConfigurationFileType"),
                  ad ? "Active Directory" : "Manual Configuration");
    }
}

struct NodeRow {
    const char* key;
    int page;
    Texts runs;
};

class NodeClick : public OptionTree {
protected:
    void ExpectEachNode(const std::vector<NodeRow>& rows) {
        ASSERT_EQ(rows.size(), Nodes().size());
        PreparationProbe probe(*window);
        for (const NodeRow& row : rows) {
            probe.Arm();
            window->tvwWizardOptions->Click(row.key);
            EXPECT_EQ(CurrentPage(), row.page) << row.key;
            EXPECT_EQ(CurrentNode(), row.key);
            EXPECT_EQ(probe.Ran(), row.runs) << row.key;
        }
        EXPECT_FALSE(Changed());
    }
};

TEST_F(NodeClick, ShowsThePageInAnActiveDirectoryDocument) {
    Start(kActiveDirectory);
    ExpectEachNode({{"Key2", 1, {}},
                    {"Key1", 0, {}},
                    {"Key4", 3, {}},
                    {"Key41", 4, {}},
                    {"Key42", 5, {}},
                    {"Key43", 6, {}},
                    {"Key44", 7, {}},
                    {"Key6", 16, {}},
                    {"Key61", 14, {}},
                    {"Key62", 15, {}},
                    {"Key8", 8, {}},
                    {"Key81", 17, {"Populate"}},
                    {"Key82", 12, {"Prune"}},
                    {"Key9", 18, {"DefaultPrinters"}},
                    {"Key10", 19, {"Drivers"}},
                    {"Key7", 13, {}}});
}

TEST_F(NodeClick, ShowsThePageInAManualDocument) {
    Start(kManual);
    ExpectEachNode({{"Key3", 9, {}},
                    {"Key1", 0, {}},
                    {"Key31", 2, {}},
                    {"Key32", 10, {}},
                    {"Key33", 11, {}},
                    {"Key4", 3, {}},
                    {"Key41", 4, {}},
                    {"Key42", 5, {}},
                    {"Key43", 6, {}},
                    {"Key44", 7, {}},
                    {"Key6", 14, {}},
                    {"Key8", 8, {}},
                    {"Key81", 17, {"Populate"}},
                    {"Key82", 12, {"Prune"}},
                    {"Key9", 18, {"DefaultPrinters"}},
                    {"Key10", 19, {"Drivers"}},
                    {"Key7", 13, {}}});
}

TEST_F(NodeClick, AnUnknownNodeDoesNothing) {
    Start(kManual);
    GoTo(modWizard::kMixedPage);
    window->tvwWizardOptions_NodeClick("Key62");
    window->tvwWizardOptions_NodeClick("");
    EXPECT_EQ(CurrentPage(), 11);
}

TEST_F(NodeClick, WorksByMouseOnAnyNodeAndOnTheSelectedOneToo) {
    Start(kManual);
    Show();
    wxWindow* const tree = window->tvwWizardOptions->Control();
    const auto click = [&](const char* key) {
        const wxRect rect = window->tvwWizardOptions->ScreenRect(key);
        ASSERT_FALSE(rect.IsEmpty()) << key;
        ClickAt(tree, {rect.x + rect.width / 2, rect.y + rect.height / 2});
    };
    click("Key33");
    WaitFor([this] { return CurrentPage() == 11; }, "the Mixed page");
    click("Key6");
    WaitFor([this] { return CurrentPage() == 14; }, "the Deployment page");
    click("Key10");
    WaitFor([this] { return CurrentPage() == 19; }, "the Drivers page");
    PreparationProbe probe(*window);
    probe.Arm();
    click("Key10");
    WaitFor([&] { return probe.Ran() == Texts{"Drivers"}; }, "the drivers to be refreshed again");
}

TEST_F(NodeClick, ABranchThatClosesOverThePageShowsItsOwn) {
    Start(kManual);
    Show();
    GoTo(modWizard::kSMTPPage);
    wxWindow* const tree = window->tvwWizardOptions->Control();
    const wxRect branch = window->tvwWizardOptions->ScreenRect("Key4");
    const wxPoint left(tree->GetScreenPosition().x, branch.y + branch.height / 2);
    // The button that closes a branch stands somewhere before its text.
    for (int x = 4; x < 40 && window->tvwWizardOptions->IsExpanded("Key4"); x += 6) {
        ClickAt(tree, left + wxPoint(x, 0));
        Pump();
    }
    ASSERT_FALSE(window->tvwWizardOptions->IsExpanded("Key4"));
    WaitFor([this] { return CurrentPage() == modWizard::kNotificationPage; },
            "the page of the branch");
    EXPECT_EQ(CurrentNode(), "Key4");
    window->ssaQueueshift_ToolClick("ID_BTN_FILE");
    EXPECT_TRUE(window->tvwWizardOptions->IsExpanded("Key4"));
    EXPECT_EQ(CurrentNode(), "Key42");
}

TEST_F(NodeClick, WorksByKeyboard) {
    Start(kManual);
    Show();
    FocusOn(window->tvwWizardOptions->Control());
    Press(WXK_DOWN);
    WaitFor([this] { return CurrentPage() == 9; }, "the Manual Configuration page");
    Press(WXK_DOWN);
    WaitFor([this] { return CurrentPage() == 2; }, "the Servers page");
    EXPECT_TRUE(HasFocus(window->tvwWizardOptions->Control()));
}

} // namespace
} // namespace window_test
