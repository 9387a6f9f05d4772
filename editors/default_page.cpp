#include "editors/default_page.h"

#include "platform/ui/control_name.h"

namespace editors {

namespace {

constexpr int kForce = 2;

} // namespace

DefaultPage::DefaultPage(wxWindow* parent, int position)
    : Page(parent, position, "Set Default"),
      optDefault(
          this, "optDefault",
          {"Do Nothing: if the default printer is deleted, do not set a new default printer.",
           "Migration: when migrating printers, if the current defualt printer is migrated to a "
           "new printer, the newly created migration printer is set as the default.",
           "Force: force the following printer to be the default after all migrations and "
           "maintenance has been performed."}) {
    AddLabel(55, "Please selet the method for setting a new default printer:");
    AddOptions(optDefault);
    cboForceDefault = new wxOwnerDrawnComboBox(this, wxID_ANY, wxString(), wxDefaultPosition,
                                               wxDefaultSize, 0, nullptr, wxCB_READONLY);
    platform::ui::NameControl(*cboForceDefault, "cboForceDefault", "Printer to force");
    Body().Add(cboForceDefault, wxSizerFlags().Expand().Border(wxLEFT, FromDIP(3 * kGap)));

    optDefault.OnClick([this](int index) { optDefault_Click(index); });
    cboForceDefault->Bind(wxEVT_COMBOBOX, [this](wxCommandEvent&) { cboForceDefault_Click(); });
    Completed();
}

void DefaultPage::optDefault_Click(int /*index*/) {
    MarkChanged();
    FollowChoice();
}

void DefaultPage::FollowChoice() {
    const bool force = optDefault.Selected() == kForce;
    // On, it takes the colour of the page lists; off, the window's own.
    EnableWithColour(*cboForceDefault, force,
                     force ? WindowColour() : wxGetTopLevelParent(this)->GetBackgroundColour());
}

void DefaultPage::cboForceDefault_Click() {
    MarkChanged();
}

} // namespace editors
