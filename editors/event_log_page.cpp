#include "editors/event_log_page.h"

namespace editors {

EventLogPage::EventLogPage(wxWindow* parent, int position)
    : Page(parent, position, "Notification - Application Event Log") {
    chkWriteToEventLog =
        AddCheckBox("chkWriteToEventLog",
                    "Write sucess and failure messages to the Windows application event log");
    OnClick(chkWriteToEventLog, [this] { chkWriteToEventLog_Click(); });
    Completed();
}

void EventLogPage::chkWriteToEventLog_Click() {
    MarkChanged();
}

} // namespace editors
