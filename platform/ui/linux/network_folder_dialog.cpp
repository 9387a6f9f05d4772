#include "platform/ui/linux/network_folder_dialog.h"

#include "platform/ui/control_name.h"
#include "platform/ui/line_room.h"
#include "platform/ui/pump.h"
#include "platform/ui/text.h"

#include <utility>

#include <gtk/gtk.h>
#include <wx/artprov.h>
#include <wx/sizer.h>

namespace platform::ui {

namespace {

constexpr const char* kHint = "Type the name of a computer and choose Show.";
constexpr const char* kWaiting = "Waiting for an answer ...";

/// The computer shown last, to begin with the next time.
wxString g_computer; // NOLINT(cert-err58-cpp): the toolkit's strings need nothing set up

// A computer or a folder that is opened again must keep its order: the toolkit's store sorts.
class InOrderStore : public wxDataViewTreeStore {
public:
    [[nodiscard]] bool HasDefaultCompare() const override { return false; }
};

wxBitmapBundle Art(const wxArtID& id) {
    return wxArtProvider::GetBitmapBundle(id, wxART_LIST);
}

std::optional<NetworkPath> ComputerIn(std::string text) {
    if (!IsNetworkPath(text)) {
        text.insert(0, "\\\\");
    }
    const auto path = ParseNetworkPath(text);
    return path ? std::optional(NetworkPath{path->server, {}, {}}) : std::nullopt;
}

std::string Child(const NetworkPath& path, const std::string& name) {
    return TextOf(path) + '\\' + name;
}

/// Tells the native view that there is something inside a row that had nothing. It reads all of it
/// in one go; told of each new row in turn, it takes seconds for some thousand.
void TellOfContent(wxDataViewTreeCtrl& tree, const wxDataViewItem& item) {
    GtkTreePath* const path = gtk_tree_path_new();
    const wxDataViewTreeStore& store = *tree.GetStore();
    for (wxDataViewItem row = item; row.IsOk(); row = store.GetParent(row)) {
        wxDataViewItemArray siblings;
        store.GetChildren(store.GetParent(row), siblings);
        gtk_tree_path_prepend_index(path, siblings.Index(row));
    }
    auto* const view = GTK_TREE_VIEW(gtk_bin_get_child(GTK_BIN(tree.GetHandle())));
    GtkTreeModel* const model = gtk_tree_view_get_model(view);
    GtkTreeIter iterator;
    if (gtk_tree_model_get_iter(model, &iterator, path) != FALSE) {
        gtk_tree_model_row_has_child_toggled(model, path, &iterator);
    }
    gtk_tree_path_free(path);
}

} // namespace

NetworkFolderDialog::NetworkFolderDialog(wxWindow* owner, NetworkLister lister)
    : wxDialog(owner, wxID_ANY, "Select a network computer or share.", wxDefaultPosition,
               wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      lister_(std::move(lister)), computerImage_(Art("network-server")),
      folderImage_(Art(wxART_FOLDER)) {
    NameControl(*this, "dlgNetworkFolder");
    auto* const frame = new wxBoxSizer(wxVERTICAL);
    const int gap = FromDIP(6);
    frame->Add(ComputerRow(), wxSizerFlags().Expand().Border(wxALL, 2 * gap));

    tvwNetwork = new wxDataViewTreeCtrl(this, wxID_ANY, wxDefaultPosition,
                                        FromDIP(wxSize(420, 280)), wxDV_NO_HEADER | wxDV_SINGLE);
    const wxObjectDataPtr<InOrderStore> store(new InOrderStore);
    tvwNetwork->AssociateModel(store.get());
    NameControl(*tvwNetwork, "tvwNetwork", "Computer, shares and folders");
    frame->Add(tvwNetwork, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, 2 * gap));

    lblStatus = new wxStaticText(this, wxID_ANY, kHint, wxDefaultPosition, wxDefaultSize,
                                 wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    NameControl(*lblStatus, "lblStatus");
    frame->Add(lblStatus, wxSizerFlags().Expand().Border(wxALL, 2 * gap));

    auto* const buttons = new wxStdDialogButtonSizer;
    cmdOK = new wxButton(this, wxID_OK);
    NameControl(*cmdOK, "cmdOK");
    auto* const cmdCancel = new wxButton(this, wxID_CANCEL);
    NameControl(*cmdCancel, "cmdCancel");
    buttons->AddButton(cmdOK);
    buttons->AddButton(cmdCancel);
    buttons->Realize();
    // The row brings its own margins at the left and the right.
    frame->Add(buttons, wxSizerFlags().Expand().Border(wxBOTTOM, 2 * gap));
    SetSizerAndFit(frame);
    SetMinSize(GetSize());
    CentreOnParent();

    cmdOK->Disable();
    tvwNetwork->Bind(wxEVT_DATAVIEW_ITEM_EXPANDING, &NetworkFolderDialog::OnExpanding, this);
    tvwNetwork->Bind(wxEVT_DATAVIEW_ITEM_START_EDITING,
                     [](wxDataViewEvent& event) { event.Veto(); });
    tvwNetwork->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent& event) {
        if (tvwNetwork->IsExpanded(event.GetItem())) {
            tvwNetwork->Collapse(event.GetItem());
        } else {
            tvwNetwork->Expand(event.GetItem());
        }
    });
    tvwNetwork->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED,
                     [this](wxDataViewEvent&) { cmdOK->Enable(!Picked().empty()); });
    Bind(wxEVT_BUTTON, [this](wxCommandEvent& event) {
        abandoned_ = event.GetId() == wxID_CANCEL || event.GetId() == wxID_OK;
        event.Skip();
    });
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
        abandoned_ = true;
        event.Skip();
    });
}

