// The General page: the document's type, and how the engine runs.
#pragma once

#include "editors/page.h"

namespace editors {

class GeneralPage : public Page {
public:
    GeneralPage(wxWindow* parent, int position);

    /// Shows the document's type; the user cannot change it here.
    void ShowConfigurationType(bool usesActiveDirectory);

    wxChoice* cboConfigurationFileType;
    wxCheckBox* chkShowProgress;
    wxCheckBox* chkAlwaysRun;

    void chkShowProgress_Click();
    void chkAlwaysRun_Click();
};

} // namespace editors
