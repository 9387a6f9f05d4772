// Messages as the boxes that the user sees.

#include "platform/ui/message_box.h"

#include "tests/support/window/window_test.h"

#include <wx/msgdlg.h>

namespace window_test {
namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;
using platform::Message;

class MessageBoxes : public testing::Test {
protected:
    MessageBoxes() { platform::ui::InstallMessageBoxes(); }

    /// The style of the box that shows this message.
    static long StyleOf(const Message& message) {
        long style = 0;
        ModalScript script;
        script.ExpectDialog<wxMessageDialog>([&style](wxMessageDialog& box) {
            style = box.GetMessageDialogStyle();
            return wxID_OK;
        });
        platform::ShowMessage(message);
        return style;
    }

    /// The answer that comes of the toolkit's.
    static Answer AnswerTo(int id, Buttons buttons) {
        ModalScript script;
        script.ExpectDialog<wxMessageDialog>([id](wxMessageDialog&) { return id; });
        return platform::ShowMessage({"T", "C", buttons, Icon::None});
    }
};

TEST_F(MessageBoxes, ShowsTextAndCaptionWithPlainLineEnds) {
    ModalScript script;
    script.ExpectDialog<wxMessageDialog>([](wxMessageDialog& box) {
        EXPECT_EQ(box.GetMessage(), "One\nTwo & three\n\nFour");
        EXPECT_EQ(box.GetCaption(), "Sucess");
        EXPECT_EQ(box.GetExtendedMessage(), "");
        return wxID_OK;
    });
    platform::ShowMessage({"One\r\nTwo & three\r\n\r\nFour", "Sucess"});
}

TEST_F(MessageBoxes, EachIconIsTheSystemsOwn) {
    const auto icon = [](Icon wanted) {
        return StyleOf({"T", "C", Buttons::YesNo, wanted}) & wxICON_MASK;
    };
    EXPECT_EQ(icon(Icon::Critical), wxICON_ERROR);
    EXPECT_EQ(icon(Icon::Question), wxICON_QUESTION);
    EXPECT_EQ(icon(Icon::Exclamation), wxICON_EXCLAMATION);
    EXPECT_EQ(icon(Icon::Information), wxICON_INFORMATION);
    EXPECT_EQ(icon(Icon::None), wxICON_NONE);
}

TEST_F(MessageBoxes, EachButtonSetIsOffered) {
    constexpr long kButtons = wxOK | wxYES_NO | wxCANCEL;
    EXPECT_EQ(StyleOf({"T", "C", Buttons::Ok, Icon::None}) & kButtons, wxOK);
    EXPECT_EQ(StyleOf({"T", "C", Buttons::YesNo, Icon::None}) & kButtons, wxYES_NO);
    EXPECT_EQ(StyleOf({"T", "C", Buttons::YesNoCancel, Icon::None}) & kButtons,
              wxYES_NO | wxCANCEL);
}

TEST_F(MessageBoxes, AnswersAreTheButtonsAndAClosedBoxAgreesToNothing) {
    EXPECT_EQ(AnswerTo(wxID_OK, Buttons::Ok), Answer::Ok);
    EXPECT_EQ(AnswerTo(wxID_CANCEL, Buttons::Ok), Answer::Ok);
    EXPECT_EQ(AnswerTo(wxID_YES, Buttons::YesNo), Answer::Yes);
    EXPECT_EQ(AnswerTo(wxID_NO, Buttons::YesNo), Answer::No);
    EXPECT_EQ(AnswerTo(wxID_CANCEL, Buttons::YesNo), Answer::No);
    EXPECT_EQ(AnswerTo(wxID_YES, Buttons::YesNoCancel), Answer::Yes);
    EXPECT_EQ(AnswerTo(wxID_NO, Buttons::YesNoCancel), Answer::No);
    EXPECT_EQ(AnswerTo(wxID_CANCEL, Buttons::YesNoCancel), Answer::Cancel);
}

TEST_F(MessageBoxes, BelongsToTheActiveWindow) {
    HostFrame host;
    wxDialog second(&host.Frame(), wxID_ANY, "Second", wxPoint(60, 60), wxSize(300, 200));
    second.Show();
    BringToFront(&second);
    EXPECT_EQ(platform::ui::ActiveOwner(), &second);
    second.Hide();
    BringToFront(&host.Frame());
    EXPECT_EQ(platform::ui::ActiveOwner(), &host.Frame());
}

} // namespace
} // namespace window_test
