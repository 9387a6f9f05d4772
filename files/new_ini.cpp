#include "files/new_ini.h"

#include "files/ini_file.h"
#include "platform/program.h"
#include "platform/ui/list_enter.h"
#include "platform/ui/notebook_tab.h"
#include "platform/ui/text.h"
#include "platform/volumes.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>

#include <algorithm>

using platform::ui::ToWx;

namespace {

constexpr int kIndent = 3; ///< blanks a level of the folder list

// The help book's topics.
constexpr int kNoContext = -1;
constexpr int kNewDocumentTopic = 1036;
constexpr int kRecentTopic = 1042;
constexpr int kExistingTopic = 1081;

} // namespace

void frmNewINI::Form_Load() {
    SetTabAvailable(kNewTab, true);
    SetTabAvailable(kExistingTab, true);
    SetTabAvailable(kRecentTab, false);
    ShowTab(kNewTab);
    FillVolumes();
    OpenFolder(platform::StartFolder());
    optUseActiveDirectory->SetFocus();
}

void frmNewINI::BindEvents() {
    cmdSelect->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdSelect_Click(); });
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdCancel_Click(); });
    cmdHelp->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdHelp_Click(); });
    drvExistingINI->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { drvExistingINI_Change(); });
    dirExistingINI->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { OpenSelectedFolder(); });
    filExistingINI->Bind(wxEVT_LISTBOX_DCLICK,
                         [this](wxCommandEvent&) { filExistingINI_DblClick(); });
    platform::ui::OnListEnter(*dirExistingINI, [this] { OpenSelectedFolder(); });
    platform::ui::OnListEnter(*filExistingINI, [this] { filExistingINI_DblClick(); });
    sstNewINI->Bind(wxEVT_NOTEBOOK_PAGE_CHANGING, &frmNewINI::OnTabChanging, this);
    sstNewINI->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, &frmNewINI::OnTabChanged, this);
    Bind(wxEVT_CHAR_HOOK, &frmNewINI::OnKey, this);
}

void frmNewINI::SetTabAvailable(int tab, bool available) {
    const auto index = static_cast<std::size_t>(tab);
    available_.at(index) = available;
    sstNewINI->GetPage(index)->Enable(available);
    platform::ui::ShowTabAvailable(*sstNewINI, index, available);
}

int frmNewINI::CurrentTab() const {
    return sstNewINI->GetSelection();
}

void frmNewINI::ShowTab(int tab) {
    sstNewINI->ChangeSelection(static_cast<std::size_t>(tab));
}

bool frmNewINI::IsTabAvailable(int tab) const {
    return tab == wxNOT_FOUND || available_.at(static_cast<std::size_t>(tab));
}

// Windows asks before it says which tab it is about: the mouse tells, and after a key nobody does.
int frmNewINI::ComingTab(const wxBookCtrlEvent& event) const {
    if (event.GetSelection() != event.GetOldSelection()) {
        return event.GetSelection();
    }
    return wxGetMouseState().LeftIsDown()
               ? sstNewINI->HitTest(sstNewINI->ScreenToClient(wxGetMousePosition()))
               : wxNOT_FOUND;
}

void frmNewINI::OnTabChanging(wxBookCtrlEvent& event) {
    if (IsTabAvailable(ComingTab(event))) {
        event.Skip();
    } else {
        event.Veto();
    }
}

// A change that could not be refused beforehand is taken back.
void frmNewINI::OnTabChanged(wxBookCtrlEvent& event) {
    if (!IsTabAvailable(event.GetSelection())) {
        ShowTab(event.GetOldSelection());
    }
    event.Skip();
}

void frmNewINI::FillVolumes() {
    drvExistingINI->Clear();
    volumePaths_.clear();
    const std::vector<std::string> chain = platform::FolderChain(platform::StartFolder());
    std::size_t best = 0;
    for (const platform::Volume& volume : platform::Volumes()) {
        const int row = drvExistingINI->Append(ToWx(volume.label));
        volumePaths_.push_back(platform::VolumePath(volume));
        const auto place = std::ranges::find_if(chain, [&](const std::string& folder) {
            return ToWx(folder).IsSameAs(ToWx(volumePaths_.back()), false);
        });
        const auto depth = static_cast<std::size_t>(place - chain.begin());
        // The deepest volume that holds the folder is the one it lies on.
        if (place != chain.end() && depth >= best) {
            best = depth;
            drvExistingINI->SetSelection(row);
        }
    }
}

