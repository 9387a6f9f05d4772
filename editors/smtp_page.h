// The SMTP Mail page: the mail by which the engine reports its result.
#pragma once

#include "editors/page.h"

namespace editors {

/// True for what the mail port field accepts as a number: an optional sign, digits with an optional
/// decimal point, an optional exponent, blanks around it. No range is tested.
bool IsNumeric(const std::string& text);

class SMTPPage : public Page {
public:
    SMTPPage(wxWindow* parent, int position, LeaveChecks& leaveChecks);

    wxCheckBox* chkUseSMTP;
    wxTextCtrl* txtSMTPServerName;
    wxTextCtrl* txtSMTPServerPort;
    wxTextCtrl* txtSMTPEmailAddress;
    wxTextCtrl* txtEmailSubject;
    wxTextCtrl* txtSendEmailTo; ///< typing here marks nothing until the address is added
    wxListBox* lstToEmailAddresses;
    wxButton* cmdAddSendEmail;
    wxButton* cmdRemoveSendEmail;

    void chkUseSMTP_Click();
    void cmdAddSendEmail_Click();
    void cmdRemoveSendEmail_Click();
    /// These two answer false to keep the focus.
    bool txtSMTPServerPort_Validate();
    bool txtSMTPEmailAddress_Validate();
    void txtSMTPServerName_Change();
    void txtSMTPServerPort_Change();
    void txtSMTPEmailAddress_Change();
    void txtEmailSubject_Change();
};

} // namespace editors
