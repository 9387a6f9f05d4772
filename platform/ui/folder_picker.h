// The system's folder pickers.
#pragma once

#include <string>

class wxWindow;

namespace platform::ui {

/// A folder of the file system; "" when cancelled.
std::string PickFolder(wxWindow* owner);

/// A computer (`\\NAME`), share or folder of the network; "" when cancelled. `newDialogStyle`
/// chooses the system's resizable dialog, `noNewFolderButton` leaves its New Folder button out.
///
/// On Linux, for now, the folders of this computer and what is mounted on it; the network is not
/// browsed.
std::string PickNetworkFolder(wxWindow* owner, bool newDialogStyle, bool noNewFolderButton);

} // namespace platform::ui
