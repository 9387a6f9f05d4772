#include "editors/client_popup_page.h"

#include "platform/ui/control_name.h"
#include "platform/ui/line_room.h"
#include "platform/ui/one_line.h"

namespace editors {

ClientPopupPage::ClientPopupPage(wxWindow* parent, int position)
    : Page(parent, position, "Notification - Client Pop-Up") {
    const wxString onSuccess = "Notify user on success with message:";
    const wxString onFailure = "Notify user on failure with message:";
    chkUseNotifyUser = AddCheckBox("chkUseNotifyUser", onSuccess);
    txtSucessMessage = AddMessage("txtSucessMessage", onSuccess);
    chkNotifyMessageOnFailure = AddCheckBox("chkNotifyMessageOnFailure", onFailure);
    txtFailureMessage = AddMessage("txtFailureMessage", onFailure);

    OnClick(chkUseNotifyUser, [this] { chkUseNotifyUser_Click(); });
    OnClick(chkNotifyMessageOnFailure, [this] { chkNotifyMessageOnFailure_Click(); });
    OnChange(txtSucessMessage, [this] { txtSucessMessage_Change(); });
    OnChange(txtFailureMessage, [this] { txtFailureMessage_Change(); });
    Completed();
}

// One line: a message is stored as the rest of a line of the INI file.
wxTextCtrl* ClientPopupPage::AddMessage(const wxString& name, const wxString& label) {
    auto* const box = new wxTextCtrl(this, wxID_ANY);
    platform::ui::TakeOneLine(*box);
    platform::ui::RoomForLine(*box);
    platform::ui::NameControl(*box, name, label);
    Body().Add(box, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(2 * kGap)));
    return box;
}

void ClientPopupPage::chkUseNotifyUser_Click() {
    const bool on = chkUseNotifyUser->GetValue();
    ColourForState({txtSucessMessage}, on);
    EnableAll({txtSucessMessage}, on);
    MarkChanged();
}

void ClientPopupPage::chkNotifyMessageOnFailure_Click() {
    const bool on = chkNotifyMessageOnFailure->GetValue();
    ColourForState({txtFailureMessage}, on);
    EnableAll({txtFailureMessage}, on);
    MarkChanged();
}

void ClientPopupPage::txtSucessMessage_Change() {
    MarkChanged();
}

void ClientPopupPage::txtFailureMessage_Change() {
    MarkChanged();
}

} // namespace editors
