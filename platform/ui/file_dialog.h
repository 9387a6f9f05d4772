// The system's file dialogs.
#pragma once

#include <string>

class wxWindow;

namespace platform::ui {

struct FileDialogRequest {
    std::string title;
    std::string initialName;      ///< a name or a full path; "" for none
    std::string filter;           ///< "Description (*.ext)|*.ext"
    std::string defaultExtension; ///< without the point
};

/// Full path of the file to save to, or "" when cancelled. The extension is added before the user
/// is asked about replacing a file of that name.
std::string AskSaveFile(wxWindow* owner, const FileDialogRequest& request);

/// Full path of an existing file that is not write-protected, or "" when cancelled.
std::string AskOpenFile(wxWindow* owner, const FileDialogRequest& request);

} // namespace platform::ui
