// The Support page: debug output of the engine, and where to ask for help.
#pragma once

#include "editors/page.h"

namespace editors {

class SupportPage : public Page {
public:
    SupportPage(wxWindow* parent, int position);

    wxCheckBox* chkDebugOn;
    Paragraph* lblWizard4;
    LinkParagraph* lblWizard5; ///< a link to the product's web address

    void chkDebugOn_Click();
};

} // namespace editors
