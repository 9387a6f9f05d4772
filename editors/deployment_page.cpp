#include "editors/deployment_page.h"

#include <utility>

namespace editors {

DeploymentPage::DeploymentPage(wxWindow* parent, int position, LeaveChecks& leaveChecks,
                               FolderServices folders)
    : Page(parent, position, "Deployment"), folders_(std::move(folders)) {
    wxFlexGridSizer* const rows = AddFields();
    const TextAndButton path =
        AddTextRowWithButton(*rows, 37, "Network Share Path:", "txtNetworkSharePath",
                             "cmdBrowseDeployment", "Browse ...");
    txtNetworkSharePath = path.text;
    cmdBrowseDeployment = path.button;
    chkBatchFile = AddCheckBox("chkBatchFile", "Create batch file");
    chkCreateHTML = AddCheckBox("chkCreateHTML", "Create web launch page");
    cmdDeployNow = AddButton(*AddButtonRow(), "cmdDeployNow(0)", "&Deploy Now");
    lblWizard1 = AddParagraph(
        "lblWizard(1)",
        "** NOTE ** This INI file deployment is currently using an Active Directory configuration. "
        "Please review the information on the Deployment - MDAC step before deploying your "
        "solution.");

    OnClick(cmdBrowseDeployment, [this] { cmdBrowseDeployment_Click(); });
    OnClick(chkBatchFile, [this] { chkBatchFile_Click(); });
    OnClick(chkCreateHTML, [this] { chkCreateHTML_Click(); });
    OnChange(txtNetworkSharePath, [this] { txtNetworkSharePath_Change(); });
    leaveChecks.Add(*txtNetworkSharePath, [this] {
        txtNetworkSharePath_Validate();
        return true;
    });
    Completed();
}

void DeploymentPage::ShowConfigurationType(bool usesActiveDirectory) {
    lblWizard1->Show(usesActiveDirectory);
    SetTitle(usesActiveDirectory ? "Deployment - General" : "Deployment");
}

void DeploymentPage::cmdBrowseDeployment_Click() {
    BrowseInto(*txtNetworkSharePath, folders_);
}

void DeploymentPage::txtNetworkSharePath_Validate() {
    if (CurrentTab(*this) == Position() && !txtNetworkSharePath->IsEmpty()) {
        // See the file output page: the two warnings stand crossed.
        CheckFolder(*txtNetworkSharePath, folders_,
                    "The output file folder could not be found. This may cause Queueshift to work "
                    "irregularly.");
    }
}

void DeploymentPage::txtNetworkSharePath_Change() {
    MarkChanged();
}

void DeploymentPage::chkBatchFile_Click() {
    MarkChanged();
}

void DeploymentPage::chkCreateHTML_Click() {
    MarkChanged();
}

} // namespace editors
