// A field that holds a folder: its picker, and the check that runs when the user leaves it.
#pragma once

#include <wx/textctrl.h>

#include <functional>
#include <string>

namespace editors {

/// What the pages need of the modules that know folders; filled by the main window.
struct FolderServices {
    std::function<std::string(wxWindow* owner)> browse; ///< "" when cancelled
    std::function<bool(const std::string& path)> exists;
};

/// Puts a picked folder into the field as if it had been typed; a cancelled picker changes nothing.
void BrowseInto(wxTextCtrl& field, const FolderServices& folders);

/// Warns with `warning` when the folder does not exist, and drops one trailing "\". The main window
/// shows the hourglass and takes no input meanwhile.
void CheckFolder(wxTextCtrl& field, const FolderServices& folders, const std::string& warning);

} // namespace editors
