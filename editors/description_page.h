// A page that only explains the pages below it in the option tree.
#pragma once

#include "editors/page.h"

namespace editors {

class DescriptionPage : public Page {
public:
    DescriptionPage(wxWindow* parent, int position, const wxString& title,
                    const wxString& description);

    Paragraph* lblNotification; ///< the description, element `position` of its array
};

} // namespace editors
