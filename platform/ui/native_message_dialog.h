// A message box with the icon it was asked for, and a caption that can be read.
//
// The toolkit leaves the icons of a box to the fashion of the day: GTK shows none unless told to,
// and the newer boxes of Windows know no question mark. The icon is a part of our messages.
#pragma once

#include <wx/msgdlg.h>

namespace platform::ui {

class NativeMessageDialog : public wxMessageDialog {
public:
    using wxMessageDialog::wxMessageDialog;

    int ShowModal() override;
};

} // namespace platform::ui
