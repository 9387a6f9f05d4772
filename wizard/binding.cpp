// What goes between the controls and the record, in both directions, from one table.
#include "document/document.h"
#include "document/item_text.h"
#include "wizard/wizard.h"

#include "platform/ui/text.h"

#include <array>
#include <variant>

namespace {

using modINIDocument::SettingsRecord;

template <class Control> using ControlOf = Control* (*)(frmWizard&);

struct CheckRow {
    modINIDocument::Boolean SettingsRecord::*field;
    ControlOf<wxCheckBox> control;
};

struct TextRow {
    std::string SettingsRecord::*field;
    ControlOf<wxTextCtrl> control;
};

struct ComboRow {
    std::string SettingsRecord::*field;
    ControlOf<wxComboBox> control;
};

template <class Element> struct ListRow {
    using List = std::vector<Element>;
    using Items = std::vector<std::string>;
    List SettingsRecord::*field;
    ControlOf<wxListBox> control;
    Items (*items)(const List&);
    List (*fromItems)(const Items&);
};

struct MDACOptionRow {};
struct DefaultPrinterRow {};

using Row = std::variant<CheckRow, TextRow, ComboRow, ListRow<modINIDocument::NamePair>,
                         ListRow<modINIDocument::MixedPair>, ListRow<std::string>,
                         ListRow<modINIDocument::ServerPrinterName>,
                         ListRow<modINIDocument::PrinterDriver>, MDACOptionRow, DefaultPrinterRow>;

using R = SettingsRecord;
using W = frmWizard;
namespace doc = modINIDocument;

// In this order both ways. UseClientPopup and UseSuccessClientPopup share one check box: stored, it
// gives both its state; loaded, the second has the last word.
const std::array kBinding{
    Row(CheckRow{&R::AlwaysRun, [](W& w) { return w.general->chkAlwaysRun; }}),
    Row(CheckRow{&R::ShowProgress, [](W& w) { return w.general->chkShowProgress; }}),
    Row(ComboRow{&R::DomainName, [](W& w) { return w.activeDirectory->cboDomainName; }}),
    Row(ListRow<doc::NamePair>{&R::ServerPairs, [](W& w) { return w.servers->lstServerPairs; },
                               doc::ServerOrPrinterPairItems, doc::NamePairsFromItems}),
    Row(ListRow<doc::NamePair>{&R::PrinterPairs, [](W& w) { return w.printers->lstPrinterPairs; },
                               doc::ServerOrPrinterPairItems, doc::NamePairsFromItems}),
    Row(ListRow<doc::MixedPair>{&R::MixedPairs,
                                [](W& w) { return w.mixed->lstMixedPrintersAndServers; },
                                doc::MixedPairItems, doc::MixedPairsFromItems}),
    Row(CheckRow{&R::UseSMTP, [](W& w) { return w.smtp->chkUseSMTP; }}),
    Row(TextRow{&R::SMTPServerNameOrIP, [](W& w) { return w.smtp->txtSMTPServerName; }}),
    Row(TextRow{&R::ServerPort, [](W& w) { return w.smtp->txtSMTPServerPort; }}),
    Row(TextRow{&R::EmailSubject, [](W& w) { return w.smtp->txtEmailSubject; }}),
    Row(ListRow<std::string>{&R::EmailTo, [](W& w) { return w.smtp->lstToEmailAddresses; },
                             doc::EmailToItems, doc::EmailToFromItems}),
    Row(TextRow{&R::EmailFrom, [](W& w) { return w.smtp->txtSMTPEmailAddress; }}),
    Row(CheckRow{&R::UseFileOutput, [](W& w) { return w.fileOutput->chkUseFileOutput; }}),
    Row(TextRow{&R::FileOutputPath, [](W& w) { return w.fileOutput->txtFileOutputPath; }}),
    Row(TextRow{&R::FileOutputName, [](W& w) { return w.fileOutput->txtFileOutputName; }}),
    Row(CheckRow{&R::IncludeComputerName,
                 [](W& w) { return w.fileOutput->chkIncludeComputerName; }}),
    Row(CheckRow{&R::IncludeOutcome, [](W& w) { return w.fileOutput->chkIncludeFinalStatus; }}),
    Row(CheckRow{&R::WriteToEventLog, [](W& w) { return w.eventLog->chkWriteToEventLog; }}),
    Row(CheckRow{&R::UseClientPopup, [](W& w) { return w.clientPopup->chkUseNotifyUser; }}),
    Row(CheckRow{&R::UseSuccessClientPopup, [](W& w) { return w.clientPopup->chkUseNotifyUser; }}),
    Row(TextRow{&R::SuccessMessage, [](W& w) { return w.clientPopup->txtSucessMessage; }}),
    Row(CheckRow{&R::UseFailureClientPopup,
                 [](W& w) { return w.clientPopup->chkNotifyMessageOnFailure; }}),
    Row(TextRow{&R::FailureMessage, [](W& w) { return w.clientPopup->txtFailureMessage; }}),
    Row(TextRow{&R::DeploymentPath, [](W& w) { return w.deployment->txtNetworkSharePath; }}),
    Row(CheckRow{&R::CreateWebLaunchPage, [](W& w) { return w.deployment->chkCreateHTML; }}),
    Row(CheckRow{&R::CreateBatchFile, [](W& w) { return w.deployment->chkBatchFile; }}),
    Row(CheckRow{&R::IncludeMDAC, [](W& w) { return w.mdac->chkIncludeMDAC; }}),
    Row(MDACOptionRow{}),
    Row(ListRow<doc::ServerPrinterName>{&R::PopulateList,
                                        [](W& w) { return w.populate->lstPopulate; },
                                        doc::PopulateItems, doc::ServerPrinterNamesFromItems}),
    Row(ListRow<doc::ServerPrinterName>{&R::PruneList, [](W& w) { return w.prune->lstManualPrune; },
                                        doc::PruneItems, doc::ServerPrinterNamesFromItems}),
    Row(CheckRow{&R::DeleteADOrphans, [](W& w) { return w.prune->chkADPruneAll; }}),
    Row(CheckRow{&R::DeleteAllNonNetworked, [](W& w) { return w.prune->chkDeleteNonNetworked; }}),
    Row(ListRow<doc::PrinterDriver>{&R::PrinterDrivers,
                                    [](W& w) { return w.drivers->lstPrinterDrivers; },
                                    doc::PrinterDriverItems, doc::PrinterDriversFromItems}),
    Row(TextRow{&R::DriverSharePath, [](W& w) { return w.drivers->txtDriverSharePath; }}),
    Row(DefaultPrinterRow{}),
    Row(CheckRow{&R::DebugOn, [](W& w) { return w.support->chkDebugOn; }}),
};

struct IntoControl {
    frmWizard& window;
    const SettingsRecord& record;

