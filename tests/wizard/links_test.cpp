// The texts of the lblWizard array: two links, four mere texts, and the pointer over them.
#include "tests/wizard/pointer.h"
#include "tests/wizard/wizard_test.h"

#include "platform/message.h"
#include "platform/ui/open_document.h"
#include "wizard/pages.h"

#include <wx/uiaction.h>

#include <utility>

namespace window_test {
namespace {

constexpr const char* kMDACAddress = "http://msdn.microsoft.com/data/mdac";
constexpr const char* kProductAddress = "http://www.queueshift.example";

class Links : public WizardTest {
protected:
    Links() {
        system_ =
            platform::ui::SetDocumentOpener([this](wxWindow* owner, const std::string& address) {
                owner_ = owner;
                opened_.push_back(address);
                return failure_;
            });
    }
    ~Links() override { platform::ui::SetDocumentOpener(system_); }

    wxWindow* Label(int index) { return Find(window, "lblWizard(" + std::to_string(index) + ")"); }

    // The page of each element.
    void GoToLabel(int index) {
        constexpr int kPages[]{15, 14, 15, 15, 13, 13};
        GoTo(kPages[index]);
        WaitFor([this, index] { return Label(index)->IsShownOnScreen(); }, "the text to be shown");
    }

    void PointAt(const wxWindow* target, const wxPoint& offset) {
        // A pointer that rests there already would send nothing.
        wxUIActionSimulator simulator;
        const wxPoint place = target->ClientToScreen(offset);
        simulator.MouseMove(place + wxPoint(1, 1));
        Pump();
        simulator.MouseMove(place);
        WaitFor([place] { return wxGetMousePosition() == place; }, "the mouse to arrive");
        Pump();
    }

    [[nodiscard]] bool Asks() const { return IsQuestionArrow(window->GetCursor()); }

    platform::ui::DocumentOpener system_;
    platform::ui::OpenFailure failure_;
    wxWindow* owner_ = nullptr;
    Texts opened_;
};

TEST_F(Links, AClickOpensTheAddress) {
    Start(kActiveDirectory);
    Show();
    GoToLabel(3);
    ClickOn(Label(3));
    EXPECT_EQ(opened_, Texts{kMDACAddress});
    EXPECT_EQ(owner_, window.get());
    GoToLabel(5);
    ClickOn(Label(5), wxPoint(10, 8));
    EXPECT_EQ(opened_, (Texts{kMDACAddress, kProductAddress}));
    EXPECT_FALSE(Changed());
}

TEST_F(Links, AClickOnAMereTextDoesNothing) {
    Start(kActiveDirectory);
    Show();
    for (const int index : {0, 1, 2, 4}) {
        GoToLabel(index);
        ClickOn(Label(index));
        window->lblWizard_Click(index);
        EXPECT_EQ(opened_, Texts{}) << index;
        EXPECT_FALSE(window->GetCursor().IsOk()) << index;
    }
}

TEST_F(Links, TheKeyboardReachesAndOpensThem) {
    Start(kActiveDirectory);
    Show();
    GoToLabel(5);
    FocusOn(Find(window, "chkDebugOn"));
    Press(WXK_TAB);
    WaitFor([this] { return HasFocus(Label(5)); }, "the link to have the focus");
    Press(WXK_RETURN);
    Press(WXK_SPACE);
    EXPECT_EQ(opened_, (Texts{kProductAddress, kProductAddress}));
    Press(WXK_TAB);
    EXPECT_TRUE(HasFocus(Find(window, "cmdHelp(13)")));
}

TEST_F(Links, TheyKeepTheirTexts) {
    Start(kActiveDirectory);
    EXPECT_EQ(Label(3)->GetLabel().utf8_string(),
              "For further information, go to http://msdn.microsoft.com/data/mdac");
    EXPECT_EQ(Label(5)->GetLabel().utf8_string(),
              "To submit a support requests please visit www.queueshift.example. Please provide a "
              "description of the issue you are having and if you can provide us with the debug "
              "file we will be able to resolve the issue faster.");
}

TEST_F(Links, AnAddressThatCannotBeOpenedIsTold) {
    Start(kActiveDirectory);
    ModalScript dialogs;
    const auto expect = [&](const std::string& text) {
        dialogs.ExpectMessage({.text = text,
                               .caption = "Queueshift",
                               .buttons = platform::Buttons::Ok,
                               .icon = platform::Icon::Exclamation});
    };
    failure_ = "No program opens such addresses";
    expect("The address http://www.queueshift.example could not be opened.\r\n\r\nNo program opens "
           "such addresses");
    window->lblWizard_Click(5);
    failure_ = "";
    expect("The address http://msdn.microsoft.com/data/mdac could not be opened.");
    window->lblWizard_Click(3);
}

TEST_F(Links, ThePointerAsksOverALinkAndNowhereElse) {
    Start(kActiveDirectory);
    Show();
    EXPECT_FALSE(window->GetCursor().IsOk());
    for (const auto& [link, text] : {std::pair(3, 0), std::pair(5, 4)}) {
        GoToLabel(link);
        PointAt(Label(link), wxPoint(20, 8));
        WaitFor([this] { return Asks(); }, "the pointer to ask over the link");
        PointAt(Label(text), wxPoint(20, 8));
        WaitFor([this] { return !window->GetCursor().IsOk(); },
                "the pointer to be the default over the text");
        PointAt(Label(link), wxPoint(20, 8));
        WaitFor([this] { return Asks(); }, "the pointer to ask again");
        // The free space above the separator.
        wxWindow* const page = Label(link)->GetParent();
        PointAt(page, wxPoint(4, page->GetClientSize().y / 2));
        WaitFor([this] { return !window->GetCursor().IsOk(); },
                "the pointer to be the default over the page");
    }
}

TEST_F(Links, EachElementTellsItsPointer) {
    Start(kActiveDirectory);
    for (const int index : {0, 1, 2, 4}) {
        window->lblWizard_MouseMove(3);
        ASSERT_TRUE(Asks());
        window->lblWizard_MouseMove(index);
        EXPECT_FALSE(window->GetCursor().IsOk()) << index;
    }
    window->lblWizard_MouseMove(5);
    EXPECT_TRUE(Asks());
    window->sstWizard_MouseMove();
    EXPECT_FALSE(window->GetCursor().IsOk());
}

} // namespace
} // namespace window_test
