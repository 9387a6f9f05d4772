// The File Output page: the file in which the engine stores its result.
#pragma once

#include "editors/folder_field.h"
#include "editors/page.h"

namespace editors {

class FileOutputPage : public Page {
public:
    FileOutputPage(wxWindow* parent, int position, LeaveChecks& leaveChecks,
                   FolderServices folders);

    wxCheckBox* chkUseFileOutput;
    wxTextCtrl* txtFileOutputPath;
    wxButton* cmdBrowseFileOutput;
    wxTextCtrl* txtFileOutputName;
    wxCheckBox* chkIncludeComputerName;
    wxCheckBox* chkIncludeFinalStatus;

    void chkUseFileOutput_Click();
    void cmdBrowseFileOutput_Click();
    void txtFileOutputPath_Validate();
    void txtFileOutputPath_Change();
    void txtFileOutputName_Change();
    void chkIncludeComputerName_Click();
    void chkIncludeFinalStatus_Click();

private:
    FolderServices folders_;
};

} // namespace editors
