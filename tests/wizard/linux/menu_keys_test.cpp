// Keys of the menus that a control of the window has a use for, too.
#include "tests/wizard/wizard_test.h"

#include "files/new_ini.h"

#include <wx/menu.h>

namespace window_test {
namespace {

class MenuAccessKeys : public WizardTest {};

TEST_F(MenuAccessKeys, WinOverTheRefreshOfTheMaintenancePages) {
    Start(kManual);
    Show();
    wxString opened;
    window->Bind(wxEVT_MENU_OPEN, [&opened](wxMenuEvent& event) {
        opened = event.GetMenu()->GetTitle();
        event.Skip();
    });
    for (const int page : {17, 12, 17, 12}) {
        GoTo(page);
        FocusOn(Find(window, page == 17 ? "txtPopulatePrinterName" : "txtPrunePrinterName"));
        opened.clear();
        Press('F', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&opened] { return !opened.empty(); }, "the menu"));
        EXPECT_EQ(opened, "&File") << page;
        Press(WXK_ESCAPE);
        Press(WXK_ESCAPE);
        Pump();
        EXPECT_TRUE(
            HasFocus(Find(window, page == 17 ? "txtPopulatePrinterName" : "txtPrunePrinterName")));
    }
}

class MenuAccelerators : public WizardTest {};

TEST_F(MenuAccelerators, WorkInTheTreeAndInTheLists) {
    Start(kManual);
    Show();
    for (wxWindow* control :
         {window->tvwWizardOptions->Control(), Find(window, "lstServerPairs")}) {
        GoTo(2);
        PutItems(window, "lstServerPairs", {"A -> B", "C -> D"});
        FocusOn(control);
        ModalScript dialogs;
        dialogs.ExpectDialog<frmNewINI>([](frmNewINI&) {
            frmNewINI::g_bolCancelPressed = true;
            return static_cast<int>(wxID_CANCEL);
        });
        Press('N', wxMOD_CONTROL);
        EXPECT_TRUE(WaitFor([&dialogs] { return dialogs.Done(); }, "the new-document dialog"));
    }
}

} // namespace
} // namespace window_test
