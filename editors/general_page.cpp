#include "editors/general_page.h"

#include "platform/ui/control_name.h"
#include "platform/ui/line_room.h"

namespace editors {

GeneralPage::GeneralPage(wxWindow* parent, int position) : Page(parent, position, "General") {
    AddLabel(21, "Configuration File Type: (Read Only)");
    cboConfigurationFileType = new wxChoice(this, wxID_ANY);
    platform::ui::RoomForLine(*cboConfigurationFileType);
    cboConfigurationFileType->Append("Active Directory");
    cboConfigurationFileType->Append("Manual Configuration");
    cboConfigurationFileType->Disable();
    platform::ui::NameControl(*cboConfigurationFileType, "cboConfigurationFileType",
                              "Configuration File Type: (Read Only)");
    Body().Add(cboConfigurationFileType, wxSizerFlags().Border(wxBOTTOM, FromDIP(2 * kGap)));
    chkShowProgress = AddCheckBox("chkShowProgress", "Show progress window for Queueshift Engine");
    chkAlwaysRun = AddCheckBox("chkAlwaysRun", "Always Run");
    AddParagraph("lblGeneral(20)",
                 "Once Queueshift has executed sucessfully for a specific INI file on a client "
                 "machine it will not run again. By setting this option Queueshift will always run "
                 "even if a success on a previous execution was acheived.");

    OnClick(chkShowProgress, [this] { chkShowProgress_Click(); });
    OnClick(chkAlwaysRun, [this] { chkAlwaysRun_Click(); });
    Completed();
}

void GeneralPage::ShowConfigurationType(bool usesActiveDirectory) {
    cboConfigurationFileType->SetSelection(usesActiveDirectory ? 0 : 1);
}

void GeneralPage::chkShowProgress_Click() {
    MarkChanged();
}

void GeneralPage::chkAlwaysRun_Click() {
    MarkChanged();
}

} // namespace editors
