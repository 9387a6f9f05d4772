// The domain of the Active Directory page, chosen with real input.
#include "tests/wizard/dropped.h"
#include "tests/wizard/wizard_test.h"

#include "directory/ad_printers.h"
#include "wizard/pages.h"

#include <gmock/gmock.h>

namespace window_test {
namespace {

class SameDomain : public WizardTest {
protected:
    // As the window is with the second of three domains chosen, and nothing changed since.
    SameDomain() {
        modADPrinters::SetDomainLister([] { return Texts{"sales", "corp", "lab"}; });
        Start(kActiveDirectory);
        combo = window->activeDirectory->cboDomainName;
        SelectRow(window, "cboDomainName", 1);
        Show();
        GoTo(modWizard::kActiveDirectoryPage);
        Pump();
        ForgetChanges();
        window->m_bolDomainChangedPopulate = false;
        window->m_bolDomainChangedPrune = false;
        combo->Bind(wxEVT_COMBOBOX, [this](wxCommandEvent& event) {
            told.push_back(event.GetInt());
            event.Skip();
        });
    }

    void Drop() {
        FocusOn(combo);
        Press(WXK_DOWN, wxMOD_ALT);
        WaitFor([this] { return IsDropped(*combo); }, "the items to be shown");
    }

    void PressAndClose(int key) {
        Press(key);
        WaitFor([this] { return !IsDropped(*combo); }, "the items to go");
        Pump();
    }

    void ExpectChanged(bool changed) {
        EXPECT_EQ(Changed(), changed);
        EXPECT_EQ(window->m_bolDomainChangedPopulate, changed);
        EXPECT_EQ(window->m_bolDomainChangedPrune, changed);
    }

    wxComboBox* combo = nullptr;
    std::vector<int> told; // the items chosen
};

TEST_F(SameDomain, ChosenOnceMoreIsAChange) {
    Drop();
    PressAndClose(WXK_RETURN);
    ExpectChanged(true);
    EXPECT_EQ(told, std::vector<int>{1});
    EXPECT_EQ(TextIn(window, "cboDomainName"), "corp");
}

TEST_F(SameDomain, LookedAtIsNoChange) {
    Drop();
    PressAndClose(WXK_ESCAPE);
    ExpectChanged(false);
    EXPECT_EQ(told, std::vector<int>{});
    EXPECT_EQ(TextIn(window, "cboDomainName"), "corp");
}

// One system tells of an item that the keys have reached, the other of the one that was taken.
TEST_F(SameDomain, AnotherOneIsAChangeToThatOne) {
    Drop();
    Press(WXK_DOWN);
    PressAndClose(WXK_RETURN);
    ExpectChanged(true);
    EXPECT_THAT(told, testing::Each(2));
    EXPECT_EQ(TextIn(window, "cboDomainName"), "lab");
}

// What was typed is no item, whatever it says.
TEST_F(SameDomain, TypedAndThenChosenIsAChange) {
    PutText(window, "cboDomainName", "corp");
    Pump();
    Drop();
    Press(WXK_DOWN);
    PressAndClose(WXK_RETURN);
    ExpectChanged(true);
    EXPECT_FALSE(told.empty());
}

} // namespace
} // namespace window_test
