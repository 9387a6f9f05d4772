// What the system says of an item that was chosen already.
#include "tests/wizard/wizard_test.h"

#include <windows.h>

namespace window_test {
namespace {

class SameDomainMessage : public WizardTest {};

// The only message then: that the selection has changed is not said where it has not.
TEST_F(SameDomainMessage, OfAChoiceAloneIsAChange) {
    Start(kActiveDirectory);
    const wxComboBox& combo = *window->activeDirectory->cboDomainName;
    PutItems(window, "cboDomainName", {"sales", "corp"});
    SelectRow(window, "cboDomainName", 1);
    Pump();
    ForgetChanges();
    window->m_bolDomainChangedPopulate = window->m_bolDomainChangedPrune = false;
    ::SendMessageW(combo.GetParent()->GetHWND(), WM_COMMAND,
                   MAKEWPARAM(::GetDlgCtrlID(combo.GetHWND()), CBN_SELENDOK),
                   reinterpret_cast<LPARAM>(combo.GetHWND()));
    Pump();
    EXPECT_TRUE(Changed());
    EXPECT_TRUE(window->m_bolDomainChangedPopulate);
    EXPECT_TRUE(window->m_bolDomainChangedPrune);
}

} // namespace
} // namespace window_test
