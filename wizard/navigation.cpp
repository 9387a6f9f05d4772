// The ways to a page: option tree, Next and Back, and what is prepared on arrival.
#include "document/document.h"
#include "platform/ui/text.h"
#include "wizard/commands.h"
#include "wizard/wizard.h"

#include <wx/menu.h>

#include <algorithm>

using modWizard::Preparation;

void frmWizard::InitializeTreeView() {
    const bool usesActiveDirectory = UsesActiveDirectory();
    tvwWizardOptions->SetNodes(modWizard::TreeNodes(usesActiveDirectory));
    tvwWizardOptions->Select("Key1");
    for (const modWizard::TypeTool& tool : modWizard::TypeTools()) {
        GetMenuBar()->Enable(toolIds_.at(std::string(tool.tool)),
                             tool.activeDirectory == usesActiveDirectory);
    }
    deployment->ShowConfigurationType(usesActiveDirectory);
    general->ShowConfigurationType(usesActiveDirectory);
    ShowPage(modWizard::kGeneralPage);
}

void frmWizard::ShowPage(int position, wxWindow* focus) {
    // The program takes the focus off the page; no field of it is being left by the user.
    leaveChecks_->Forget();
    const wxWindow* const before = sstWizard->GetCurrentPage();
    wxWindow* const focused = FindFocus();
    const bool focusOnPage =
        focused != nullptr && before != nullptr && before->IsDescendant(focused);
    sstWizard->ChangeSelection(static_cast<size_t>(position));
    tvwWizardOptions->Select(std::string(modWizard::NodeKey(position, UsesActiveDirectory())));
    if (!focusOnPage || before == sstWizard->GetCurrentPage()) {
        return;
    }
    if (focus != nullptr) {
        focus->SetFocus();
    } else {
        pages[static_cast<std::size_t>(position)]->FocusFirst();
    }
}

void frmWizard::tvwWizardOptions_NodeClick(const std::string& key) {
    const auto& nodes = tvwWizardOptions->Nodes();
    const auto node = std::ranges::find(nodes, key, &platform::ui::TreeNode::key);
    if (node == nodes.end()) {
        return;
    }
    const int position =
        modWizard::PageOfNode(node->text, !node->parentKey.empty(), UsesActiveDirectory());
    if (position >= 0) {
        ShowPage(position);
        Prepare(modWizard::Pages()[static_cast<std::size_t>(position)].shown);
    }
}

void frmWizard::cmdNext_Click(int index) {
    const int destination = modWizard::NextPage(index, UsesActiveDirectory());
    if (destination >= 0) {
        ShowPage(destination, pages[static_cast<std::size_t>(destination)]->cmdNext);
        Prepare(modWizard::Pages()[static_cast<std::size_t>(index)].next);
    }
}

void frmWizard::cmdBack_Click(int index) {
    const int destination = modWizard::BackPage(index, UsesActiveDirectory());
    if (destination >= 0) {
        ShowPage(destination, pages[static_cast<std::size_t>(destination)]->cmdBack);
        Prepare(modWizard::Pages()[static_cast<std::size_t>(index)].back);
    }
}

void frmWizard::Prepare(Preparation preparation) {
    switch (preparation) {
    case Preparation::None:
        break;
    case Preparation::Populate:
        PreparePopulatePage();
        break;
    case Preparation::Prune:
        PreparePrunePage();
        break;
    case Preparation::DefaultPrinters:
        RefreshDefaultPrinterList();
        break;
    case Preparation::Drivers:
        RefreshDriverList();
        break;
    }
}
