#include "wizard/pages.h"

#include <algorithm>
#include <array>

namespace modWizard {

namespace {

using enum Preparation;

// Three preparations are not those of the page that is shown then: Next from Set Default leaves the
// driver list alone, Next from Drivers refreshes it behind the Support page, and Back from Populate
// prepares Prune behind the Maintenance page. Documents in use were made with these.
constexpr std::array<PageInfo, kPageCount> kPages{{
    {kGeneralPage, "Key1", "Key1", 1013, 1013, None, None, None},
    {kActiveDirectoryPage, "Key2", "", 1004, 1004, None, None, None},
    {kServersPage, "", "Key31", 1042, 1042, None, None, None},
    {kNotificationPage, "Key4", "Key4", 1038, 1038, None, None, None},
    {kSMTPPage, "Key41", "Key41", 1008, 1008, None, None, None},
    {kFileOutputPage, "Key42", "Key42", 1012, 1012, None, None, None},
    {kClientPopupPage, "Key43", "Key43", 1040, 1040, None, None, None},
    {kEventLogPage, "Key44", "Key44", 1010, 1010, None, None, None},
    {kMaintenancePage, "Key8", "Key8", 2090, 2090, None, Populate, None},
    {kManualConfigurationPage, "", "Key3", 1027, 1027, None, None, None},
    {kPrintersPage, "", "Key32", 1039, 1039, None, None, None},
    {kMixedPage, "", "Key33", 1035, 1035, None, None, None},
    {kPrunePage, "Key82", "Key82", 2010, 2010, Prune, DefaultPrinters, Populate},
    {kSupportPage, "Key7", "Key7", 1045, 1045, None, None, Drivers},
    {kDeploymentGeneralPage, "Key61", "Key6", 1019, 1080, None, None, None},
    {kMDACPage, "Key62", "", 1028, 1028, None, None, None},
    {kDeploymentPage, "Key6", "", 1006, 1006, None, None, None},
    {kPopulatePage, "Key81", "Key81", 2100, 2100, Populate, Prune, Prune},
    {kSetDefaultPage, "Key9", "Key9", 2020, 2020, DefaultPrinters, None, Prune},
    {kDriversPage, "Key10", "Key10", 2030, 2030, Drivers, Drivers, DefaultPrinters},
}};

constexpr std::array kActiveDirectoryWalk{
    kGeneralPage,  kActiveDirectoryPage, kNotificationPage,
    kSMTPPage,     kFileOutputPage,      kClientPopupPage,
    kEventLogPage, kDeploymentPage,      kDeploymentGeneralPage,
    kMDACPage,     kMaintenancePage,     kPopulatePage,
    kPrunePage,    kSetDefaultPage,      kDriversPage,
    kSupportPage};

constexpr std::array kManualWalk{kGeneralPage,
                                 kManualConfigurationPage,
                                 kServersPage,
                                 kPrintersPage,
                                 kMixedPage,
                                 kNotificationPage,
                                 kSMTPPage,
                                 kFileOutputPage,
                                 kClientPopupPage,
                                 kEventLogPage,
                                 kDeploymentGeneralPage,
                                 kMaintenancePage,
                                 kPopulatePage,
                                 kPrunePage,
                                 kSetDefaultPage,
                                 kDriversPage,
                                 kSupportPage};

enum class Mode { Both, ActiveDirectory, Manual };

struct NodeRow {
    Mode mode;
    const char* key;
    const char* text;
    const char* parentKey;
    int image;
    bool expanded;
};

constexpr std::array<NodeRow, 21> kNodes{{
    {Mode::Both, "Key1", "General", "", 1, false},
    {Mode::ActiveDirectory, "Key2", "Active Directory", "", 1, false},
    {Mode::Manual, "Key3", "Manual Configuration", "", 2, true},
    {Mode::Manual, "Key31", "Servers", "Key3", 1, false},
    {Mode::Manual, "Key32", "Printers", "Key3", 1, false},
    {Mode::Manual, "Key33", "Mixed", "Key3", 1, false},
    {Mode::Both, "Key4", "Notification", "", 2, true},
    {Mode::Both, "Key41", "SMTP Mail", "Key4", 1, false},
    {Mode::Both, "Key42", "File Output", "Key4", 1, false},
    {Mode::Both, "Key43", "Client User Pop-Up", "Key4", 1, false},
    {Mode::Both, "Key44", "Application Event Log", "Key4", 1, false},
    {Mode::ActiveDirectory, "Key6", "Deployment", "", 1, true},
    {Mode::ActiveDirectory, "Key61", "General", "Key6", 1, false},
    {Mode::ActiveDirectory, "Key62", "MDAC", "Key6", 1, false},
    {Mode::Manual, "Key6", "Deployment", "", 1, false},
    {Mode::Both, "Key8", "Maintenance", "", 1, true},
    {Mode::Both, "Key81", "Populate", "Key8", 1, false},
    {Mode::Both, "Key82", "Prune", "Key8", 1, false},
    {Mode::Both, "Key9", "Set Default", "", 1, false},
    {Mode::Both, "Key10", "Drivers", "", 1, false},
    {Mode::Both, "Key7", "Support", "", 1, false},
}};

std::span<const PagePosition> Walk(bool usesActiveDirectory) {
    return usesActiveDirectory ? std::span<const PagePosition>(kActiveDirectoryWalk)
                               : std::span<const PagePosition>(kManualWalk);
}

int Step(int position, bool usesActiveDirectory, std::ptrdiff_t step) {
    const std::span<const PagePosition> walk = Walk(usesActiveDirectory);
    const auto here = std::ranges::find(walk, position);
    if (here == walk.end()) {
        return -1;
    }
    const std::ptrdiff_t there = here - walk.begin() + step;
    return there < 0 || there >= std::ssize(walk) ? -1 : walk[static_cast<std::size_t>(there)];
}

} // namespace

std::span<const PageInfo> Pages() {
    return kPages;
}

std::string_view NodeKey(int position, bool usesActiveDirectory) {
    const PageInfo& page = kPages.at(static_cast<std::size_t>(position));
    return usesActiveDirectory ? page.adNodeKey : page.manualNodeKey;
}

int HelpContext(int position, bool usesActiveDirectory) {
    const PageInfo& page = kPages.at(static_cast<std::size_t>(position));
    return usesActiveDirectory ? page.adHelp : page.manualHelp;
}

std::vector<platform::ui::TreeNode> TreeNodes(bool usesActiveDirectory) {
    const Mode mode = usesActiveDirectory ? Mode::ActiveDirectory : Mode::Manual;
    std::vector<platform::ui::TreeNode> nodes;
    for (const NodeRow& row : kNodes) {
        if (row.mode == Mode::Both || row.mode == mode) {
            nodes.push_back({row.key, row.text, row.parentKey, row.image, row.expanded});
        }
    }
    return nodes;
}

int PageOfNode(std::string_view text, bool hasParent, bool usesActiveDirectory) {
    if (text == "General") {
        return hasParent ? kDeploymentGeneralPage : kGeneralPage;
    }
    const auto row = std::ranges::find(kNodes, text, &NodeRow::text);
    if (row == kNodes.end()) {
        return -1;
    }
    const auto page = std::ranges::find_if(kPages, [&](const PageInfo& info) {
        return (usesActiveDirectory ? info.adNodeKey : info.manualNodeKey) == row->key;
    });
    return page == kPages.end() ? -1 : page->position;
}

int NextPage(int position, bool usesActiveDirectory) {
    return Step(position, usesActiveDirectory, 1);
}

int BackPage(int position, bool usesActiveDirectory) {
    return Step(position, usesActiveDirectory, -1);
}

} // namespace modWizard
