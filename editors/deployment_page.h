// The Deployment General page: where the engine is deployed to, and what is generated there.
#pragma once

#include "editors/folder_field.h"
#include "editors/page.h"

namespace editors {

class DeploymentPage : public Page {
public:
    DeploymentPage(wxWindow* parent, int position, LeaveChecks& leaveChecks,
                   FolderServices folders);

    /// An Active Directory document has further deployment pages, which title and note tell.
    void ShowConfigurationType(bool usesActiveDirectory);

    wxTextCtrl* txtNetworkSharePath;
    wxButton* cmdBrowseDeployment;
    wxCheckBox* chkBatchFile;
    wxCheckBox* chkCreateHTML;
    wxButton* cmdDeployNow; ///< element 0 of its array
    Paragraph* lblWizard1;

    void cmdBrowseDeployment_Click();
    void txtNetworkSharePath_Validate();
    void txtNetworkSharePath_Change();
    void chkBatchFile_Click();
    void chkCreateHTML_Click();

private:
    FolderServices folders_;
};

} // namespace editors
