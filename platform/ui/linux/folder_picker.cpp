#include "platform/ui/folder_picker.h"

#include "platform/ui/linux/network_folder_dialog.h"
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

} // namespace

std::string PickFolder(wxWindow* owner) {
    // Without a folder to begin with the chooser opens on its recent files, where there is nothing
    // to pick.
    Picker picker(owner, "Please select a folder.", ToWx(StartFolder()), wxDD_DEFAULT_STYLE);
    return picker.ShowModal() == wxID_OK ? FromWx(picker.GetPath()) : std::string();
}

std::string PickNetworkFolder(wxWindow* owner, bool /*newDialogStyle*/,
                              bool /*noNewFolderButton*/) {
    NetworkFolderDialog dialog(owner);
    return dialog.ShowModal() == wxID_OK ? dialog.Picked() : std::string();
}

} // namespace platform::ui
