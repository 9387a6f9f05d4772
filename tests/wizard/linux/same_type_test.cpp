// The type of a maintenance page, chosen once more with real input.
#include "tests/wizard/dropped.h"
#include "tests/wizard/wizard_test.h"

#include "wizard/pages.h"

namespace window_test {
namespace {

class SameType : public WizardTest {
protected:
    // Opens the drop-down, whose selected item is under the pointer then, and presses a key in it.
    void OpenAndPress(const char* name, int key) {
        wxWindow* const choice = Find(window, name);
        FocusOn(choice);
        Press(WXK_SPACE);
        WaitFor([choice] { return IsDropped(*choice); }, "the items to be shown");
        Press(key);
        WaitFor([choice] { return !IsDropped(*choice); }, "the items to go");
        Pump();
    }
};

TEST_F(SameType, PutsItsReservedTextBack) {
    Start(kManual);
    Choose(window, "cboPopulateType", 0);
    Choose(window, "cboPruneType", 3);
    // As another document leaves them.
    Load();
    ForgetChanges();
    PutText(window, "txtPrunePrinterName", "");
    Show();
    GoTo(modWizard::kPopulatePage);
    OpenAndPress("cboPopulateType", WXK_ESCAPE);
    EXPECT_EQ(TextIn(window, "txtPopulateServerName"), "");
    OpenAndPress("cboPopulateType", WXK_RETURN);
    EXPECT_EQ(TextIn(window, "txtPopulateServerName"), ".");
    GoTo(modWizard::kPrunePage);
    OpenAndPress("cboPruneType", WXK_RETURN);
    EXPECT_EQ(TextIn(window, "txtPrunePrinterName"), "*");
    EXPECT_FALSE(Changed());
}

TEST_F(SameType, AnotherTypeIsToldOnce) {
    Start(kManual);
    Show();
    GoTo(modWizard::kPopulatePage);
    int choices = 0;
    window->populate->cboPopulateType->Bind(wxEVT_CHOICE, [&choices](wxCommandEvent& event) {
        ++choices;
        event.Skip();
    });
    wxWindow* const choice = Find(window, "cboPopulateType");
    FocusOn(choice);
    Press(WXK_SPACE);
    WaitFor([choice] { return IsDropped(*choice); }, "the items to be shown");
    Press(WXK_UP);
    Press(WXK_RETURN);
    WaitFor([this] { return TextIn(window, "cboPopulateType") == "Local"; }, "the other type");
    Pump();
    EXPECT_EQ(choices, 1);
    EXPECT_EQ(TextIn(window, "txtPopulateServerName"), ".");
}

} // namespace
} // namespace window_test
