#include "editors/smtp_page.h"

#include "platform/message.h"
#include "platform/ui/control_name.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

namespace editors {

namespace {

std::string_view TakeDigits(std::string_view& text) {
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

bool TakeSign(std::string_view& text) {
    const bool found = text.starts_with('+') || text.starts_with('-');
    text.remove_prefix(found ? 1 : 0);
    return found;
}

void ShowInvalidEmail() {
    platform::ShowMessage({"Incorrect email address. Please enter a valid email address (i.e. "
                           "name@example.com)",
                           "Invalid Email", platform::Buttons::Ok, platform::Icon::Information});
}

bool LooksLikeAddress(const std::string& text) {
    return text.find('@') != std::string::npos;
}

} // namespace

bool IsNumeric(const std::string& text) {
    constexpr std::string_view kBlanks = " \t";
    std::string_view rest = text;
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
    rest = rest.substr(0, rest.find_last_not_of(kBlanks) + 1);
    TakeSign(rest);
    bool digits = !TakeDigits(rest).empty();
    if (rest.starts_with('.')) {
        rest.remove_prefix(1);
        digits = !TakeDigits(rest).empty() || digits;
    }
    if (digits && (rest.starts_with('e') || rest.starts_with('E'))) {
        rest.remove_prefix(1);
        TakeSign(rest);
        digits = !TakeDigits(rest).empty();
    }
    return digits && rest.empty();
}

SMTPPage::SMTPPage(wxWindow* parent, int position, LeaveChecks& leaveChecks)
    : Page(parent, position, "Notification - SMTP Mail") {
    chkUseSMTP = AddCheckBox("chkUseSMTP", "Notify via email");
    wxFlexGridSizer* const rows = AddFields();
    txtSMTPServerName = AddTextRow(*rows, 30, "SMTP Server Name or IP:", "txtSMTPServerName");
    txtSMTPServerPort = AddTextRow(*rows, 31, "SMTP Server Port:", "txtSMTPServerPort");
    txtSMTPEmailAddress = AddTextRow(*rows, 32, "From Email Address:", "txtSMTPEmailAddress");
    txtEmailSubject = AddTextRow(*rows, 33, "Email Subject:", "txtEmailSubject");
    const TextAndButton recipient = AddTextRowWithButton(
        *rows, 34, "Send Email To:", "txtSendEmailTo", "cmdAddSendEmail", "&Add");
    txtSendEmailTo = recipient.text;
    cmdAddSendEmail = recipient.button;
    lstToEmailAddresses = AddListBox("lstToEmailAddresses", "Recipients");
    cmdRemoveSendEmail = AddButton(*AddButtonRow(), "cmdRemoveSendEmail", "&Remove");

    OnClick(chkUseSMTP, [this] { chkUseSMTP_Click(); });
    OnClick(cmdAddSendEmail, [this] { cmdAddSendEmail_Click(); });
    OnClick(cmdRemoveSendEmail, [this] { cmdRemoveSendEmail_Click(); });
    OnChange(txtSMTPServerName, [this] { txtSMTPServerName_Change(); });
    OnChange(txtSMTPServerPort, [this] { txtSMTPServerPort_Change(); });
    OnChange(txtSMTPEmailAddress, [this] { txtSMTPEmailAddress_Change(); });
    OnChange(txtEmailSubject, [this] { txtEmailSubject_Change(); });
    leaveChecks.Add(*txtSMTPServerPort, [this] { return txtSMTPServerPort_Validate(); });
    leaveChecks.Add(*txtSMTPEmailAddress, [this] { return txtSMTPEmailAddress_Validate(); });
    Completed();
}

void SMTPPage::chkUseSMTP_Click() {
    const bool on = chkUseSMTP->GetValue();
    ColourForState({txtSMTPServerName, txtSMTPServerPort, txtEmailSubject, txtSendEmailTo,
                    lstToEmailAddresses, txtSMTPEmailAddress},
                   on);
    EnableAll({txtSMTPServerName, txtSMTPServerPort, txtEmailSubject, txtSendEmailTo,
               cmdAddSendEmail, lstToEmailAddresses, cmdRemoveSendEmail, txtSMTPEmailAddress},
              on);
    MarkChanged();
}

void SMTPPage::cmdAddSendEmail_Click() {
    const std::string address = TextOf(*txtSendEmailTo);
    if (!LooksLikeAddress(address)) {
        ShowInvalidEmail();
        return;
    }
    lstToEmailAddresses->Append(txtSendEmailTo->GetValue());
    MarkChanged();
}

// Removing a recipient leaves the document unmarked, unlike adding one.
void SMTPPage::cmdRemoveSendEmail_Click() {
    const platform::Answer answer = platform::ShowMessage(
        {"Are you sure that you want to delete the selected Email To Address?", "Delete?",
         platform::Buttons::YesNo, platform::Icon::Question});
    const int selected = lstToEmailAddresses->GetSelection();
    if (answer == platform::Answer::Yes && selected != wxNOT_FOUND) {
        lstToEmailAddresses->Delete(static_cast<unsigned>(selected));
    }
}

bool SMTPPage::txtSMTPServerPort_Validate() {
    const std::string port = TextOf(*txtSMTPServerPort);
    if (port.empty() || IsNumeric(port)) {
        return true;
    }
    platform::ShowMessage({"Incorrect port number. Please enter a valid port number (i.e. 1025)",
                           "Invalid Port Number", platform::Buttons::Ok,
                           platform::Icon::Information});
    return false;
}

// Leaving the sender's address looks at the recipient being entered, not at the sender.
bool SMTPPage::txtSMTPEmailAddress_Validate() {
    const std::string recipient = TextOf(*txtSendEmailTo);
    if (recipient.empty() || LooksLikeAddress(recipient)) {
        return true;
    }
    ShowInvalidEmail();
    return false;
}

void SMTPPage::txtSMTPServerName_Change() {
    MarkChanged();
}

void SMTPPage::txtSMTPServerPort_Change() {
    MarkChanged();
}

void SMTPPage::txtSMTPEmailAddress_Change() {
    MarkChanged();
}

void SMTPPage::txtEmailSubject_Change() {
    MarkChanged();
}

} // namespace editors
