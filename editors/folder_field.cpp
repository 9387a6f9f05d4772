#include "editors/folder_field.h"

#include "editors/busy_window.h"
#include "editors/controls.h"
#include "platform/message.h"

namespace editors {

void BrowseInto(wxTextCtrl& field, const FolderServices& folders) {
    const std::string folder = folders.browse(wxGetTopLevelParent(&field));
    if (!folder.empty()) {
        EnterText(field, folder);
    }
}

void CheckFolder(wxTextCtrl& field, const FolderServices& folders, const std::string& warning) {
    const BusyWindow busy(*wxGetTopLevelParent(&field));
    std::string text = TextOf(field);
    if (!folders.exists(text)) {
        platform::ShowMessage(
            {warning, "Folder not found.", platform::Buttons::Ok, platform::Icon::Exclamation});
    }
    if (text.ends_with('\\')) {
        text.pop_back();
        EnterText(field, text);
    }
}

} // namespace editors
