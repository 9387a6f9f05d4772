// A menu and a control of one access key: the menu wins, each time.
#include "platform/ui/menu_key.h"

#include "tests/support/window/window_test.h"

#include <wx/button.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

namespace window_test {
namespace {

class MenuKeys : public testing::Test {
protected:
    MenuKeys() : frame(new wxFrame(nullptr, wxID_ANY, "Keys", wxPoint(40, 40), wxSize(300, 200))) {
        auto* const bar = new wxMenuBar;
        for (const char* caption : {"Vie&w", "&File"}) {
            auto* const menu = new wxMenu;
            menu->Append(wxID_ANY, "Entry");
            bar->Append(menu, caption);
        }
        frame->SetMenuBar(bar);
        auto* const panel = new wxPanel(frame);
        text = new wxTextCtrl(panel, wxID_ANY);
        auto* const button = new wxButton(panel, wxID_ANY, "Re&fresh");
        auto* const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(text);
        sizer->Add(button);
        panel->SetSizer(sizer);
        button->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ++pushed; });
        frame->Bind(wxEVT_MENU_OPEN,
                    [this](wxMenuEvent& event) { opened += event.GetMenu()->GetTitle(); });
        frame->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
            if (!event.AltDown() || !platform::ui::OpenMenuByKey(*frame, event.GetKeyCode())) {
                event.Skip();
            }
        });
        frame->Show();
        FocusOn(text);
    }

    ~MenuKeys() override {
        frame->Destroy();
        Pump();
    }

    wxFrame* frame;
    wxTextCtrl* text = nullptr;
    int pushed = 0;
    wxString opened;
};

TEST_F(MenuKeys, OpenTheMenuAndNotTheControl) {
    for (int i = 0; i < 3; ++i) {
        opened.clear();
        Press('F', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([this] { return !opened.empty(); }, "the menu"));
        EXPECT_EQ(opened, "&File");
        Press(WXK_ESCAPE);
        Press(WXK_ESCAPE);
        Pump();
        EXPECT_TRUE(HasFocus(text));
    }
    EXPECT_EQ(pushed, 0);
}

TEST_F(MenuKeys, LeaveEveryOtherKeyToTheControls) {
    EXPECT_FALSE(platform::ui::OpenMenuByKey(*frame, 'E'));
    EXPECT_FALSE(platform::ui::OpenMenuByKey(*frame, 0));
    Pump();
    EXPECT_EQ(opened, "");
}

} // namespace
} // namespace window_test
