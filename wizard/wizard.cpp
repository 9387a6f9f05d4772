#include "wizard/wizard.h"

#include "directory/ad_printers.h"
#include "document/document.h"
#include "files/browse.h"
#include "files/new_ini.h"
#include "platform/message.h"
#include "platform/program.h"
#include "platform/ui/control_name.h"
#include "platform/ui/text.h"
#include "platform/ui/text_scale.h"
#include "wizard/icons.h"
#include "wizard/page_texts.h"

#include <wx/app.h>
#include <wx/splitter.h>
#include <wx/weakref.h>

using modINIDocument::g_bolDocumentChanged;
using modINIDocument::g_Document;
using modINIDocument::g_strINIFilePath;
using modINIDocument::g_strINIFileTitle;
using platform::ui::ForFont;
using platform::ui::NameControl;

namespace {

frmWizard* g_frmWizard = nullptr;

constexpr int kExistingTab = 1;

// What the system puts around the contents counts as well, and may be known only once the window is
// shown.
void KeepLeastSize(wxFrame& window) {
    const wxSize least = ForFont(window, {780, 505});
    window.SetMinClientSize(least);
    const wxSize known = window.GetSize() - window.GetClientSize();
    window.Bind(wxEVT_SIZE, [&window, least, around = known](wxSizeEvent& event) mutable {
        if (const wxSize now = window.GetSize() - window.GetClientSize(); now != around) {
            around = now;
            window.SetMinClientSize(least);
        }
        event.Skip();
    });
}

} // namespace

frmWizard::frmWizard()
    : wxFrame(nullptr, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
              wxDEFAULT_FRAME_STYLE | wxTAB_TRAVERSAL),
      leaveChecks_(std::make_unique<editors::LeaveChecks>(*this)) {
    g_frmWizard = this;
    NameControl(*this, "frmWizard");
    SetBackgroundColour(editors::FaceColour());
    SetIcons(modWizard::ProgramIcons());
    CreateCommandBar();

    auto* const splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                                wxSP_LIVE_UPDATE | wxSP_3DSASH);
    tvwWizardOptions = std::make_unique<platform::ui::NativeTree>(
        splitter, "tvwWizardOptions", "Wizard options", modWizard::TreeImages());
    sstWizard = new wxSimplebook(splitter, wxID_ANY);
    NameControl(*sstWizard, "sstWizard");
    CreatePages();
    BindPages();
    splitter->SplitVertically(tvwWizardOptions->Control(), sstWizard, ForFont(*this, {220, 0}).x);
    splitter->SetMinimumPaneSize(FromDIP(150));
    splitter->SetSashGravity(0.0);

    KeepLeastSize(*this);
    SetClientSize(ForFont(*this, {880, 600}));
    Centre();
    Bind(wxEVT_CLOSE_WINDOW, &frmWizard::Form_Unload, this);
    Bind(wxEVT_CHAR_HOOK, &frmWizard::OnKey, this);
    modINIFile::SetWindow(this);
    modDeployment::SetHost(this);
    modADPrinters::SetDomainSource(
        [this] { return editors::TextOf(*activeDirectory->cboDomainName); });
}

frmWizard::~frmWizard() {
    modINIFile::SetWindow(nullptr);
    modDeployment::SetHost(nullptr);
    modADPrinters::SetDomainSource(nullptr);
    g_frmWizard = nullptr;
}

