#include "platform/ui/file_dialog.h"

#include "platform/message.h"
#include "platform/program.h"
#include "platform/ui/native_file_dialog.h"
#include "platform/volumes.h"

namespace platform::ui {

std::string AskOpenFile(wxWindow* owner, const FileDialogRequest& request) {
    FileDialogRequest next = request;
    for (;;) {
        std::string path = ShowOpenDialog(owner, next);
        if (path.empty() || !IsWriteProtected(path)) {
            return path;
        }
        ShowMessage({"The file \"" + LastName(path) +
                         "\" is write-protected and cannot be opened for editing.\r\nPlease choose "
                         "another file, or remove the protection first.",
                     request.title, Buttons::Ok, Icon::Exclamation});
        next.initialName = path;
    }
}

} // namespace platform::ui
