// The Active Directory page: the domain whose directory the engine and the pickers use.
#pragma once

#include "editors/page.h"

#include <functional>

namespace editors {

class ActiveDirectoryPage : public Page {
public:
    ActiveDirectoryPage(wxWindow* parent, int position);

    wxStaticText* lblActiveDirectory;
    wxComboBox* cboDomainName;

    /// Runs for a change of the text and for the choice of an item alike.
    std::function<void()> cboDomainName_Change;
};

} // namespace editors
