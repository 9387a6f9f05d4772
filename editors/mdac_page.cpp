#include "editors/mdac_page.h"

#include "document/product.h"
#include "platform/ui/text.h"

namespace editors {

MDACPage::MDACPage(wxWindow* parent, int position)
    : Page(parent, position, "Deployment - MDAC"),
      optMDACVersion(this, "optMDACVersion",
                     {"MDAC vr 2.5 SP3 - default version when using Windows 2000 ",
                      "MDAC vr 2.7 SP1- default version when using Windows XP ",
                      "MDAC vr 2.8 - default version when using Windows 2003/Windows XP SP2 "}) {
    lblWizard2 = AddParagraph(
        "lblWizard(2)",
        "Microsoft Data Access Components (MDAC) is used by Queueshift when migrating using the "
        "Active Directory method.  The client computer requires MDAC version 2.5 or newer to query "
        "Active Directory.  Please select the version you would like Queueshift to distribute "
        "prior to Migrating printers on the client computer. ");
    chkIncludeMDAC = AddCheckBox("chkIncludeMDAC", "Include MDAC in batch file and/or web page");
    AddOptions(optMDACVersion);
    cmdDeployNow = AddButton(*AddButtonRow(), "cmdDeployNow(1)", "&Deploy Now");
    lblWizard0 = AddParagraph(
        "lblWizard(0)",
        "You do not need this option if all of the client computers are running Windows 2000 or "
        "later. If in doubt, do not deploy MDAC; if errors are returned, try the latest version of "
        "MDAC (2.8).");
    const wxString address = platform::ui::ToWx(product::kMDACPage);
    lblWizard3 = AddLink("lblWizard(3)", "For further information, go to " + address, address);

    OnClick(chkIncludeMDAC, [this] { chkIncludeMDAC_Click(); });
    optMDACVersion.OnClick([this](int index) { optMDACVersion_Click(index); });
    Completed();
}

void MDACPage::chkIncludeMDAC_Click() {
    MarkChanged();
    optMDACVersion.Enable(chkIncludeMDAC->GetValue());
}

void MDACPage::optMDACVersion_Click(int /*index*/) {
    MarkChanged();
}

} // namespace editors