void frmNewINI::drvExistingINI_Change() {
    const int row = drvExistingINI->GetSelection();
    if (row != wxNOT_FOUND) {
        OpenFolder(volumePaths_.at(static_cast<std::size_t>(row)));
    }
}

// The way from the root to the folder, one level deeper each, then the folders in it.
void frmNewINI::OpenFolder(const std::string& path) {
    folderListPath_ = path;
    folderPaths_ = platform::FolderChain(path);
    const auto depth = folderPaths_.size();
    wxArrayString rows;
    const auto add = [&rows](std::size_t level, const std::string& name) {
        rows.Add(wxString(' ', level * kIndent) + ToWx(name));
    };
    for (std::size_t level = 0; level < depth; ++level) {
        add(level, platform::LastName(folderPaths_[level]));
    }
    for (const std::string& name : platform::FoldersIn(path)) {
        add(depth, name);
        folderPaths_.push_back(platform::JoinPath(path, name));
    }
    dirExistingINI->Set(rows);
    dirExistingINI->SetSelection(static_cast<int>(depth) - 1);
    dirExistingINI_Change();
}

void frmNewINI::OpenSelectedFolder() {
    const int row = dirExistingINI->GetSelection();
    if (row != wxNOT_FOUND) {
        // A copy: opening the folder replaces the list that the path is in.
        const std::string path = folderPaths_.at(static_cast<std::size_t>(row));
        OpenFolder(path);
    }
}

void frmNewINI::dirExistingINI_Change() {
    fileListPath_ = folderListPath_;
    fileNames_ = platform::FilesIn(fileListPath_, ".ini");
    wxArrayString rows;
    for (const std::string& name : fileNames_) {
        rows.Add(ToWx(name));
    }
    filExistingINI->Set(rows);
}

std::string frmNewINI::ExistingFolder() const {
    return fileListPath_;
}

std::string frmNewINI::ExistingFileName() const {
    // Not the row's text: a name may hold what cannot be shown.
    const int row = filExistingINI->GetSelection();
    return row == wxNOT_FOUND ? std::string() : fileNames_.at(static_cast<std::size_t>(row));
}

void frmNewINI::End(int id) {
    if (IsModal()) {
        EndModal(id);
    } else {
        Hide();
    }
}

void frmNewINI::cmdSelect_Click() {
    g_bolCancelPressed = false;
    End(wxID_OK);
}

void frmNewINI::cmdCancel_Click() {
    g_bolCancelPressed = true;
    End(wxID_CANCEL);
}

void frmNewINI::filExistingINI_DblClick() {
    cmdSelect_Click();
}

void frmNewINI::cmdHelp_Click() {
    int context = kNoContext;
    switch (CurrentTab()) {
    case kNewTab:
        context = available_[kExistingTab] ? kExistingTopic : kNewDocumentTopic;
        break;
    case kExistingTab:
        context = kExistingTopic;
        break;
    case kRecentTab:
        context = kRecentTopic;
        break;
    default:
        break;
    }
    if (modINIFile::Window* const window = modINIFile::CurrentWindow()) {
        window->ShowHelpContext(context);
    }
}

void frmNewINI::OnKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const bool enter = key == WXK_RETURN || key == WXK_NUMPAD_ENTER;
    bool handled = false;
    if (key == WXK_F1) {
        cmdHelp_Click();
        handled = true;
    } else if (event.GetModifiers() == wxMOD_ALT) {
        handled = HandleAccessKey(key);
    } else if (enter && !event.HasAnyModifiers()) {
        handled = HandleEnter(event.GetEventObject());
    }
    event.Skip(!handled);
}

// The keys of what lies outside the tabs' pages: on Windows a page with the focus keeps the search
// for access keys to itself.
bool frmNewINI::HandleAccessKey(int key) {
    switch (key) {
    case 'S':
        cmdSelect_Click();
        return true;
    case 'C':
        cmdCancel_Click();
        return true;
    case 'H':
        cmdHelp_Click();
        return true;
    case 'R':
        if (IsTabAvailable(kRecentTab)) {
            ShowTab(kRecentTab);
        }
        return true;
    default:
        return false;
    }
}

// Enter works the default button from wherever the system does not; a button or a drop-down list
// that has the focus keeps it for itself.
bool frmNewINI::HandleEnter(const wxObject* focus) {
    if (focus == drvExistingINI || dynamic_cast<const wxButton*>(focus) != nullptr) {
        return false;
    }
    cmdSelect_Click();
    return true;
}
