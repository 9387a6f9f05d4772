// The document's file commands: start an untitled document, New, Open, Save, Save As.
#pragma once

#include "files/new_ini.h"

#include <string>

class wxWindow;

namespace modINIFile {

/// What the file commands ask of the window that shows the document. Not owned.
class Window {
public:
    virtual ~Window() = default;
    virtual void SaveFormToDocument() = 0;
    virtual void LoadDocumentToForm() = 0;
    virtual void InitializeTreeView() = 0;
    virtual wxWindow* Owner() = 0;
    /// Shows the help topic of this context number; -1 leaves the number as it was.
    virtual void ShowHelpContext(int context) = 0;
};

/// The window must be set before any command runs.
void SetWindow(Window* window);
Window* CurrentWindow();

/// The common dialog's last answer; it keeps the last name for the next Open.
struct CommonDialog {
    std::string FileName;  ///< full path
    std::string FileTitle; ///< name with extension; "" after a cancelled dialog
};
inline CommonDialog g_CommonDialog;

void StartUntitledDocument();
void NewINIFile();
void OpenINIFile();
void SaveINIFile();
void SaveINIFileAs();

/// Reads g_strINIFilePath into the record. A damaged list shows the read-failure box and starts an
/// untitled document instead, so that half a document never meets the previous one's values under
/// this file's name; the result is then false.
bool ReadDocumentOrStartUntitled();

} // namespace modINIFile
