// The Drivers page: the driver that the engine installs for each printer.
#pragma once

#include "editors/folder_field.h"
#include "editors/page.h"

namespace editors {

class DriversPage : public Page {
public:
    DriversPage(wxWindow* parent, int position, FolderServices folders);

    Paragraph* lblNotification;
    wxListBox* lstPrinterDrivers;
    wxTextCtrl* txtPrinterNameViewOnly;
    wxTextCtrl* txtDriverName;
    wxTextCtrl* txtDriverFileName;
    wxTextCtrl* txtPortName;
    wxButton* cmdSavePrinterDriver;
    wxTextCtrl* txtDriverSharePath;
    wxButton* cmdBrowseDriverSharePath;

    void lstPrinterDrivers_Click();
    void cmdSavePrinterDriver_Click();
    void cmdBrowseDriverSharePath_Click();

private:
    FolderServices folders_;
};

} // namespace editors
