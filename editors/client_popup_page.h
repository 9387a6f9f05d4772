// The Client Pop-Up page: what the engine tells the user of a client.
#pragma once

#include "editors/page.h"

namespace editors {

class ClientPopupPage : public Page {
public:
    ClientPopupPage(wxWindow* parent, int position);

    wxCheckBox* chkUseNotifyUser;
    wxTextCtrl* txtSucessMessage;
    wxCheckBox* chkNotifyMessageOnFailure;
    wxTextCtrl* txtFailureMessage;

    void chkUseNotifyUser_Click();
    void chkNotifyMessageOnFailure_Click();
    void txtSucessMessage_Change();
    void txtFailureMessage_Change();

private:
    wxTextCtrl* AddMessage(const wxString& name, const wxString& label);
};

} // namespace editors
