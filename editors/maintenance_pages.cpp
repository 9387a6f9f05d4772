#include "editors/maintenance_pages.h"

#include "document/item_text.h"
#include "editors/queue_list.h"
#include "platform/ui/control_name.h"
#include "platform/ui/line_room.h"
#include "platform/ui/one_line.h"
#include "platform/ui/same_choice.h"

#include <array>

namespace editors {

using platform::ui::NameControl;

namespace {

// What a type does to the two boxes: a reserved text fills its box and closes it, null leaves the
// box to the user.
struct PruneType {
    const char* caption;
    const char* server;
    const char* printer;
};

constexpr std::array<PruneType, 5> kPruneTypes{{
    {"Local Printer Only", ".", nullptr},
    {"Networked Printer Only", "*", nullptr},
    {"Local and Networked Printer Only", ".*", nullptr},
    {"Server Only", nullptr, "*"},
    {"Printer and Server", nullptr, nullptr},
}};
constexpr int kServerOnly = 3;
constexpr int kPrinterAndServer = 4;

constexpr int kLocal = 0;
constexpr int kNetworked = 1;

int PruneTypeOf(const std::string& server, const std::string& printer) {
    if (printer == "*") {
        return kServerOnly;
    }
    for (int i = 0; i < kServerOnly; ++i) {
        if (server == kPruneTypes[static_cast<std::size_t>(i)].server) {
            return i;
        }
    }
    return kPrinterAndServer;
}

ListEditorTexts MaintenanceTexts(const char* required, const char* deleteQuestion) {
    return {{required, "Error, Input Required", platform::Buttons::Ok, platform::Icon::Exclamation},
            deleteQuestion};
}

std::string FormatName(const ListEditor::Pieces& pieces) {
    return modINIDocument::ItemText(modINIDocument::ServerPrinterName{pieces[0], pieces[1]});
}

ListEditor::Pieces SplitName(const std::string& item) {
    const modINIDocument::ServerPrinterName name = modINIDocument::ServerPrinterNameFromItem(item);
    return {name.ServerName, name.PrinterName};
}

// A box that a type fills by itself is closed and takes the window's colour.
void OpenBox(wxTextCtrl& box, bool open, const wxListBox& list) {
    EnableWithColour(box, open,
                     open ? list.GetBackgroundColour()
                          : wxGetTopLevelParent(&box)->GetBackgroundColour());
}

void ApplyReserved(wxTextCtrl& box, const char* reserved, const wxListBox& list) {
    if (reserved != nullptr) {
        PutText(box, reserved);
    }
    OpenBox(box, reserved == nullptr, list);
}

wxChoice* MakeChoice(wxWindow* parent, const wxString& name, const wxString& label) {
    auto* const choice = new wxChoice(parent, wxID_ANY);
    platform::ui::RoomForLine(*choice);
    NameControl(*choice, name, label);
    // The type chosen once more puts its reserved text back into an emptied box.
    platform::ui::TellEveryChoice(*choice);
    return choice;
}

// The picker of a published queue: drop-down, Select and Refresh in one row, a progress bar below.
struct Picker {
    wxOwnerDrawnComboBox* combo;
    wxButton* select;
    wxButton* refresh;
    wxGauge* progress;
};

Picker MakePicker(wxWindow* parent, wxSizer& body, const std::array<const char*, 4>& names,
                  int gap) {
    Picker picker{};
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    picker.combo = new QueueList(parent);
    platform::ui::TakeOneLine(*picker.combo);
    NameControl(*picker.combo, names[0], "Active Directory Printers:");
    picker.select = new wxButton(parent, wxID_ANY, "Se&lect");
    NameControl(*picker.select, names[1]);
    picker.refresh = new wxButton(parent, wxID_ANY, "Re&fresh");
    NameControl(*picker.refresh, names[2]);
    row->Add(picker.combo, wxSizerFlags(1).CentreVertical());
    row->Add(picker.select, wxSizerFlags().CentreVertical().Border(wxLEFT, gap));
    row->Add(picker.refresh, wxSizerFlags().CentreVertical().Border(wxLEFT, gap));
    body.Add(row, wxSizerFlags().Expand().Border(wxBOTTOM, gap));
    picker.progress =
        new wxGauge(parent, wxID_ANY, 50, wxDefaultPosition, parent->FromDIP(wxSize(-1, 12)));
    NameControl(*picker.progress, names[3], "Active Directory query");
    picker.progress->Hide();
    body.Add(picker.progress,
             wxSizerFlags().Expand().ReserveSpaceEvenIfHidden().Border(wxBOTTOM, gap));
    return picker;
}

} // namespace

PopulatePage::PopulatePage(wxWindow* parent, int position)
    : Page(parent, position, "Maintenance - Populate") {
    lstPopulate = AddListBox("lstPopulate", "Printers to add");
    wxFlexGridSizer* const rows = AddFields();
    cboPopulateType = MakeChoice(this, "cboPopulateType", "Printer Type:");
    cboPopulateType->Append("Local");
    cboPopulateType->Append("Networked");
    AddRow(*rows, 40, "Printer Type:", cboPopulateType);
    txtPopulateServerName = AddTextRow(*rows, 41, "Server Name:", "txtPopulateServerName");
    txtPopulatePrinterName = AddTextRow(*rows, 42, "Printer Name:", "txtPopulatePrinterName");
    wxBoxSizer* const buttons = AddButtonRow();
    cmdPopulateNew = AddButton(*buttons, "cmdPopulateNew", "N&ew");
    cmdPopulateSave = AddButton(*buttons, "cmdPopulateSave", "&Save");
    cmdPopulateDelete = AddButton(*buttons, "cmdPopulateDelete", "&Delete");
    AddLabel(43, "Active Directory Printers:");
    const Picker picker = MakePicker(
        this, Body(),
        {"cboAdPopulate", "cmdAdPopulateSelect", "cmdAdPopulateRefresh", "prbAdPopulateProgress"},
        FromDIP(kGap));
    cboAdPopulate = picker.combo;
    cmdAdPopulateSelect = picker.select;
    cmdAdPopulateRefresh = picker.refresh;
    prbAdPopulateProgress = picker.progress;

    editor_ = std::make_unique<ListEditor>(
        *lstPopulate, std::vector{txtPopulateServerName, txtPopulatePrinterName}, m_bolNewPopulate,
        MaintenanceTexts(
            "Please enter either a printer name and a server name. Boht are is required.",
            "Are you sure that you want to delete the selected Printer and Server pair?"));
    editor_->format = FormatName;
    editor_->split = SplitName;
    BindListClick(*lstPopulate, [this] { lstPopulate_Click(); });
    OnClick(cboPopulateType, [this] { cboPopulateType_Click(); });
    OnClick(cmdPopulateNew, [this] { cmdPopulateNew_Click(); });
    OnClick(cmdPopulateSave, [this] { cmdPopulateSave_Click(); });
    OnClick(cmdPopulateDelete, [this] { cmdPopulateDelete_Click(); });
    OnChange(txtPopulateServerName, [this] { txtPopulateServerName_Change(); });
    OnChange(txtPopulatePrinterName, [this] { txtPopulatePrinterName_Change(); });
    Completed();
}

void PopulatePage::cboPopulateType_Click() {
    const bool local = cboPopulateType->GetSelection() == kLocal;
    PutText(*txtPopulateServerName, local ? "." : "");
    OpenBox(*txtPopulateServerName, !local, *lstPopulate);
}

void PopulatePage::cmdPopulateNew_Click() {
    editor_->New();
    if (cboPopulateType->GetSelection() == kLocal) {
        PutText(*txtPopulateServerName, ".");
    }
}

void PopulatePage::cmdPopulateSave_Click() {
    editor_->Save();
}

void PopulatePage::cmdPopulateDelete_Click() {
    editor_->Delete();
}

void PopulatePage::lstPopulate_Click() {
    ListEditor::Pieces pieces;
    if (!editor_->SelectedPieces(pieces)) {
        return;
    }
    const bool local = pieces[0] == ".";
    ChooseItem(*cboPopulateType, local ? kLocal : kNetworked);
    OpenBox(*txtPopulateServerName, !local, *lstPopulate);
    editor_->PutBoxes(pieces);
    m_bolNewPopulate = false;
}

void PopulatePage::txtPopulateServerName_Change() {
    MarkChanged();
}

void PopulatePage::txtPopulatePrinterName_Change() {
    MarkChanged();
}

PrunePage::PrunePage(wxWindow* parent, int position)
    : Page(parent, position, "Maintenance - Prune") {
    lstManualPrune = AddListBox("lstManualPrune", "Printers to remove");
    wxFlexGridSizer* const rows = AddFields();
    cboPruneType = MakeChoice(this, "cboPruneType", "Prune Type:");
    for (const PruneType& type : kPruneTypes) {
        cboPruneType->Append(type.caption);
    }
    AddRow(*rows, 44, "Prune Type:", cboPruneType);
    txtPruneServerName = AddTextRow(*rows, 45, "Server Name:", "txtPruneServerName");
    txtPrunePrinterName = AddTextRow(*rows, 46, "Printer Name:", "txtPrunePrinterName");
    wxBoxSizer* const buttons = AddButtonRow();
    cmdPruneNew = AddButton(*buttons, "cmdPruneNew", "N&ew");
    cmdPruneSave = AddButton(*buttons, "cmdPruneSave", "&Save");
    cmdPruneDelete = AddButton(*buttons, "cmdPruneDelete", "&Delete");
    chkDeleteNonNetworked =
        AddCheckBox("chkDeleteNonNetworked", "Delete all local (non-networked) printers");
    AddLabel(47, "Active Directory Printers:");
    const Picker picker = MakePicker(
        this, Body(), {"cboADPrune", "cmdPruneADSelect", "cmdAdPruneRefresh", "prbADPrune"},
        FromDIP(kGap));
    cboADPrune = picker.combo;
    cmdPruneADSelect = picker.select;
    cmdAdPruneRefresh = picker.refresh;
    prbADPrune = picker.progress;
    chkADPruneAll = AddCheckBox("chkADPruneAll", "&Delete all orphaned Active Directory printers.");

    editor_ = std::make_unique<ListEditor>(
        *lstManualPrune, std::vector{txtPruneServerName, txtPrunePrinterName}, m_bolNewPrune,
        MaintenanceTexts(
            "Please enter either a printer name or a server name. Either one is required.",
            "Are you sure that you want to delete the selected Printer and/or Server pair?"));
    editor_->format = FormatName;
    editor_->split = SplitName;
    editor_->emptied = [this] { ChooseItem(*cboPruneType, kPrinterAndServer); };
    BindListClick(*lstManualPrune, [this] { lstManualPrune_Click(); });
    OnClick(cboPruneType, [this] { cboPruneType_Click(); });
    OnClick(cmdPruneNew, [this] { cmdPruneNew_Click(); });
    OnClick(cmdPruneSave, [this] { cmdPruneSave_Click(); });
    OnClick(cmdPruneDelete, [this] { cmdPruneDelete_Click(); });
    OnClick(chkDeleteNonNetworked, [this] { chkDeleteNonNetworked_Click(); });
    OnClick(chkADPruneAll, [this] { chkADPruneAll_Click(); });
    Completed();
}

void PrunePage::cboPruneType_Click() {
    const int index = cboPruneType->GetSelection();
    if (index == wxNOT_FOUND) {
        return;
    }
    const PruneType& type = kPruneTypes.at(static_cast<std::size_t>(index));
    ApplyReserved(*txtPruneServerName, type.server, *lstManualPrune);
    ApplyReserved(*txtPrunePrinterName, type.printer, *lstManualPrune);
}

void PrunePage::cmdPruneNew_Click() {
    editor_->New();
    ChooseItem(*cboPruneType, kPrinterAndServer);
}

void PrunePage::cmdPruneSave_Click() {
    editor_->Save();
}

void PrunePage::cmdPruneDelete_Click() {
    editor_->Delete();
}

void PrunePage::lstManualPrune_Click() {
    ListEditor::Pieces pieces;
    if (!editor_->SelectedPieces(pieces)) {
        return;
    }
    editor_->PutBoxes(pieces);
    ChooseItem(*cboPruneType, PruneTypeOf(pieces[0], pieces[1]));
    // The same type as before runs nothing, and yet its reserved form belongs into its box.
    cboPruneType_Click();
    m_bolNewPrune = false;
}

void PrunePage::chkDeleteNonNetworked_Click() {
    MarkChanged();
}

void PrunePage::chkADPruneAll_Click() {
    MarkChanged();
}

} // namespace editors
