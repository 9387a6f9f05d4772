#include "editors/description_page.h"

namespace editors {

DescriptionPage::DescriptionPage(wxWindow* parent, int position, const wxString& title,
                                 const wxString& description)
    : Page(parent, position, title) {
    lblNotification = AddParagraph(wxString::Format("lblNotification(%d)", position), description);
    Completed();
}

} // namespace editors
