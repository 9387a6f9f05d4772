// Picks a computer of the network, one of its shares, or a folder in one.
#pragma once

#include "platform/linux/network_share.h"

#include <functional>
#include <map>
#include <string>

#include <wx/button.h>
#include <wx/dataview.h>
#include <wx/dialog.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace platform::ui {

/// The shares of a computer or the folders of anything below.
using NetworkLister = std::function<NetworkListing(const NetworkPath&, const KeepWaiting&)>;

/// The user types a computer's name; its shares and their folders are asked for when they are
/// opened. While an answer is awaited the dialog can be cancelled.
class NetworkFolderDialog : public wxDialog {
public:
    explicit NetworkFolderDialog(wxWindow* owner, NetworkLister lister = ListNetwork);

    /// What is picked, `\\computer\share\folder`; "" for nothing.
    [[nodiscard]] std::string Picked() const;

    wxTextCtrl* txtComputer = nullptr;
    wxButton* cmdShow = nullptr;
    wxDataViewTreeCtrl* tvwNetwork = nullptr;
    wxStaticText* lblStatus = nullptr;
    wxButton* cmdOK = nullptr;

private:
    wxSizer* ComputerRow();
    void ShowComputer();
    void Open(const wxDataViewItem& item);
    void OnExpanding(wxDataViewEvent& event);
    void Fill(const wxDataViewItem& item, const NetworkListing& listing);
    /// Into the store; the view has to be told.
    wxDataViewItem Add(const wxDataViewItem& parent, const NetworkPath& path,
                       const std::string& text);
    void SetBusy(bool busy);

    NetworkLister lister_;
    wxBitmapBundle computerImage_;
    wxBitmapBundle folderImage_;
    struct Node {
        NetworkPath path;
        bool opened = false;
    };
    std::map<void*, Node> nodes_;
    bool busy_ = false;
    bool abandoned_ = false;
};

} // namespace platform::ui
