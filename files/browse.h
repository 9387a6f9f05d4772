// Folder pickers and the folder test.
#pragma once

#include <string>

class wxWindow;

namespace modBrowseForFolder {

/// Lets the user pick a folder; its path, or "" when cancelled.
std::string BrowseForFolder(wxWindow* owner);

/// True when the folder exists; `path` is a typed text (see platform/typed_folder.h).
bool FolderExists(const std::string& path);

} // namespace modBrowseForFolder

namespace modBrowseForNetworkFolder {

/// Lets the user pick a network computer, share or folder: the folder's path, `\\NAME` for a
/// computer, "" when cancelled.
std::string BrowseForNetworkFolder(wxWindow* owner);

} // namespace modBrowseForNetworkFolder
