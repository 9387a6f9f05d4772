// The domain list, and the pickers of published print queues on the maintenance pages.
#include "directory/ad_printers.h"
#include "document/document.h"
#include "document/item_text.h"
#include "platform/message.h"
#include "platform/ui/text.h"
#include "wizard/wizard.h"

#include <utility>
#include <vector>

namespace {

// One page's picker, so that both pages share every step.
struct Picker {
    wxOwnerDrawnComboBox& list;
    wxGauge& progress;
    bool& domainChanged;
    std::vector<wxWindow*> switches;
    const wxListBox& colourSource;
};

void PreparePicker(frmWizard& window, const Picker& picker) {
    const bool on = modINIDocument::g_Document.UseActiveDirectory == modINIDocument::kTrue;
    editors::EnableWithColour(picker.list, on,
                              on ? picker.colourSource.GetBackgroundColour()
                                 : window.GetBackgroundColour());
    for (wxWindow* control : picker.switches) {
        control->Enable(on);
    }
    wxComboBox& domain = *window.activeDirectory->cboDomainName;
    if (!on || domain.GetValue().empty() || !picker.domainChanged) {
        return;
    }
    const platform::Answer answer = platform::ShowMessage(
        {"Your domain name has changed, do you want to refresh your list of Active Directory "
         "printers?",
         "Refresh Printers", platform::Buttons::YesNo, platform::Icon::Question});
    if (answer == platform::Answer::Yes) {
        modADPrinters::FillADPrinterList(picker.list, picker.progress);
    }
    picker.domainChanged = false;
}

void RefreshPicker(const frmWizard& window, const Picker& picker) {
    const wxComboBox& domain = *window.activeDirectory->cboDomainName;
    if (domain.GetValue().empty()) {
        platform::ShowMessage(
            {"No domain name selected. Please select a domain name on the Active Directory step.",
             "Error, No Domain Name", platform::Buttons::Ok, platform::Icon::Exclamation});
        return;
    }
    modADPrinters::FillADPrinterList(picker.list, picker.progress);
    if (!picker.list.IsListEmpty()) {
        picker.list.SetSelection(0);
    }
}

// Puts the picked queue into the page's boxes, switches the type and lets the next Save append.
void SelectPicked(const wxOwnerDrawnComboBox& list, wxTextCtrl& server, wxTextCtrl& printer,
                  wxChoice& type, int typeIndex, bool& adding) {
    const std::string text = platform::ui::FromWx(list.GetValue());
    if (text.empty()) {
        platform::ShowMessage({"No Active Directory printer selected. Please choose a printer.",
                               "Error selecting AD printer", platform::Buttons::Ok,
                               platform::Icon::Critical});
        return;
    }
    const modINIDocument::ServerPrinterName name = modINIDocument::ServerPrinterNameFromItem(text);
    editors::PutText(server, name.ServerName);
    editors::PutText(printer, name.PrinterName);
    editors::ChooseItem(type, typeIndex);
    adding = true;
}

Picker PopulatePicker(frmWizard& window, std::vector<wxWindow*> switches) {
    return {*window.populate->cboAdPopulate, *window.populate->prbAdPopulateProgress,
            window.m_bolDomainChangedPopulate, std::move(switches), *window.populate->lstPopulate};
}

Picker PrunePicker(frmWizard& window, std::vector<wxWindow*> switches) {
    return {*window.prune->cboADPrune, *window.prune->prbADPrune, window.m_bolDomainChangedPrune,
            std::move(switches), *window.prune->lstManualPrune};
}

} // namespace

void frmWizard::FillDomainList() {
    for (const std::string& name : modADPrinters::DomainNames()) {
        activeDirectory->cboDomainName->Append(platform::ui::ToWx(name));
    }
}

void frmWizard::PreparePopulatePage() {
    PreparePicker(*this, PopulatePicker(*this, {populate->cmdAdPopulateSelect,
                                                populate->cmdAdPopulateRefresh}));
}

void frmWizard::PreparePrunePage() {
    PreparePicker(*this, PrunePicker(*this, {prune->cmdPruneADSelect, prune->cmdAdPruneRefresh,
                                             prune->chkADPruneAll}));
}

void frmWizard::cmdAdPopulateRefresh_Click() {
    RefreshPicker(*this, PopulatePicker(*this, {}));
}

void frmWizard::cmdAdPruneRefresh_Click() {
    RefreshPicker(*this, PrunePicker(*this, {}));
}

void frmWizard::cmdAdPopulateSelect_Click() {
    SelectPicked(*populate->cboAdPopulate, *populate->txtPopulateServerName,
                 *populate->txtPopulatePrinterName, *populate->cboPopulateType, 1,
                 populate->m_bolNewPopulate);
}

void frmWizard::cmdPruneADSelect_Click() {
    SelectPicked(*prune->cboADPrune, *prune->txtPruneServerName, *prune->txtPrunePrinterName,
                 *prune->cboPruneType, 4, prune->m_bolNewPrune);
}
