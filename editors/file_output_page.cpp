#include "editors/file_output_page.h"

#include <utility>

namespace editors {

FileOutputPage::FileOutputPage(wxWindow* parent, int position, LeaveChecks& leaveChecks,
                               FolderServices folders)
    : Page(parent, position, "Notification - File Output"), folders_(std::move(folders)) {
    chkUseFileOutput = AddCheckBox("chkUseFileOutput", "Notify via file output");
    wxFlexGridSizer* const rows = AddFields();
    const TextAndButton path = AddTextRowWithButton(
        *rows, 35, "File Output Path:", "txtFileOutputPath", "cmdBrowseFileOutput", "Browse ...");
    txtFileOutputPath = path.text;
    cmdBrowseFileOutput = path.button;
    txtFileOutputName = AddTextRow(*rows, 36, "File Output Name:", "txtFileOutputName");
    chkIncludeComputerName =
        AddCheckBox("chkIncludeComputerName", "Include client computer and user name in filename");
    chkIncludeFinalStatus =
        AddCheckBox("chkIncludeFinalStatus", "Include final status in filename");

    OnClick(chkUseFileOutput, [this] { chkUseFileOutput_Click(); });
    OnClick(cmdBrowseFileOutput, [this] { cmdBrowseFileOutput_Click(); });
    OnClick(chkIncludeComputerName, [this] { chkIncludeComputerName_Click(); });
    OnClick(chkIncludeFinalStatus, [this] { chkIncludeFinalStatus_Click(); });
    OnChange(txtFileOutputPath, [this] { txtFileOutputPath_Change(); });
    OnChange(txtFileOutputName, [this] { txtFileOutputName_Change(); });
    leaveChecks.Add(*txtFileOutputPath, [this] {
        txtFileOutputPath_Validate();
        return true;
    });
    Completed();
}

void FileOutputPage::chkUseFileOutput_Click() {
    const bool on = chkUseFileOutput->GetValue();
    ColourForState({txtFileOutputPath, txtFileOutputName}, on);
    EnableAll({txtFileOutputPath, txtFileOutputName, cmdBrowseFileOutput, chkIncludeComputerName,
               chkIncludeFinalStatus},
              on);
    MarkChanged();
}

void FileOutputPage::cmdBrowseFileOutput_Click() {
    BrowseInto(*txtFileOutputPath, folders_);
}

void FileOutputPage::txtFileOutputPath_Validate() {
    if (!txtFileOutputPath->IsEmpty() && chkUseFileOutput->GetValue()) {
        // The words speak of the deployment folder here and of the output folder there; users and
        // support know them so.
        CheckFolder(*txtFileOutputPath, folders_,
                    "The network share folder could not be found. You will not be able to deploy "
                    "this INI file until the folder is created.");
    }
}

void FileOutputPage::txtFileOutputPath_Change() {
    MarkChanged();
}

void FileOutputPage::txtFileOutputName_Change() {
    MarkChanged();
}

void FileOutputPage::chkIncludeComputerName_Click() {
    MarkChanged();
}

void FileOutputPage::chkIncludeFinalStatus_Click() {
    MarkChanged();
}

} // namespace editors
