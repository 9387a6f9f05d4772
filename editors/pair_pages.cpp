#include "editors/pair_pages.h"

#include "document/item_text.h"

namespace editors {

namespace {

ListEditorTexts PairTexts(const char* required, const char* deleteQuestion) {
    return {{required, "Save Error", platform::Buttons::Ok, platform::Icon::Critical},
            deleteQuestion};
}

std::string FormatPair(const ListEditor::Pieces& pieces) {
    return modINIDocument::ItemText(modINIDocument::NamePair{pieces[0], pieces[1]});
}

ListEditor::Pieces SplitPair(const std::string& item) {
    const modINIDocument::NamePair pair = modINIDocument::NamePairFromItem(item);
    return {pair.From, pair.To};
}

// The boxes of the mixed page stand in reading order, which is not the record's.
std::string FormatMixed(const ListEditor::Pieces& pieces) {
    modINIDocument::MixedPair pair;
    pair.FromServer = pieces[0];
    pair.FromPrinter = pieces[1];
    pair.ToServer = pieces[2];
    pair.ToPrinter = pieces[3];
    return modINIDocument::ItemText(pair);
}

ListEditor::Pieces SplitMixed(const std::string& item) {
    const modINIDocument::MixedPair pair = modINIDocument::MixedPairFromItem(item);
    return {pair.FromServer, pair.FromPrinter, pair.ToServer, pair.ToPrinter};
}

} // namespace

ServersPage::ServersPage(wxWindow* parent, int position)
    : Page(parent, position, "Manual Configuration - Servers") {
    lstServerPairs = AddListBox("lstServerPairs", "Print server pairs");
    wxFlexGridSizer* const rows = AddFields();
    txtFromServer = AddTextRow(*rows, 22, "From Print Server:", "txtFromServer");
    txtToServer = AddTextRow(*rows, 23, "To Print Server:", "txtToServer");
    wxBoxSizer* const buttons = AddButtonRow();
    cmdNewServerPair = AddButton(*buttons, "cmdNewServerPair", "N&ew");
    cmdSaveServerPair = AddButton(*buttons, "cmdSaveServerPair", "&Save");
    cmdDeleteServer = AddButton(*buttons, "cmdDeleteServer", "&Delete");

    editor_ = std::make_unique<ListEditor>(
        *lstServerPairs, std::vector{txtFromServer, txtToServer}, m_bolNewServerPair,
        PairTexts("Both a From and To Print Server name is required. Please enter both print "
                  "server names.",
                  "Are you sure that you want to delete the selected Print Server pair?"));
    editor_->format = FormatPair;
    editor_->split = SplitPair;
    BindListClick(*lstServerPairs, [this] { lstServerPairs_Click(); });
    OnClick(cmdNewServerPair, [this] { cmdNewServerPair_Click(); });
    OnClick(cmdSaveServerPair, [this] { cmdSaveServerPair_Click(); });
    OnClick(cmdDeleteServer, [this] { cmdDeleteServer_Click(); });
    Completed();
}

void ServersPage::cmdNewServerPair_Click() {
    editor_->New();
}

void ServersPage::cmdSaveServerPair_Click() {
    editor_->Save();
}

void ServersPage::cmdDeleteServer_Click() {
    editor_->Delete();
}

void ServersPage::lstServerPairs_Click() {
    editor_->Click();
}

PrintersPage::PrintersPage(wxWindow* parent, int position)
    : Page(parent, position, "Manual Configuration - Printers") {
    lstPrinterPairs = AddListBox("lstPrinterPairs", "Printer pairs");
    wxFlexGridSizer* const rows = AddFields();
    txtFromPrinter = AddTextRow(*rows, 24, "From Printer:", "txtFromPrinter");
    txtToPrinter = AddTextRow(*rows, 25, "To Printer:", "txtToPrinter");
    wxBoxSizer* const buttons = AddButtonRow();
    cmdNewPrinter = AddButton(*buttons, "cmdNewPrinter", "N&ew");
    cmdPrinterSave = AddButton(*buttons, "cmdPrinterSave", "&Save");
    cmdDeletePrinter = AddButton(*buttons, "cmdDeletePrinter", "&Delete");

    editor_ = std::make_unique<ListEditor>(
        *lstPrinterPairs, std::vector{txtFromPrinter, txtToPrinter}, m_bolNewPrinterPair,
        PairTexts("Both a From and To Printer name is required. Please enter both printer names.",
                  "Are you sure that you want to delete the selected Printer pair?"));
    editor_->format = FormatPair;
    editor_->split = SplitPair;
    BindListClick(*lstPrinterPairs, [this] { lstPrinterPairs_Click(); });
    OnClick(cmdNewPrinter, [this] { cmdNewPrinter_Click(); });
    OnClick(cmdPrinterSave, [this] { cmdPrinterSave_Click(); });
    OnClick(cmdDeletePrinter, [this] { cmdDeletePrinter_Click(); });
    OnChange(txtFromPrinter, [this] { txtFromPrinter_Change(); });
    OnChange(txtToPrinter, [this] { txtToPrinter_Change(); });
    Completed();
}

void PrintersPage::cmdNewPrinter_Click() {
    editor_->New();
}

void PrintersPage::cmdPrinterSave_Click() {
    editor_->Save();
}

void PrintersPage::cmdDeletePrinter_Click() {
    editor_->Delete();
}

void PrintersPage::lstPrinterPairs_Click() {
    editor_->Click();
}

void PrintersPage::txtFromPrinter_Change() {
    MarkChanged();
}

void PrintersPage::txtToPrinter_Change() {
    MarkChanged();
}

MixedPage::MixedPage(wxWindow* parent, int position)
    : Page(parent, position, "Manual Configuration - Mixed") {
    lstMixedPrintersAndServers =
        AddListBox("lstMixedPrintersAndServers", "Server and printer pairs");
    wxFlexGridSizer* const rows = AddFields();
    txtMixedFromServer = AddTextRow(*rows, 26, "From Print Server:", "txtMixedFromServer");
    txtMixedFromPrinter = AddTextRow(*rows, 27, "From Printer:", "txtMixedFromPrinter");
    txtMixedToServer = AddTextRow(*rows, 28, "To Print Server:", "txtMixedToServer");
    txtMixedToPrinter = AddTextRow(*rows, 29, "To Printer:", "txtMixedToPrinter");
    wxBoxSizer* const buttons = AddButtonRow();
    cmdMixedNew = AddButton(*buttons, "cmdMixedNew", "N&ew");
    cmdMixedSave = AddButton(*buttons, "cmdMixedSave", "&Save");
    cmdMixedDelete = AddButton(*buttons, "cmdMixedDelete", "&Delete");

    editor_ = std::make_unique<ListEditor>(
        *lstMixedPrintersAndServers,
        std::vector{txtMixedFromServer, txtMixedFromPrinter, txtMixedToServer, txtMixedToPrinter},
        m_bolNewMixedPair,
        PairTexts("Both a From and To Server and Printer name is required. "
                  "Please enter both server and printer names.",
                  "Are you sure that you want to delete the selected Server and Printer pair?"));
    editor_->format = FormatMixed;
    editor_->split = SplitMixed;
    BindListClick(*lstMixedPrintersAndServers, [this] { lstMixedPrintersAndServers_Click(); });
    OnClick(cmdMixedNew, [this] { cmdMixedNew_Click(); });
    OnClick(cmdMixedSave, [this] { cmdMixedSave_Click(); });
    OnClick(cmdMixedDelete, [this] { cmdMixedDelete_Click(); });
    OnChange(txtMixedFromServer, [this] { txtMixedFromServer_Change(); });
    OnChange(txtMixedFromPrinter, [this] { txtMixedFromPrinter_Change(); });
    OnChange(txtMixedToServer, [this] { txtMixedToServer_Change(); });
    OnChange(txtMixedToPrinter, [this] { txtMixedToPrinter_Change(); });
    Completed();
}

void MixedPage::cmdMixedNew_Click() {
    editor_->New();
}

void MixedPage::cmdMixedSave_Click() {
    editor_->Save();
}

void MixedPage::cmdMixedDelete_Click() {
    editor_->Delete();
}

void MixedPage::lstMixedPrintersAndServers_Click() {
    editor_->Click();
}

void MixedPage::txtMixedFromServer_Change() {
    MarkChanged();
}

void MixedPage::txtMixedFromPrinter_Change() {
    MarkChanged();
}

void MixedPage::txtMixedToServer_Change() {
    MarkChanged();
}

void MixedPage::txtMixedToPrinter_Change() {
    MarkChanged();
}

} // namespace editors
