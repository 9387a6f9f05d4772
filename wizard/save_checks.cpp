// What is checked before a save, and the lists of the Drivers and Set Default pages.
#include "document/document.h"
#include "platform/message.h"
#include "platform/ui/text.h"
#include "wizard/derived_lists.h"
#include "wizard/wizard.h"

#include <algorithm>
#include <array>

namespace {

void ShowSaveError(const std::string& caption, const std::string& text) {
    platform::ShowMessage({text, caption, platform::Buttons::Ok, platform::Icon::Critical});
}

modWizard::MigrationLists ListsOf(const frmWizard& window) {
    return {editors::ItemsOf(*window.mixed->lstMixedPrintersAndServers),
            editors::ItemsOf(*window.printers->lstPrinterPairs),
            editors::ItemsOf(*window.populate->lstPopulate)};
}

bool HasManualData(const frmWizard& window) {
    const std::array lists{window.servers->lstServerPairs, window.printers->lstPrinterPairs,
                           window.mixed->lstMixedPrintersAndServers, window.populate->lstPopulate,
                           window.prune->lstManualPrune};
    return window.prune->chkDeleteNonNetworked->GetValue() ||
           std::ranges::any_of(lists, [](const wxListBox* list) { return !list->IsEmpty(); });
}

} // namespace

bool frmWizard::CanSaveDocument() {
    bool complete = true;
    if (UsesActiveDirectory()) {
        if (activeDirectory->cboDomainName->GetValue().empty()) {
            ShowSaveError("Error Saving",
                          "The Active Directory domain name is a required field. Please enter an "
                          "Active Directory domain name, before saving.");
            ShowPage(modWizard::kActiveDirectoryPage);
            activeDirectory->cboDomainName->SetFocus();
            complete = false;
        }
    } else if (!HasManualData(*this)) {
        ShowSaveError("Error Saving",
                      "At least one of the Manual Configurations or Maintenace methods must have "
                      "data. Please enter at least one set of Manual data before saving.");
        ShowPage(modWizard::kServersPage);
        servers->txtFromServer->SetFocus();
        complete = false;
    }
    if (!populate->lstPopulate->IsEmpty() && drivers->lstPrinterDrivers->IsEmpty()) {
        RefreshDriverList();
    }
    if (complete && modWizard::LacksLocalDriver(editors::ItemsOf(*populate->lstPopulate),
                                                editors::ItemsOf(*drivers->lstPrinterDrivers))) {
        ShowSaveError("Queueshift",
                      "When populating a local printer you must provide a driver name\r\n"
                      "and port name on the drivers step. Please provide the required "
                      "information.");
        ShowPage(modWizard::kDriversPage);
        cmdNext_Click(modWizard::kSetDefaultPage);
        complete = false;
    }
    return complete;
}

void frmWizard::RefreshDriverList() {
    wxListBox& list = *drivers->lstPrinterDrivers;
    editors::PutItems(list, modWizard::DriverItems(ListsOf(*this), editors::ItemsOf(list)));
}

void frmWizard::RefreshDefaultPrinterList() {
    wxOwnerDrawnComboBox& combo = *setDefault->cboForceDefault;
    const wxString remembered = combo.GetValue();
    editors::PutItems(combo, modWizard::DefaultPrinterItems(ListsOf(*this)));
    // Where the text is no longer offered nothing is selected, and the text goes with it.
    combo.SetSelection(combo.FindString(remembered, true));
}
