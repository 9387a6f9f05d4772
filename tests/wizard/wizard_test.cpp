#include "tests/wizard/wizard_test.h"

#include "directory/ad_printers.h"
#include "files/ini_file.h"
#include "files/new_ini.h"
#include "platform/ui/message_box.h"

#include <wx/radiobut.h>

namespace window_test {

WizardTest::WizardTest() {
    platform::ui::InstallMessageBoxes();
    modINIDocument::g_Document = {};
    modINIDocument::g_strINIFilePath.clear();
    modINIDocument::g_strINIFileTitle.clear();
    modINIDocument::g_bolDocumentChanged = false;
    modINIFile::g_CommonDialog = {};
    frmNewINI::g_bolCancelPressed = false;
    // Whatever domains the machine knows that runs the tests.
    modADPrinters::SetDomainLister([] { return std::vector<std::string>(); });
}

WizardTest::~WizardTest() {
    modADPrinters::SetDomainLister(nullptr);
    if (window) {
        window->Destroy();
    }
    Pump();
}

void WizardTest::Start(DocumentType type) {
    window = new frmWizard;
    ModalScript dialogs;
    dialogs.ExpectDialog<frmNewINI>([type](frmNewINI& dialog) {
        (type == kActiveDirectory ? dialog.optUseActiveDirectory : dialog.optUseManualConfiguration)
            ->SetValue(true);
        frmNewINI::g_bolCancelPressed = false;
        return static_cast<int>(wxID_OK);
    });
    ASSERT_TRUE(window->Form_Load());
}

void WizardTest::Show() {
    window->Show();
    BringToFront(window);
    WaitFor([this] { return window->sstWizard->IsShownOnScreen(); }, "the window to be shown");
}

void WizardTest::Become(DocumentType type) {
    Record().UseActiveDirectory =
        type == kActiveDirectory ? modINIDocument::kTrue : modINIDocument::kFalse;
    Record().UseManualDefinitions =
        type == kManual ? modINIDocument::kTrue : modINIDocument::kFalse;
    window->InitializeTreeView();
}

namespace {

constexpr const char* kStale = "stale";

bool IsActiveDirectory() {
    return modINIDocument::g_Document.UseActiveDirectory == modINIDocument::kTrue;
}

} // namespace

void PreparationProbe::Arm() {
    // Each preparation puts one of these right.
    window_.populate->cboAdPopulate->Enable(!IsActiveDirectory());
    window_.prune->cboADPrune->Enable(!IsActiveDirectory());
    PutItems(&window_, "cboForceDefault", {kStale});
    PutItems(&window_, "lstPrinterDrivers", {kStale});
}

Texts PreparationProbe::Ran() const {
    Texts ran;
    if (window_.populate->cboAdPopulate->IsThisEnabled() == IsActiveDirectory()) {
        ran.emplace_back("Populate");
    }
    if (window_.prune->cboADPrune->IsThisEnabled() == IsActiveDirectory()) {
        ran.emplace_back("Prune");
    }
    if (ItemsIn(&window_, "cboForceDefault").empty()) {
        ran.emplace_back("DefaultPrinters");
    }
    if (ItemsIn(&window_, "lstPrinterDrivers").empty()) {
        ran.emplace_back("Drivers");
    }
    return ran;
}

} // namespace window_test
