// The help viewer as a window: where it opens, when it closes, and what it says without a book.
#include "tests/wizard/help_fixture.h"

#include "files/new_ini.h"

#include <wx/bookctrl.h>
#include <wx/treectrl.h>

#include <tuple>

namespace window_test {
namespace {

using HelpViewer = HelpTest;
using modWizard::HelpDialog;
using modWizard::HelpFrame;

TEST_F(HelpViewer, NoNumberMeansTheLastOne) {
    modWizard::ShowHelpContext(2030);
    modWizard::ShowHelpContents();
    modWizard::ShowHelpContext(-1);
    EXPECT_EQ(ShownTitle(), "Drivers");
}

TEST_F(HelpViewer, ANumberWithoutTopicIsTold) {
    ModalScript dialogs;
    ExpectComplaint(dialogs, "The help file " + BookPath() + " has no topic 4711.");
    modWizard::ShowHelpContext(4711);
}

TEST_F(HelpViewer, AMissingBookIsTold) {
    RemoveBook();
    Start(kActiveDirectory);
    ModalScript dialogs;
    ExpectComplaint(dialogs, "The help file " + BookPath() + " could not be found.");
    Push(window, "cmdHelp(0)");
    EXPECT_EQ(Viewer(), nullptr);
    ExpectComplaint(dialogs, "The help file " + BookPath() + " could not be found.");
    modWizard::ShowHelpContents();
    EXPECT_EQ(Viewer(), nullptr);
}

TEST_F(HelpViewer, ABookThatIsNoneIsTold) {
    for (const std::string& bytes : {std::string(), std::string("no book"),
                                     test::ReadBytes(QUEUESHIFT_HELP_BOOK).substr(0, 9000)}) {
        test::WriteBytes(BookPath(), bytes);
        ModalScript dialogs;
        ExpectComplaint(dialogs, "The help file " + BookPath() + " could not be opened.");
        modWizard::ShowHelpContext(1013);
        Pump();
        EXPECT_EQ(Viewer(), nullptr);
    }
}

TEST_F(HelpViewer, AMendedBookOpensInTheSameRun) {
    {
        test::WriteBytes(BookPath(), "no book");
        ModalScript dialogs;
        ExpectComplaint(dialogs, "The help file " + BookPath() + " could not be opened.");
        modWizard::ShowHelpContext(1013);
        Pump();
    }
    test::WriteBytes(BookPath(), test::ReadBytes(QUEUESHIFT_HELP_BOOK));
    modWizard::ShowHelpContext(1013);
    EXPECT_EQ(ShownTitle(), "General");
}

TEST_F(HelpViewer, AnOpenViewerNeedsTheFileNoMore) {
    modWizard::ShowHelpContext(1013);
    RemoveBook();
    modWizard::ShowHelpContext(1045);
    EXPECT_EQ(ShownTitle(), "Support");
}

TEST_F(HelpViewer, AskedAgainTheSameViewerComesToTheFront) {
    Start(kActiveDirectory);
    Show();
    window->ShowHelpContext(1013);
    HelpFrame* const viewer = Viewer();
    BringToFront(viewer);
    BringToFront(window);
    window->ShowHelpContext(1045);
    EXPECT_EQ(Viewer(), viewer);
    WaitFor([viewer] { return viewer->IsActive(); }, "the viewer to come to the front");
    EXPECT_EQ(ShownTitle(), "Support");
}

TEST_F(HelpViewer, EscapeClosesTheViewer) {
    Start(kActiveDirectory);
    Show();
    window->ShowHelpContext(1013);
    BringToFront(Viewer());
    Press(WXK_ESCAPE);
    WaitFor([] { return Viewer() == nullptr; }, "the viewer to close");
    window->ShowHelpContext(1045);
    EXPECT_EQ(ShownTitle(), "Support");
}

TEST_F(HelpViewer, TheKeyboardIsHeardAfterASearch) {
    Start(kActiveDirectory);
    Show();
    window->ShowHelpContext(1013);
    HelpFrame* const viewer = Viewer();
    BringToFront(viewer);
    Find<wxBookCtrlBase>(viewer, "sstHelp")->SetSelection(2);
    FocusOn(Find(viewer, "txtHelpSearch"));
    Type("LPT1");
    ClickOn(Find(viewer, "cmdHelpSearch"));
    WaitFor([] { return ShownTitle() == "Drivers"; }, "the topic to be found");
    EXPECT_EQ(ItemsIn(viewer, "lstHelpFound"), Texts{"Drivers"});
    Type("x"); // in place of the word searched for, which is selected
    WaitFor([viewer] { return TextIn(viewer, "txtHelpSearch") == "x"; }, "the key to be heard");
    Press(WXK_ESCAPE);
    EXPECT_TRUE(WaitFor([] { return Viewer() == nullptr; }, "the viewer to close"));
}

std::string FocusedName() {
    const wxWindow* const focus = wxWindow::FindFocus();
    return focus == nullptr ? "" : focus->GetName().utf8_string();
}

// Tab, from the first of these to the last and on to the first again, and the same way back.
void ExpectTabRound(const Texts& names) {
    for (std::size_t i = 1; i <= names.size(); ++i) {
        Press(WXK_TAB);
        const std::string& next = names[i % names.size()];
        ASSERT_TRUE(WaitFor([&] { return FocusedName() == next; }, "the focus on " + next))
            << "it is on " << FocusedName();
    }
    for (std::size_t i = names.size(); i > 0; --i) {
        Press(WXK_TAB, wxMOD_SHIFT);
        const std::string& next = names[i - 1];
        ASSERT_TRUE(WaitFor([&] { return FocusedName() == next; }, "the focus back on " + next))
            << "it is on " << FocusedName();
    }
}

// From the topic to the tabs, to the next of them, and back to the topic.
void ExpectWayByArrow(int page) {
    auto* const ways = Find<wxBookCtrlBase>(wxWindow::FindWindowByName("frmHelp"), "sstHelp");
    Press(WXK_TAB);
    ASSERT_TRUE(WaitFor([] { return FocusedName() == "sstHelp"; }, "the focus on the tabs"));
    Press(WXK_RIGHT);
    ASSERT_TRUE(WaitFor([&] { return ways->GetSelection() == page; }, "the next tab"));
    ASSERT_TRUE(WaitFor([] { return FocusedName() == "sstHelp"; }, "the focus on its tab"));
    Press(WXK_TAB, wxMOD_SHIFT);
    ASSERT_TRUE(WaitFor([] { return FocusedName() == "htmHelpTopic"; }, "the focus back"));
}

TEST_F(HelpViewer, TabReachesTheTopicAndAllWaysToIt) {
    Start(kActiveDirectory);
    Show();
    window->ShowHelpContext(1013);
    BringToFront(Viewer());
    ASSERT_TRUE(WaitFor([] { return FocusedName() == "htmHelpTopic"; }, "the focus on the topic"));
    ExpectTabRound({"htmHelpTopic", "sstHelp", "tvwHelpContents"});
    ExpectWayByArrow(1);
    ExpectTabRound({"htmHelpTopic", "sstHelp", "txtHelpIndex", "cmdHelpIndex", "cmdHelpIndexAll",
                    "lstHelpIndex"});
    ExpectWayByArrow(2);
    ExpectTabRound({"htmHelpTopic", "sstHelp", "txtHelpSearch", "cboHelpSearch", "chkHelpCase",
                    "chkHelpWords", "cmdHelpSearch", "lstHelpFound"});
}

TEST_F(HelpViewer, TheToolbarHasKeys) {
    Start(kActiveDirectory);
    Show();
    window->ShowHelpContext(1042);
    BringToFront(Viewer());
    const std::vector<std::tuple<int, int, std::string>> keys{
        {WXK_PAGEDOWN, wxMOD_ALT, "Manual Configuration - Printers"},
        {WXK_PAGEUP, wxMOD_ALT, "Manual Configuration - Servers"},
        {WXK_LEFT, wxMOD_ALT, "Manual Configuration - Printers"},
        {WXK_RIGHT, wxMOD_ALT, "Manual Configuration - Servers"},
        {WXK_UP, wxMOD_ALT, "Manual Configuration"},
    };
    for (const auto& [key, modifiers, title] : keys) {
        Press(key, modifiers);
        ASSERT_TRUE(WaitFor([&title] { return ShownTitle() == title; }, "the topic " + title))
            << "it is " << ShownTitle();
    }
    const wxWindow* const ways = Find(Viewer(), "sstHelp");
    for (const bool shown : {false, true}) {
        Press(WXK_F9);
        ASSERT_TRUE(WaitFor([&] { return ways->IsShownOnScreen() == shown; }, "F9 to be heard"));
    }
}

TEST_F(HelpViewer, TheViewerClosesWithTheMainWindow) {
    Start(kActiveDirectory);
    Show();
    window->ShowHelpContext(1013);
    EXPECT_FALSE(Viewer()->ShouldPreventAppExit());
    window->Close();
    WaitFor([this] { return window == nullptr; }, "the window to close");
    EXPECT_EQ(Viewer(), nullptr);
}

TEST_F(HelpViewer, OverTheNewDocumentDialogTheViewerIsUsable) {
    Start(kActiveDirectory);
    Show();
    ModalScript dialogs;
    std::string title;
    std::string chosen;
    dialogs.ExpectLive<frmNewINI>([](frmNewINI& dialog) {
        ClickOn(dialog.cmdHelp);
        ClickOn(dialog.cmdCancel);
    });
    dialogs.ExpectLive<HelpDialog>([&](HelpDialog& viewer) {
        title = viewer.pane->TopicTitle().utf8_string();
        wxTreeCtrl* const tree = viewer.pane->GetTreeCtrl();
        wxTreeItemIdValue cookie{};
        wxRect row;
        tree->GetBoundingRect(tree->GetFirstChild(tree->GetRootItem(), cookie), row, true);
        ClickOn(tree, row.GetPosition() + row.GetSize() / 2);
        WaitFor([&] { return viewer.pane->TopicTitle().utf8_string() != title; },
                "the topic to change");
        chosen = viewer.pane->TopicTitle().utf8_string();
        Press(WXK_ESCAPE);
    });
    window->ssaQueueshift_ToolClick("ID_BTN_NEW");
    EXPECT_EQ(title, "New or Existing Document");
    EXPECT_EQ(chosen, "Queueshift Help");
    EXPECT_EQ(Viewer(), nullptr);
}

} // namespace
} // namespace window_test
