// The pages of the wizard, as data: their places, titles, nodes, tools and help topics, and the
// ways that lead from one to the next.
#pragma once

#include "platform/ui/native_tree.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace modWizard {

/// Places of the pages in sstWizard.
enum PagePosition {
    kGeneralPage,
    kActiveDirectoryPage,
    kServersPage,
    kNotificationPage,
    kSMTPPage,
    kFileOutputPage,
    kClientPopupPage,
    kEventLogPage,
    kMaintenancePage,
    kManualConfigurationPage,
    kPrintersPage,
    kMixedPage,
    kPrunePage,
    kSupportPage,
    kDeploymentGeneralPage,
    kMDACPage,
    kDeploymentPage,
    kPopulatePage,
    kSetDefaultPage,
    kDriversPage,
    kPageCount
};

/// What is run when a page is shown.
enum class Preparation { None, Populate, Prune, DefaultPrinters, Drivers };

struct PageInfo {
    int position;
    std::string_view adNodeKey; ///< "" where the page has no node in an Active Directory document
    std::string_view manualNodeKey; ///< "" where the page has no node in a manual document
    int adHelp;                     ///< help context number in an Active Directory document
    int manualHelp;
    Preparation shown; ///< when shown from the tree or by a command
    Preparation next;  ///< when its own Next leads away, run on the page shown then
    Preparation back;  ///< when its own Back leads away
};

/// In the order of the positions.
std::span<const PageInfo> Pages();

/// The page's node in a document of this type, or "".
std::string_view NodeKey(int position, bool usesActiveDirectory);

/// The help topic of the page in a document of this type.
int HelpContext(int position, bool usesActiveDirectory);

/// The option tree of a document of this type.
std::vector<platform::ui::TreeNode> TreeNodes(bool usesActiveDirectory);

/// The page that a node leads to, by its text; -1 for a text that leads nowhere. Two nodes are
/// called "General", which their parents tell apart.
int PageOfNode(std::string_view text, bool hasParent, bool usesActiveDirectory);

/// Where Next and Back of a page lead; -1 where they lead nowhere.
int NextPage(int position, bool usesActiveDirectory);
int BackPage(int position, bool usesActiveDirectory);

} // namespace modWizard
