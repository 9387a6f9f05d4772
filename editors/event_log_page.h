// The Application Event Log page.
#pragma once

#include "editors/page.h"

namespace editors {

class EventLogPage : public Page {
public:
    EventLogPage(wxWindow* parent, int position);

    wxCheckBox* chkWriteToEventLog;

    void chkWriteToEventLog_Click();
};

} // namespace editors
