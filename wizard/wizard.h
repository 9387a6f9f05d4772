// The main window: one settings document as the pages of a wizard.
#pragma once

#include "deployment/deployment.h"
#include "editors/active_directory_page.h"
#include "editors/client_popup_page.h"
#include "editors/default_page.h"
#include "editors/deployment_page.h"
#include "editors/description_page.h"
#include "editors/drivers_page.h"
#include "editors/event_log_page.h"
#include "editors/file_output_page.h"
#include "editors/general_page.h"
#include "editors/leave_checks.h"
#include "editors/maintenance_pages.h"
#include "editors/mdac_page.h"
#include "editors/pair_pages.h"
#include "editors/smtp_page.h"
#include "editors/support_page.h"
#include "files/ini_file.h"
#include "platform/ui/native_tree.h"
#include "wizard/pages.h"

#include <wx/frame.h>
#include <wx/simplebook.h>

#include <array>
#include <map>
#include <memory>
#include <string>
#include <string_view>

class frmProgress;

/// The only main window. Tree, command bar and Next/Back choose the page that sstWizard shows, and
/// always agree on it.
class frmWizard : public wxFrame, public modINIFile::Window, public modDeployment::Host {
public:
    frmWizard();
    ~frmWizard() override;

    /// Everything that precedes the first sight of the window: an untitled document, the controls
    /// filled from it, and the new-document dialog. False when that dialog was cancelled: the
    /// program ends without a question.
    bool Form_Load();

    /// Rebuilds the option tree and what else depends on the document's type.
    void InitializeTreeView() override;
    void SaveFormToDocument() override;
    void LoadDocumentToForm() override;

    void tvwWizardOptions_NodeClick(const std::string& key);
    void cmdNext_Click(int index);
    void cmdBack_Click(int index);
    void cmdHelp_Click(int index);
    void cmdDeployNow_Click();
    void ssaQueueshift_ToolClick(std::string_view tool);
    void cboDomainName_Change();
    void cmdAdPopulateRefresh_Click();
    void cmdAdPruneRefresh_Click();
    void cmdAdPopulateSelect_Click();
    void cmdPruneADSelect_Click();
    /// The elements of lblWizard: 3 and 5 are links, the others are mere texts.
    void lblWizard_Click(int index);
    void lblWizard_MouseMove(int index);
    void sstWizard_MouseMove();

    /// True when the document is complete enough to be saved; otherwise says why and shows the page
    /// to mend.
    bool CanSaveDocument();
    void RefreshDriverList();
    void RefreshDefaultPrinterList();
    void PreparePopulatePage();
    void PreparePrunePage();
    void FillDomainList();

    /// Shows the page and marks its node. Where the focus was on the page before, it goes to
    /// `focus`, or to the new page's first control.
    void ShowPage(int position, wxWindow* focus = nullptr);
    void RefreshCaption();

    // modINIFile::Window
    wxWindow* Owner() override { return this; }
    void ShowHelpContext(int context) override;

    // modDeployment::Host
    std::string DeploymentFolder() const override;
    bool IncludesMDAC() const override;
    bool IsMDACVersionSelected(int index) const override;
    void Advance(std::string_view label) override;
    void Wait() override;

    wxSimplebook* sstWizard = nullptr; ///< without tabs: tree, menu and Next/Back lead to a page
    std::unique_ptr<platform::ui::NativeTree> tvwWizardOptions;

    editors::GeneralPage* general = nullptr;
    editors::ActiveDirectoryPage* activeDirectory = nullptr;
    editors::ServersPage* servers = nullptr;
    editors::SMTPPage* smtp = nullptr;
    editors::FileOutputPage* fileOutput = nullptr;
    editors::ClientPopupPage* clientPopup = nullptr;
    editors::EventLogPage* eventLog = nullptr;
    editors::PrintersPage* printers = nullptr;
    editors::MixedPage* mixed = nullptr;
    editors::PrunePage* prune = nullptr;
    editors::SupportPage* support = nullptr;
    editors::DeploymentPage* deployment = nullptr;
    editors::MDACPage* mdac = nullptr;
    editors::PopulatePage* populate = nullptr;
    editors::DefaultPage* setDefault = nullptr;
    editors::DriversPage* drivers = nullptr;
    std::array<editors::Page*, modWizard::kPageCount> pages{};

    bool m_bolDomainChangedPopulate = false;
    bool m_bolDomainChangedPrune = false;

private:
    void Form_Unload(wxCloseEvent& event);
    void CreatePages();
    void BindPages();
    void BindLinks();
    void CreateCommandBar();
    void OnKey(wxKeyEvent& event);
    bool RunAccelerator(const wxKeyEvent& event);
    void Prepare(modWizard::Preparation preparation);
    void RunLoadHandlers();
    bool ChooseDocument();
    void Deploy();
    void ClearChangedFlags();
    bool SaveBeforeClosing();
    [[nodiscard]] bool UsesActiveDirectory() const;

    std::unique_ptr<editors::LeaveChecks> leaveChecks_;
    std::map<std::string, int, std::less<>> toolIds_;
    frmProgress* progress_ = nullptr;
};

namespace modWizard {

/// The program's start: shows the main window, unless its start-up dialog is cancelled.
void Main();

/// The window's two binding operations, for whoever has no window at hand.
void SaveFormToDocument();
void LoadDocumentToForm();

} // namespace modWizard
