#include "editors/support_page.h"

#include "document/product.h"
#include "platform/ui/text.h"

namespace editors {

SupportPage::SupportPage(wxWindow* parent, int position) : Page(parent, position, "Support") {
    lblWizard4 = AddParagraph(
        "lblWizard(4)",
        "In the event that your deployment of Queueshift does not work, Queueshift offers the "
        "option turn on debugging for the Queueshift Engine. The debug log will be written to the "
        "deployment folder with a default extention of \".debug\".");
    chkDebugOn = AddCheckBox("chkDebugOn", "Turn on debugging");
    Body().AddSpacer(FromDIP(kGap));
    const wxString address = platform::ui::ToWx(product::kWebAddress);
    lblWizard5 = AddLink(
        "lblWizard(5)",
        "To submit a support requests please visit " + address +
            ". Please provide a description of the issue you are having and if you can provide us "
            "with the debug file we will be able to resolve the issue faster.",
        address);
    OnClick(chkDebugOn, [this] { chkDebugOn_Click(); });
    Completed();
}

void SupportPage::chkDebugOn_Click() {
    MarkChanged();
}

} // namespace editors
