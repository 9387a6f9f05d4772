// What differs between the systems' file dialogs.
#pragma once

#include "platform/ui/file_dialog.h"

namespace platform::ui {

/// One showing of the dialog for an existing file; "" when cancelled.
std::string ShowOpenDialog(wxWindow* owner, const FileDialogRequest& request);

} // namespace platform::ui
