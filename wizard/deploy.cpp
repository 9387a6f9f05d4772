// Deploy Now: the checks before it, the progress window, and what deployment reads of the controls.
#include "deployment/progress.h"
#include "document/document.h"
#include "editors/busy_window.h"
#include "files/browse.h"
#include "platform/message.h"
#include "platform/ui/pump.h"
#include "wizard/wizard.h"

#include "platform/ui/text.h"

#include <memory>

using modDeployment::g_bolDeploymentSucceeded;

namespace {

void Refuse(const std::string& text) {
    platform::ShowMessage({text, "Error", platform::Buttons::Ok, platform::Icon::Critical});
    g_bolDeploymentSucceeded = false;
}

} // namespace

void frmWizard::cmdDeployNow_Click() {
    g_bolDeploymentSucceeded = true;
    if (modINIDocument::g_strINIFilePath.empty() || modINIDocument::g_bolDocumentChanged) {
        Refuse("This INI file needs to be saved. Please save your INI file before trying to "
               "deploy.");
    } else if (!modBrowseForFolder::FolderExists(DeploymentFolder())) {
        Refuse("The deployment folder does not exist. Please check your deployment folder and try "
               "again.");
    } else {
        Deploy();
    }
    if (g_bolDeploymentSucceeded) {
        platform::ShowMessage({"Deployment successfull.", "Sucess", platform::Buttons::Ok,
                               platform::Icon::Information});
    }
}

void frmWizard::Deploy() {
    {
        const editors::BusyWindow busy(*this);
        // Not left to be destroyed later: on GTK a window that was slow to come up would do so
        // then.
        const auto progress = std::make_unique<frmProgress>(this);
        progress_ = progress.get();
        progress_->Advance("Initializing deployment process ...");
        progress_->Show();
        modDeployment::DeployFiles();
        // Page and batch file are written even when copying failed.
        if (deployment->chkCreateHTML->GetValue()) {
            modDeployment::CreateHTMLFile();
        }
        if (deployment->chkBatchFile->GetValue()) {
            modDeployment::CreateBatchFile();
        }
        progress_->SetToMaximum("Deployment Complete.");
        progress_ = nullptr;
    }
    platform::ui::PumpEvents();
}

std::string frmWizard::DeploymentFolder() const {
    return editors::TextOf(*deployment->txtNetworkSharePath);
}

bool frmWizard::IncludesMDAC() const {
    return mdac->chkIncludeMDAC->GetValue();
}

bool frmWizard::IsMDACVersionSelected(int index) const {
    return mdac->optMDACVersion.Selected() == index;
}

void frmWizard::Wait() {
    platform::ui::PumpPainting();
}

void frmWizard::Advance(std::string_view label) {
    progress_->Advance(label);
}
