// The Set Default page: how the client's default printer is set after the migration.
#pragma once

#include "editors/option_group.h"
#include "editors/page.h"

namespace editors {

class DefaultPage : public Page {
public:
    DefaultPage(wxWindow* parent, int position);

    OptionGroup optDefault;
    wxOwnerDrawnComboBox* cboForceDefault; ///< virtual: it offers every target printer

    /// `index` -1 when none is selected.
    void optDefault_Click(int index);
    void cboForceDefault_Click();

    /// Opens the list of printers when Force is selected, and closes it otherwise; marks nothing.
    void FollowChoice();
};

} // namespace editors