void frmWizard::CreatePages() {
    using namespace editors;
    using namespace modWizard;
    const FolderServices local{modBrowseForFolder::BrowseForFolder,
                               modBrowseForFolder::FolderExists};
    const FolderServices network{modBrowseForNetworkFolder::BrowseForNetworkFolder,
                                 modBrowseForFolder::FolderExists};
    const auto describe = [this](int position, const wxString& title, const wxString& text) {
        return new DescriptionPage(sstWizard, position, title, text);
    };
    pages[kGeneralPage] = general = new GeneralPage(sstWizard, kGeneralPage);
    pages[kActiveDirectoryPage] = activeDirectory =
        new ActiveDirectoryPage(sstWizard, kActiveDirectoryPage);
    pages[kServersPage] = servers = new ServersPage(sstWizard, kServersPage);
    pages[kNotificationPage] = describe(kNotificationPage, "Notification", kNotificationText);
    pages[kSMTPPage] = smtp = new SMTPPage(sstWizard, kSMTPPage, *leaveChecks_);
    pages[kFileOutputPage] = fileOutput =
        new FileOutputPage(sstWizard, kFileOutputPage, *leaveChecks_, local);
    pages[kClientPopupPage] = clientPopup = new ClientPopupPage(sstWizard, kClientPopupPage);
    pages[kEventLogPage] = eventLog = new EventLogPage(sstWizard, kEventLogPage);
    pages[kMaintenancePage] = describe(kMaintenancePage, "Maintenance", kMaintenanceText);
    pages[kManualConfigurationPage] =
        describe(kManualConfigurationPage, "Manual Configuration", kManualConfigurationText);
    pages[kPrintersPage] = printers = new PrintersPage(sstWizard, kPrintersPage);
    pages[kMixedPage] = mixed = new MixedPage(sstWizard, kMixedPage);
    pages[kPrunePage] = prune = new PrunePage(sstWizard, kPrunePage);
    pages[kSupportPage] = support = new SupportPage(sstWizard, kSupportPage);
    pages[kDeploymentGeneralPage] = deployment =
        new DeploymentPage(sstWizard, kDeploymentGeneralPage, *leaveChecks_, network);
    pages[kMDACPage] = mdac = new MDACPage(sstWizard, kMDACPage);
    pages[kDeploymentPage] = describe(kDeploymentPage, "Deployment", kDeploymentText);
    pages[kPopulatePage] = populate = new PopulatePage(sstWizard, kPopulatePage);
    pages[kSetDefaultPage] = setDefault = new DefaultPage(sstWizard, kSetDefaultPage);
    pages[kDriversPage] = drivers = new DriversPage(sstWizard, kDriversPage, local);
    for (Page* page : pages) {
        sstWizard->AddPage(page, page->lblGeneral->GetLabel());
    }
}

void frmWizard::BindPages() {
    for (editors::Page* page : pages) {
        const int index = page->Position();
        editors::OnClick(page->cmdNext, [this, index] { cmdNext_Click(index); });
        editors::OnClick(page->cmdBack, [this, index] { cmdBack_Click(index); });
        editors::OnClick(page->cmdHelp, [this, index] { cmdHelp_Click(index); });
    }
    activeDirectory->cboDomainName_Change = [this] { cboDomainName_Change(); };
    editors::OnClick(deployment->cmdDeployNow, [this] { cmdDeployNow_Click(); });
    editors::OnClick(mdac->cmdDeployNow, [this] { cmdDeployNow_Click(); });
    editors::OnClick(populate->cmdAdPopulateRefresh, [this] { cmdAdPopulateRefresh_Click(); });
    editors::OnClick(populate->cmdAdPopulateSelect, [this] { cmdAdPopulateSelect_Click(); });
    editors::OnClick(prune->cmdAdPruneRefresh, [this] { cmdAdPruneRefresh_Click(); });
    editors::OnClick(prune->cmdPruneADSelect, [this] { cmdPruneADSelect_Click(); });

    BindLinks();

    tvwWizardOptions->Control()->Bind(
        platform::ui::EVT_TREE_NODE_CLICK, [this](wxCommandEvent& event) {
            tvwWizardOptions_NodeClick(platform::ui::FromWx(event.GetString()));
        });
    leaveChecks_->AddAction(platform::ui::EVT_TREE_NODE_CLICK);
    leaveChecks_->OnRefused([this] {
        const std::string_view key =
            modWizard::NodeKey(sstWizard->GetSelection(), UsesActiveDirectory());
        tvwWizardOptions->Select(std::string(key));
    });
}

bool frmWizard::UsesActiveDirectory() const {
    return g_Document.UseActiveDirectory == modINIDocument::kTrue;
}

bool frmWizard::Form_Load() {
    modINIFile::StartUntitledDocument();
    editors::ChooseItem(*prune->cboPruneType, 4);
    editors::ChooseItem(*populate->cboPopulateType, 1);
    LoadDocumentToForm();
    InitializeTreeView();
    RunLoadHandlers();
    ShowPage(modWizard::kGeneralPage);
    servers->m_bolNewServerPair = true;
    printers->m_bolNewPrinterPair = true;
    mixed->m_bolNewMixedPair = true;
    populate->m_bolNewPopulate = true;
    prune->m_bolNewPrune = true;
    m_bolDomainChangedPopulate = false;
    m_bolDomainChangedPrune = false;
    RefreshCaption();
    FillDomainList();
    g_bolDocumentChanged = false;
    return ChooseDocument();
}

