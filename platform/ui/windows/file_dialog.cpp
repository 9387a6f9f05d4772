#include "platform/ui/native_file_dialog.h"

#include "platform/ui/text.h"

#include <wx/filedlg.h>
#include <wx/filename.h>

namespace platform::ui {

namespace {

// The system's dialog takes the default extension from the filter and remembers the last folder.
std::string Show(wxWindow* owner, const FileDialogRequest& request, long style) {
    const wxFileName initial(ToWx(request.initialName));
    wxFileDialog dialog(owner, ToWx(request.title), initial.GetPath(), initial.GetFullName(),
                        ToWx(request.filter), style);
    return dialog.ShowModal() == wxID_OK ? FromWx(dialog.GetPath()) : std::string();
}

} // namespace

std::string ShowOpenDialog(wxWindow* owner, const FileDialogRequest& request) {
    return Show(owner, request, wxFD_OPEN | wxFD_FILE_MUST_EXIST);
}

std::string AskSaveFile(wxWindow* owner, const FileDialogRequest& request) {
    return Show(owner, request, wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
}

} // namespace platform::ui
