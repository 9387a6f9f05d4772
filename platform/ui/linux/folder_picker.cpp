#include "platform/ui/folder_picker.h"

#include "platform/ui/text.h"
#include "platform/volumes.h"

#include <wx/dirdlg.h>

namespace platform::ui {

namespace {

// A picker that was answered before it was shown knows no path but the one it was given.
class Picker : public wxDirDialog {
public:
    using wxDirDialog::wxDirDialog;

    void SetPath(const wxString& path) override {
        wxDirDialog::SetPath(path);
        m_path = path;
    }
};

std::string Pick(wxWindow* owner, const wxString& title, long style) {
    // Without a folder to begin with the chooser opens on its recent files, where there is nothing
    // to pick.
    Picker picker(owner, title, ToWx(StartFolder()), style);
    return picker.ShowModal() == wxID_OK ? FromWx(picker.GetPath()) : std::string();
}

} // namespace

std::string PickFolder(wxWindow* owner) {
    return Pick(owner, "Please select a folder.", wxDD_DEFAULT_STYLE);
}

std::string PickNetworkFolder(wxWindow* owner, bool /*newDialogStyle*/, bool noNewFolderButton) {
    return Pick(owner, "Select a network computer or share.",
                noNewFolderButton ? wxDD_DEFAULT_STYLE | wxDD_DIR_MUST_EXIST : wxDD_DEFAULT_STYLE);
}

} // namespace platform::ui
