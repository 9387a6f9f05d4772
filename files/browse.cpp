#include "files/browse.h"

#include "platform/typed_folder.h"
#include "platform/ui/folder_picker.h"
#include "platform/ui/pump.h"

namespace modBrowseForFolder {

std::string BrowseForFolder(wxWindow* owner) {
    return platform::ui::PickFolder(owner);
}

bool FolderExists(const std::string& path) {
    return platform::TypedFolder(path, platform::ui::PumpPainting).Exists();
}

} // namespace modBrowseForFolder

namespace modBrowseForNetworkFolder {

std::string BrowseForNetworkFolder(wxWindow* owner) {
    return platform::ui::PickNetworkFolder(owner, true, false);
}

} // namespace modBrowseForNetworkFolder