    void operator()(const CheckRow& row) const {
        editors::ChooseChecked(*row.control(window), record.*row.field == doc::kTrue);
    }
    void operator()(const TextRow& row) const {
        editors::PutText(*row.control(window), record.*row.field);
    }
    // The domain counts as changed when a document brings one, so that the pickers ask.
    void operator()(const ComboRow& row) const {
        editors::EnterText(*row.control(window), record.*row.field);
    }
    template <class Element> void operator()(const ListRow<Element>& row) const {
        editors::PutItems(*row.control(window), row.items(record.*row.field));
    }
    void operator()(MDACOptionRow /*row*/) const {
        window.mdac->optMDACVersion.Choose(record.MDACOption);
    }
    void operator()(DefaultPrinterRow /*row*/) const {
        window.setDefault->optDefault.Choose(record.DefaultType);
        // A type outside the group selects none, which no click tells.
        window.setDefault->FollowChoice();
        if (record.DefaultType == 2) {
            wxOwnerDrawnComboBox& combo = *window.setDefault->cboForceDefault;
            combo.Clear();
            combo.Append(platform::ui::ToWx(record.DefaultPrinterName));
            combo.SetSelection(0);
        }
    }
};

struct IntoRecord {
    frmWizard& window;
    SettingsRecord& record;

    void operator()(const CheckRow& row) const {
        record.*row.field = row.control(window)->GetValue() ? doc::kTrue : doc::kFalse;
    }
    void operator()(const TextRow& row) const {
        record.*row.field = editors::TextOf(*row.control(window));
    }
    void operator()(const ComboRow& row) const {
        record.*row.field = editors::TextOf(*row.control(window));
    }
    template <class Element> void operator()(const ListRow<Element>& row) const {
        record.*row.field = row.fromItems(editors::ItemsOf(*row.control(window)));
    }
    void operator()(MDACOptionRow /*row*/) const {
        const int selected = window.mdac->optMDACVersion.Selected();
        record.MDACOption =
            static_cast<doc::Integer>(selected == 0 || selected == 1 ? selected : 2);
    }
    void operator()(DefaultPrinterRow /*row*/) const {
        const int selected = window.setDefault->optDefault.Selected();
        if (selected == 0 || selected == 1) {
            record.DefaultType = static_cast<doc::Integer>(selected);
            record.DefaultPrinterName.clear();
        } else {
            record.DefaultType = 2;
            record.DefaultPrinterName =
                platform::ui::FromWx(window.setDefault->cboForceDefault->GetValue());
        }
    }
};

} // namespace

void frmWizard::LoadDocumentToForm() {
    for (wxTextCtrl* box :
         {servers->txtFromServer, servers->txtToServer, smtp->txtSendEmailTo,
          printers->txtFromPrinter, printers->txtToPrinter, mixed->txtMixedFromPrinter,
          mixed->txtMixedFromServer, mixed->txtMixedToPrinter, mixed->txtMixedToServer}) {
        editors::PutText(*box, "");
    }
    prune->cboADPrune->Clear();
    populate->cboAdPopulate->Clear();
    for (wxTextCtrl* box :
         {prune->txtPruneServerName, prune->txtPrunePrinterName, populate->txtPopulateServerName}) {
        editors::PutText(*box, "");
    }
    for (const Row& row : kBinding) {
        std::visit(IntoControl{*this, doc::g_Document}, row);
    }
}

void frmWizard::SaveFormToDocument() {
    for (const Row& row : kBinding) {
        std::visit(IntoRecord{*this, doc::g_Document}, row);
    }
}
