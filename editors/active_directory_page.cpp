#include "editors/active_directory_page.h"

#include "platform/ui/control_name.h"
#include "platform/ui/line_room.h"
#include "platform/ui/one_line.h"
#include "platform/ui/same_choice.h"

namespace editors {

using platform::ui::NameControl;

ActiveDirectoryPage::ActiveDirectoryPage(wxWindow* parent, int position)
    : Page(parent, position, "Active Directory") {
    const wxString text = "Please select or enter your Active Directory domain name:";
    lblActiveDirectory = new wxStaticText(this, wxID_ANY, text);
    NameControl(*lblActiveDirectory, "lblActiveDirectory", text);
    Body().Add(lblActiveDirectory, wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap) / 2));
    cboDomainName = new wxComboBox(this, wxID_ANY);
    platform::ui::TakeOneLine(*cboDomainName);
    platform::ui::RoomForLine(*cboDomainName);
    // The domain picked once more asks for another look at its printers.
    platform::ui::TellEveryChoice(*cboDomainName);
    NameControl(*cboDomainName, "cboDomainName", text);
    Body().Add(cboDomainName, wxSizerFlags().Expand());

    const auto changed = [this](wxCommandEvent&) {
        if (cboDomainName_Change) {
            cboDomainName_Change();
        }
    };
    cboDomainName->Bind(wxEVT_TEXT, changed);
    cboDomainName->Bind(wxEVT_COMBOBOX, changed);
    Completed();
}

} // namespace editors
