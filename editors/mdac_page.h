// The MDAC page: which installer of the data access components is deployed with the engine.
#pragma once

#include "editors/option_group.h"
#include "editors/page.h"

namespace editors {

class MDACPage : public Page {
public:
    MDACPage(wxWindow* parent, int position);

    wxCheckBox* chkIncludeMDAC;
    OptionGroup optMDACVersion;
    wxButton* cmdDeployNow; ///< element 1 of its array
    Paragraph* lblWizard0;
    Paragraph* lblWizard2;
    LinkParagraph* lblWizard3; ///< a link to the vendor's information page

    void chkIncludeMDAC_Click();
    void optMDACVersion_Click(int index);
};

} // namespace editors
