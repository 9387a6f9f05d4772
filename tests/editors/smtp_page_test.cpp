// The SMTP Mail page: what its check box switches, the recipients, and the two field checks.
#include "editors/smtp_page.h"

#include "tests/editors/page_test.h"

#include <wx/settings.h>

namespace window_test {
namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

const platform::Message kInvalidEmail{
    "Incorrect email address. Please enter a valid email address (i.e. name@example.com)",
    "Invalid Email", Buttons::Ok, Icon::Information};
const platform::Message kInvalidPort{
    "Incorrect port number. Please enter a valid port number (i.e. 1025)", "Invalid Port Number",
    Buttons::Ok, Icon::Information};
const platform::Message kRemoveQuestion{
    "Are you sure that you want to delete the selected Email To Address?", "Delete?",
    Buttons::YesNo, Icon::Question};

class SMTPPage : public PageTest {
protected:
    SMTPPage() { smtp = &Make<editors::SMTPPage>(4, *checks); }

    editors::SMTPPage* smtp;
};

TEST_F(SMTPPage, TheCheckBoxEnablesAndColoursItsGroup) {
    const Texts coloured{"txtSMTPServerName", "txtSMTPServerPort",   "txtEmailSubject",
                         "txtSendEmailTo",    "lstToEmailAddresses", "txtSMTPEmailAddress"};
    const Texts buttons{"cmdAddSendEmail", "cmdRemoveSendEmail"};
    const std::string window = ColourText(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    const std::string face = ColourText(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    ASSERT_NE(window, face);
    for (const bool on : {true, false, true}) {
        ForgetChanges();
        Tick(page, "chkUseSMTP", on);
        EXPECT_TRUE(Changed());
        for (const std::string& name : coloured) {
            EXPECT_EQ(IsEnabled(page, name), on) << name;
            EXPECT_EQ(ColourOf(page, name), on ? window : face) << name;
        }
        for (const std::string& name : buttons) {
            EXPECT_EQ(IsEnabled(page, name), on) << name;
        }
    }
}

TEST_F(SMTPPage, SwitchingMailOffKeepsTheRecipients) {
    Tick(page, "chkUseSMTP");
    PutItems(page, "lstToEmailAddresses", {"a@x", "b@x"});
    Tick(page, "chkUseSMTP", false);
    EXPECT_EQ(ItemsIn(page, "lstToEmailAddresses"), (Texts{"a@x", "b@x"}));
}

TEST_F(SMTPPage, AddAppendsWhatHoldsAnAtSign) {
    Texts expected;
    for (const char* address : {"bob@example.com", "a@", "@", " x@y ", "@"}) {
        ForgetChanges();
        PutText(page, "txtSendEmailTo", address);
        Push(page, "cmdAddSendEmail");
        expected.emplace_back(address);
        EXPECT_EQ(ItemsIn(page, "lstToEmailAddresses"), expected);
        EXPECT_EQ(TextIn(page, "txtSendEmailTo"), address);
        EXPECT_TRUE(Changed()) << address;
    }
}

TEST_F(SMTPPage, AddRefusesWhatHoldsNone) {
    for (const char* address : {"", "bob", "bob.example.com"}) {
        PutText(page, "txtSendEmailTo", address);
        ModalScript dialogs;
        dialogs.ExpectMessage(kInvalidEmail);
        Push(page, "cmdAddSendEmail");
        EXPECT_EQ(ItemsIn(page, "lstToEmailAddresses"), Texts{});
        EXPECT_EQ(TextIn(page, "txtSendEmailTo"), address);
        EXPECT_FALSE(Changed()) << address;
    }
}

TEST_F(SMTPPage, TypingARecipientMarksNothing) {
    Enter(page, "txtSendEmailTo", "bob@x");
    EXPECT_FALSE(Changed());
}

TEST_F(SMTPPage, TypingInAnyOtherFieldMarksTheDocument) {
    for (const char* name :
         {"txtSMTPServerName", "txtSMTPServerPort", "txtSMTPEmailAddress", "txtEmailSubject"}) {
        ForgetChanges();
        PutText(page, name, "by program");
        EXPECT_FALSE(Changed()) << name;
        Enter(page, name, "typed");
        EXPECT_TRUE(Changed()) << name;
    }
}

TEST_F(SMTPPage, RemoveTakesTheSelectedRecipientAndLeavesTheDocumentUnmarked) {
    PutItems(page, "lstToEmailAddresses", {"a@x", "b@x", "c@x"});
    SelectRow(page, "lstToEmailAddresses", 1);
    ModalScript dialogs;
    dialogs.ExpectMessage(kRemoveQuestion, Answer::No);
    Push(page, "cmdRemoveSendEmail");
    EXPECT_EQ(ItemsIn(page, "lstToEmailAddresses"), (Texts{"a@x", "b@x", "c@x"}));
    dialogs.ExpectMessage(kRemoveQuestion, Answer::Yes);
    Push(page, "cmdRemoveSendEmail");
    EXPECT_EQ(ItemsIn(page, "lstToEmailAddresses"), (Texts{"a@x", "c@x"}));
    EXPECT_FALSE(Changed());
}

TEST_F(SMTPPage, RemoveAsksEvenWhenThereIsNothingToRemove) {
    ModalScript dialogs;
    dialogs.ExpectMessage(kRemoveQuestion, Answer::Yes);
    Push(page, "cmdRemoveSendEmail");
    EXPECT_TRUE(dialogs.Done());
    PutItems(page, "lstToEmailAddresses", {"a@x"});
    SelectRow(page, "lstToEmailAddresses", wxNOT_FOUND);
    dialogs.ExpectMessage(kRemoveQuestion, Answer::Yes);
    Push(page, "cmdRemoveSendEmail");
    EXPECT_EQ(ItemsIn(page, "lstToEmailAddresses"), Texts{"a@x"});
    EXPECT_FALSE(Changed());
}

TEST_F(SMTPPage, NoRecipientIsSelectedInTheRemovedOnesPlace) {
    Tick(page, "chkUseSMTP");
    PutItems(page, "lstToEmailAddresses", {"a@x", "b@x", "c@x"});
    Show();
    auto* const list = Find<wxListBox>(page, "lstToEmailAddresses");
    ClickOn(list, RowPoint(*list, 1));
    WaitFor([this] { return RowIn(page, "lstToEmailAddresses") == 1; }, "the recipient");
    // The second time nobody is there to be removed.
    for (int i = 0; i < 2; ++i) {
        ModalScript dialogs;
        dialogs.ExpectMessage(kRemoveQuestion, Answer::Yes);
        ClickOn(Find(page, "cmdRemoveSendEmail"));
        WaitFor([&dialogs] { return dialogs.Done(); }, "the question");
        EXPECT_EQ(ItemsIn(page, "lstToEmailAddresses"), (Texts{"a@x", "c@x"}));
        EXPECT_EQ(RowIn(page, "lstToEmailAddresses"), wxNOT_FOUND);
    }
}

TEST_F(SMTPPage, ThePortCheckAcceptsNothingAndNumbersOnly) {
    for (const char* port : {"", "25", "0", "70000", "99999", "25.5", "-1", "+1", " 25 "}) {
        PutText(page, "txtSMTPServerPort", port);
        const ModalScript noDialogs;
        EXPECT_TRUE(smtp->txtSMTPServerPort_Validate()) << port;
    }
    for (const char* port : {"abc", "25a", " ", "2 5"}) {
        PutText(page, "txtSMTPServerPort", port);
        ModalScript dialogs;
        dialogs.ExpectMessage(kInvalidPort);
        EXPECT_FALSE(smtp->txtSMTPServerPort_Validate()) << port;
        EXPECT_EQ(TextIn(page, "txtSMTPServerPort"), port);
    }
}

TEST_F(SMTPPage, TheSenderCheckLooksAtTheRecipientInstead) {
    PutText(page, "txtSMTPEmailAddress", "nobody");
    for (const char* recipient : {"", "bob@x"}) {
        PutText(page, "txtSendEmailTo", recipient);
        const ModalScript noDialogs;
        EXPECT_TRUE(smtp->txtSMTPEmailAddress_Validate()) << recipient;
    }
    PutText(page, "txtSMTPEmailAddress", "me@x");
    PutText(page, "txtSendEmailTo", "bob");
    ModalScript dialogs;
    dialogs.ExpectMessage(kInvalidEmail);
    EXPECT_FALSE(smtp->txtSMTPEmailAddress_Validate());
    EXPECT_EQ(TextIn(page, "txtSMTPEmailAddress"), "me@x");
    EXPECT_FALSE(Changed());
}

TEST(PortNumbers, AreNumbersInTheWidestSense) {
    for (const char* text : {"0",    "25",    "007", "70000", "99999999999", "25.5",     ".5",
                             "5.",   "-1",    "+1",  "-.5",   "1e3",         "1E3",      "1e+3",
                             "1e-3", "1.5e2", " 25", "25 ",   "\t25\t",      " -2.5e+1 "}) {
        EXPECT_TRUE(editors::IsNumeric(text)) << '"' << text << '"';
    }
    for (const char* text : {"", " ", "abc", "25a", "a25", "2 5", ".", "-", "+", "e", "e3", "1e",
                             "1e+", "1e1.5", "--1", "1-", "1..2", "1.2.3", "1,5,x"}) {
        EXPECT_FALSE(editors::IsNumeric(text)) << '"' << text << '"';
    }
}

} // namespace
} // namespace window_test