void frmWizard::RunLoadHandlers() {
    smtp->chkUseSMTP_Click();
    fileOutput->chkUseFileOutput_Click();
    clientPopup->chkUseNotifyUser_Click();
    clientPopup->chkNotifyMessageOnFailure_Click();
    mdac->chkIncludeMDAC_Click();
    setDefault->optDefault_Click(setDefault->optDefault.Selected());
}

bool frmWizard::ChooseDocument() {
    frmNewINI dialog(nullptr);
    dialog.SetIcons(GetIcons());
    dialog.optUseActiveDirectory->SetValue(true);
    bool existing = false;
    do {
        dialog.ShowModal();
        if (frmNewINI::g_bolCancelPressed) {
            return false;
        }
        existing = dialog.CurrentTab() == kExistingTab;
        // Select always closes the dialog; without a chosen file there is nothing to begin with.
    } while (existing && dialog.ExistingFileName().empty());

    modINIFile::StartUntitledDocument();
    if (existing) {
        g_strINIFilePath = platform::JoinPath(dialog.ExistingFolder(), dialog.ExistingFileName());
        g_strINIFileTitle = dialog.ExistingFileName();
        g_bolDocumentChanged = false;
        modINIFile::ReadDocumentOrStartUntitled();
        LoadDocumentToForm();
        InitializeTreeView();
        ClearChangedFlags();
        RefreshCaption();
    } else if (dialog.optUseActiveDirectory->GetValue()) {
        g_Document.UseActiveDirectory = modINIDocument::kTrue;
    } else {
        g_Document.UseManualDefinitions = modINIDocument::kTrue;
    }
    LoadDocumentToForm();
    InitializeTreeView();
    ClearChangedFlags();
    return true;
}

void frmWizard::ClearChangedFlags() {
    g_bolDocumentChanged = false;
    m_bolDomainChangedPopulate = false;
    m_bolDomainChangedPrune = false;
}

void frmWizard::Form_Unload(wxCloseEvent& event) {
    // A window that works is deaf, to its close box as well.
    if (!IsThisEnabled() && event.CanVeto()) {
        event.Veto();
        return;
    }
    if (g_bolDocumentChanged) {
        const platform::Answer answer = platform::ShowMessage(
            {"You have unsaved work, do you want to save before exiting?", "Save?",
             platform::Buttons::YesNoCancel, platform::Icon::Question});
        const bool stay = answer == platform::Answer::Cancel ||
                          (answer == platform::Answer::Yes && !SaveBeforeClosing());
        if (stay && event.CanVeto()) {
            event.Veto();
            return;
        }
    }
    leaveChecks_->Forget();
    // A query that lets this event run still stands on the window: it goes when that has returned.
    modADPrinters::AbandonQueries();
    Hide();
    modADPrinters::WhenNoQueryRuns([window = wxWeakRef<frmWizard>(this)] {
        if (window.get() != nullptr) {
            window->Destroy();
        }
    });
}

// A save that did not happen leaves the work unsaved, and the window open with it.
bool frmWizard::SaveBeforeClosing() {
    modINIFile::SaveINIFile();
    // Where the window stays open, it may do so under the name that was chosen just now.
    RefreshCaption();
    if (g_Document.WriteFailed && !g_bolDocumentChanged) {
        g_bolDocumentChanged = true;
    }
    return !g_bolDocumentChanged;
}

void frmWizard::RefreshCaption() {
    SetTitle("Queueshift - Deployment Toolkit [" + platform::ui::ToWx(g_strINIFileTitle) + "]");
}

void frmWizard::cboDomainName_Change() {
    g_bolDocumentChanged = true;
    m_bolDomainChangedPopulate = true;
    m_bolDomainChangedPrune = true;
}

namespace modWizard {

void Main() {
    auto* const window = new frmWizard;
    if (window->Form_Load()) {
        window->Show();
        window->Raise();
    } else {
        window->Destroy();
    }
}

void SaveFormToDocument() {
    g_frmWizard->SaveFormToDocument();
}

void LoadDocumentToForm() {
    g_frmWizard->LoadDocumentToForm();
}

} // namespace modWizard
