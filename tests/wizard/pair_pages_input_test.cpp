// The pair pages with real input: what a user sees and does.
#include "tests/wizard/wizard_test.h"

namespace window_test {
namespace {

class PairInput : public WizardTest {
protected:
    PairInput() {
        Start(kManual);
        Show();
        GoTo(2);
    }

    void ClickServer(int row) {
        auto* const list = Find<wxListBox>(window, "lstServerPairs");
        ClickOn(list, RowPoint(*list, row));
    }
};

TEST_F(PairInput, APairIsTypedSavedAndTheNextBegun) {
    ClickOn(Find(window, "txtFromServer"));
    Type("OLD1");
    Press(WXK_TAB);
    Type("NEW1");
    EXPECT_FALSE(Changed());
    ClickOn(Find(window, "cmdSaveServerPair"));
    WaitFor([this] { return ItemsIn(window, "lstServerPairs") == Texts{"OLD1 -> NEW1"}; },
            "the pair in the list");
    EXPECT_TRUE(Changed());
    ClickOn(Find(window, "cmdNewServerPair"));
    WaitFor([this] { return TextIn(window, "txtFromServer").empty(); }, "empty boxes");
}

TEST_F(PairInput, AClickOnARowFillsTheBoxesAgainEvenOnTheSelectedOne) {
    PutItems(window, "lstServerPairs", {"A -> B", "C -> D"});
    ClickServer(1);
    WaitFor([this] { return TextIn(window, "txtFromServer") == "C"; }, "the clicked pair");
    EXPECT_FALSE(window->servers->m_bolNewServerPair);
    ClickOn(Find(window, "cmdNewServerPair"));
    WaitFor([this] { return TextIn(window, "txtFromServer").empty(); }, "empty boxes");
    ASSERT_EQ(RowIn(window, "lstServerPairs"), 1);
    ClickServer(1);
    WaitFor([this] { return TextIn(window, "txtFromServer") == "C"; },
            "the pair of the row that is selected already");
    EXPECT_FALSE(window->servers->m_bolNewServerPair);
    ClickServer(0);
    WaitFor([this] { return TextIn(window, "txtToServer") == "B"; }, "the other pair");
    EXPECT_FALSE(Changed());
}

TEST_F(PairInput, AClickIsHeardOnTheRowThatTookThePlaceOfTheDeletedOne) {
    PutItems(window, "lstServerPairs", {"A -> B", "C -> D"});
    ClickServer(0);
    WaitFor([this] { return TextIn(window, "txtFromServer") == "A"; }, "the first pair");
    ModalScript dialogs;
    dialogs.ExpectMessage({"Are you sure that you want to delete the selected Print Server pair?",
                           "Delete?", platform::Buttons::YesNo, platform::Icon::Question},
                          platform::Answer::Yes);
    ClickOn(Find(window, "cmdDeleteServer"));
    WaitFor([this] { return ItemsIn(window, "lstServerPairs") == Texts{"C -> D"}; }, "the delete");
    EXPECT_EQ(RowIn(window, "lstServerPairs"), wxNOT_FOUND);
    // Elsewhere on the row, so that the two clicks make no double click.
    auto* const list = Find<wxListBox>(window, "lstServerPairs");
    ClickOn(list, RowPoint(*list, 0) + wxPoint(40, 0));
    WaitFor([this] { return TextIn(window, "txtFromServer") == "C"; }, "the pair that is left");
    EXPECT_FALSE(window->servers->m_bolNewServerPair);
}

TEST_F(PairInput, AClickIsHeardOnTheSameRowOfAnotherDocument) {
    PutItems(window, "lstServerPairs", {"A -> B", "C -> D"});
    ClickServer(1);
    WaitFor([this] { return TextIn(window, "txtFromServer") == "C"; }, "the second pair");
    Record().ServerPairs = {{"G", "H"}, {"I", "J"}};
    Load();
    ASSERT_EQ(TextIn(window, "txtFromServer"), "");
    auto* const list = Find<wxListBox>(window, "lstServerPairs");
    ClickOn(list, RowPoint(*list, 1) + wxPoint(40, 0));
    WaitFor([this] { return TextIn(window, "txtFromServer") == "I"; }, "the other pair");
}

TEST_F(PairInput, TheFocusAloneSelectsNothing) {
    PutItems(window, "lstServerPairs", {"A -> B", "C -> D"});
    PutText(window, "txtFromServer", "new");
    FocusOn(Find(window, "lstServerPairs"));
    Pump();
    EXPECT_EQ(RowIn(window, "lstServerPairs"), wxNOT_FOUND);
    EXPECT_EQ(TextIn(window, "txtFromServer"), "new");
    EXPECT_TRUE(window->servers->m_bolNewServerPair);
}

TEST_F(PairInput, TheArrowKeysGoOnFromTheRowThatWasSaved) {
    PutItems(window, "lstServerPairs", {"A -> B", "C -> D", "E -> F"});
    ClickServer(0);
    ClickOn(Find(window, "cmdNewServerPair"));
    WaitFor([this] { return TextIn(window, "txtFromServer").empty(); }, "empty boxes");
    PutText(window, "txtFromServer", "G");
    PutText(window, "txtToServer", "H");
    ClickOn(Find(window, "cmdSaveServerPair"));
    WaitFor([this] { return RowIn(window, "lstServerPairs") == 3; }, "the new pair");
    FocusOn(Find(window, "lstServerPairs"));
    Press(WXK_UP);
    WaitFor([this] { return TextIn(window, "txtFromServer") == "E"; }, "the pair above it");
}

TEST_F(PairInput, TheArrowKeysWalkTheList) {
    PutItems(window, "lstServerPairs", {"A -> B", "C -> D"});
    ClickServer(0);
    WaitFor([this] { return TextIn(window, "txtFromServer") == "A"; }, "the first pair");
    Press(WXK_DOWN);
    WaitFor([this] { return TextIn(window, "txtFromServer") == "C"; }, "the second pair");
}

TEST_F(PairInput, TypingOnThePrinterPageMarksTheDocumentAndProgramTextDoesNot) {
    GoTo(10);
    PutText(window, "txtFromPrinter", "by program");
    EXPECT_FALSE(Changed());
    ClickOn(Find(window, "txtFromPrinter"));
    Type("x");
    EXPECT_TRUE(WaitFor([] { return Changed(); }, "the mark"));
}

TEST_F(PairInput, AnEditIsStoredWithTheDocument) {
    PutItems(window, "lstServerPairs", {"A -> B", "C -> D"});
    ClickServer(0);
    WaitFor([this] { return TextIn(window, "txtToServer") == "B"; }, "the pair");
    ClickOn(Find(window, "txtToServer"));
    Press(WXK_END);
    Type("2");
    ClickOn(Find(window, "cmdSaveServerPair"));
    WaitFor([this] { return ItemsIn(window, "lstServerPairs")[0] == "A -> B2"; }, "the edit");
    Store();
    ASSERT_EQ(Record().ServerPairs.size(), 3U);
    EXPECT_EQ(Record().ServerPairs[1].To, "B2");
}

} // namespace
} // namespace window_test