wxSizer* NetworkFolderDialog::ComputerRow() {
    auto* const label = new wxStaticText(this, wxID_ANY, "Com&puter:");
    NameControl(*label, "lblComputer");
    txtComputer = new wxTextCtrl(this, wxID_ANY, g_computer, wxDefaultPosition, wxDefaultSize,
                                 wxTE_PROCESS_ENTER);
    RoomForLine(*txtComputer);
    NameControl(*txtComputer, "txtComputer", "Computer:");
    cmdShow = new wxButton(this, wxID_ANY, "&Show");
    NameControl(*cmdShow, "cmdShow");
    cmdShow->Enable(!g_computer.empty());
    txtComputer->Bind(wxEVT_TEXT, [this](wxCommandEvent&) {
        cmdShow->Enable(!busy_ && !txtComputer->IsEmpty());
    });
    txtComputer->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { ShowComputer(); });
    cmdShow->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ShowComputer(); });
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(label, wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(6)));
    row->Add(txtComputer, wxSizerFlags(1).CentreVertical());
    row->Add(cmdShow, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(6)));
    return row;
}

std::string NetworkFolderDialog::Picked() const {
    const auto found = nodes_.find(tvwNetwork->GetSelection().GetID());
    return found == nodes_.end() ? std::string() : TextOf(found->second.path);
}

void NetworkFolderDialog::ShowComputer() {
    const auto computer = ComputerIn(FromWx(txtComputer->GetValue().Trim().Trim(false)));
    if (busy_ || !computer) {
        return;
    }
    g_computer = ToWx(computer->server);
    tvwNetwork->DeleteAllItems();
    nodes_.clear();
    cmdOK->Disable();
    const wxDataViewItem item = Add({}, *computer, computer->server);
    tvwNetwork->GetStore()->ItemAdded({}, item);
    TellOfContent(*tvwNetwork, item);
    tvwNetwork->Select(item);
    cmdOK->Enable();
    Open(item);
}

wxDataViewItem NetworkFolderDialog::Add(const wxDataViewItem& parent, const NetworkPath& path,
                                        const std::string& text) {
    wxDataViewTreeStore& store = *tvwNetwork->GetStore();
    const wxBitmapBundle& image = path.share.empty() ? computerImage_ : folderImage_;
    const wxDataViewItem item = store.AppendContainer(parent, ToWx(text), image, image);
    // Whether there is anything inside is known only once somebody has asked.
    store.AppendItem(item, "...");
    nodes_[item.GetID()] = {path};
    return item;
}

void NetworkFolderDialog::OnExpanding(wxDataViewEvent& event) {
    const wxDataViewItem item = event.GetItem();
    const auto found = nodes_.find(item.GetID());
    if (found == nodes_.end() || found->second.opened) {
        return;
    }
    event.Veto();
    // Not here: the native tree is in the middle of the expansion.
    if (!busy_) {
        CallAfter([this, item] { Open(item); });
    }
}

void NetworkFolderDialog::Open(const wxDataViewItem& item) {
    const auto found = nodes_.find(item.GetID());
    if (busy_ || found == nodes_.end()) {
        return;
    }
    // What is disabled loses the focus.
    const bool fromTree = tvwNetwork->HasFocus();
    SetBusy(true);
    const NetworkPath path = found->second.path;
    const NetworkListing listing = lister_(path, [this] {
        PumpEvents();
        return !abandoned_;
    });
    SetBusy(false);
    if (abandoned_) {
        return;
    }
    Fill(item, listing);
    if (fromTree) {
        tvwNetwork->SetFocus();
    }
}

void NetworkFolderDialog::Fill(const wxDataViewItem& item, const NetworkListing& listing) {
    Node& node = nodes_[item.GetID()];
    if (listing.error) {
        lblStatus->SetLabel(ToWx(TextOf(node.path) + ": " + listing.error.description));
        return;
    }
    node.opened = true;
    const NetworkPath path = node.path;
    tvwNetwork->DeleteChildren(item);
    for (const auto& name : listing.names) {
        if (const auto child = ParseNetworkPath(Child(path, name))) {
            Add(item, *child, name);
        }
    }
    TellOfContent(*tvwNetwork, item);
    tvwNetwork->Expand(item);
    lblStatus->SetLabel(listing.names.empty() ? "There is nothing to open here." : "");
}

void NetworkFolderDialog::SetBusy(bool busy) {
    busy_ = busy;
    cmdShow->Enable(!busy && !txtComputer->IsEmpty());
    tvwNetwork->Enable(!busy);
    lblStatus->SetLabel(busy ? kWaiting : "");
    if (busy) {
        SetCursor(wxCursor(wxCURSOR_ARROWWAIT));
    } else {
        SetCursor(wxNullCursor);
    }
}

} // namespace platform::ui
