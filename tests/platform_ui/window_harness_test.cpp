// The harness itself: what it sends arrives, and what it ought to catch it catches.

#include "tests/support/window/window_test.h"

#include <gtest/gtest-spi.h>
#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

namespace window_test {
namespace {

struct Controls {
    explicit Controls(HostFrame& host) : panel(new wxPanel(&host.Frame())) {
        text = new wxTextCtrl(panel, wxID_ANY);
        text->SetName("txtSample");
        button = new wxButton(panel, wxID_ANY, "&Press");
        button->SetName("cmdSample");
        auto* const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(text);
        sizer->Add(button);
        panel->SetSizer(sizer);
        button->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ++presses; });
        host.Show(panel);
    }

    wxPanel* panel;
    wxTextCtrl* text = nullptr;
    wxButton* button = nullptr;
    int presses = 0;
};

class SmallDialog : public wxDialog {
public:
    explicit SmallDialog(wxWindow* parent) : wxDialog(parent, wxID_ANY, "Small") {
        auto* const ok = new wxButton(this, wxID_OK);
        ok->SetName("cmdOK");
        auto* const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(ok, wxSizerFlags().Border());
        SetSizerAndFit(sizer);
    }
};

TEST(WindowHarness, FindsControlsByNameAndKind) {
    HostFrame host;
    const Controls controls(host);
    EXPECT_EQ(Find(controls.panel, "txtSample"), controls.text);
    EXPECT_EQ(Find<wxButton>(&host.Frame(), "cmdSample"), controls.button);
    EXPECT_THROW(Find(controls.panel, "txtOther"), std::runtime_error);
    EXPECT_THROW(Find<wxButton>(controls.panel, "txtSample"), std::runtime_error);
}

TEST(WindowHarness, ClicksReachTheirControl) {
    HostFrame host;
    const Controls controls(host);
    ClickOn(controls.button);
    EXPECT_EQ(controls.presses, 1);
    ClickOn(controls.button);
    EXPECT_EQ(controls.presses, 2);
}

TEST(WindowHarness, TypesAllKindsOfCharacters) {
    HostFrame host;
    const Controls controls(host);
    ClickOn(controls.text);
    EXPECT_TRUE(HasFocus(controls.text));
    Type("\\\\Server_1\\Share (x86)@a.b: \"q\"");
    EXPECT_EQ(controls.text->GetValue(), "\\\\Server_1\\Share (x86)@a.b: \"q\"");
    Press(WXK_TAB);
    EXPECT_TRUE(HasFocus(controls.button));
    Press(WXK_SPACE);
    EXPECT_EQ(controls.presses, 1);
    Press('P', wxMOD_ALT);
    EXPECT_EQ(controls.presses, 2);
}

TEST(WindowHarness, AnswersMessageBoxesInOrder) {
    ModalScript script;
    script.ExpectMessage({.text = "One\r\nand two?",
                          .caption = "Q",
                          .buttons = platform::Buttons::YesNoCancel,
                          .icon = platform::Icon::Question},
                         platform::Answer::Cancel);
    script.ExpectMessage({.text = "Sorry",
                          .caption = "E",
                          .buttons = platform::Buttons::Ok,
                          .icon = platform::Icon::Critical});
    wxMessageDialog question(nullptr, "One\nand two?", "Q", wxYES_NO | wxCANCEL | wxICON_QUESTION);
    EXPECT_EQ(question.ShowModal(), wxID_CANCEL);
    EXPECT_FALSE(script.Done());
    wxMessageDialog sorry(nullptr, "Sorry", "E", wxOK | wxICON_ERROR);
    EXPECT_EQ(sorry.ShowModal(), wxID_OK);
    EXPECT_TRUE(script.Done());
}

TEST(WindowHarness, FailsOnAnUnexpectedDialog) {
    EXPECT_NONFATAL_FAILURE(
        {
            wxMessageDialog box(nullptr, "Surprise", "S", wxYES_NO | wxICON_QUESTION);
            EXPECT_EQ(box.ShowModal(), wxID_NO);
        },
        "unexpected message box \"S\": \"Surprise\"");
}

TEST(WindowHarness, FailsOnAnotherText) {
    EXPECT_NONFATAL_FAILURE(
        {
            ModalScript script;
            script.ExpectMessage({.text = "Expected", .caption = "S"});
            wxMessageDialog box(nullptr, "Other", "S", wxOK | wxICON_NONE);
            box.ShowModal();
        },
        "Expected");
}

TEST(WindowHarness, FailsOnAnExpectationNotMet) {
    EXPECT_NONFATAL_FAILURE(
        {
            ModalScript script;
            script.ExpectMessage({.text = "Hello", .caption = "S"});
        },
        "never came");
}

TEST(WindowHarness, ActsOnALiveDialog) {
    HostFrame host;
    ModalScript script;
    bool wasShown = false;
    script.ExpectLive<SmallDialog>([&](SmallDialog& dialog) {
        wasShown = dialog.IsShownOnScreen();
        ClickOn(Find(&dialog, "cmdOK"));
    });
    SmallDialog dialog(&host.Frame());
    EXPECT_EQ(dialog.ShowModal(), wxID_OK);
    EXPECT_TRUE(wasShown);
}

TEST(WindowHarness, EscapeReachesALiveDialog) {
    HostFrame host;
    ModalScript script;
    script.ExpectLive<SmallDialog>([](SmallDialog& dialog) {
        FocusOn(Find(&dialog, "cmdOK"));
        Press(WXK_ESCAPE);
    });
    SmallDialog dialog(&host.Frame());
    dialog.SetEscapeId(wxID_OK);
    EXPECT_EQ(dialog.ShowModal(), wxID_OK);
}

TEST(WindowHarness, AnswersADialogWithoutShowingIt) {
    ModalScript script;
    script.ExpectDialog<SmallDialog>([](SmallDialog& dialog) {
        EXPECT_FALSE(dialog.IsShown());
        return wxID_APPLY;
    });
    SmallDialog dialog(nullptr);
    EXPECT_EQ(dialog.ShowModal(), wxID_APPLY);
}

TEST(WindowHarness, FailsOnAnAssertionOfTheToolkit) {
    EXPECT_NONFATAL_FAILURE(wxFAIL_MSG("a broken promise"), "a broken promise");
}

} // namespace
} // namespace window_test
