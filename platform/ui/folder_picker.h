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
/// On Linux there is one dialog, resizable and without that button, in which the user types the
/// computer's name.
std::string PickNetworkFolder(wxWindow* owner, bool newDialogStyle, bool noNewFolderButton);

} // namespace platform::ui
