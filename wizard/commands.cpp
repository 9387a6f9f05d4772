#include "wizard/commands.h"

#include "wizard/pages.h"

#include <algorithm>
#include <array>

namespace modWizard {

namespace {

constexpr std::array<MenuEntry, 8> kFileEntries{{
    {"ID_BTN_NEW", "&New", "Ctrl+N"},
    {},
    {"ID_BTN_OPEN", "&Open ...", "Ctrl+O"},
    {},
    {"ID_BTN_SAVE", "&Save", "Ctrl+S"},
    {"ID_BTN_SAVE_AS", "Save &As ..."},
    {},
    {"ID_BTN_EXIT", "E&xit"},
}};

constexpr std::array<MenuEntry, 24> kViewEntries{{
    {"ID_BTN_GENERAL", "&General"},
    {},
    {"ID_BTN_AD", "&Active Directory"},
    {},
    {"ID_BTN_SERVER", "Server &To Server"},
    {"ID_BTN_PRINTER", "Pr&inter To Printer"},
    {"ID_BTN_MIXED", "&Mixed Server And Printer"},
    {},
    {"ID_BTN_EMAIL", "&Email Output"},
    {"ID_BTN_FILE", "&File Output"},
    {"ID_BTN_CLIENT", "Client Pop-&up"},
    {"ID_BTN_APP_EL", "Application Event &Log"},
    {},
    {"ID_BTN_DEPLOYMENT", "&Deployment"},
    {"ID_BTN_DEPLOY_GENERAL", "Deployment Ge&neral"},
    {"ID_BTN_MDAC", "MDA&C"},
    {},
    {"ID_BTN_PRUNE", "&Prune"},
    {"ID_BTN_POPULATE", "P&opulate"},
    {},
    {"ID_BTN_SET_DEFAULT", "&Set Default"},
    {"ID_BTN_DRIVERS", "Dri&vers"},
    {},
    {"ID_BTN_SUPPORT", "Su&pport"},
}};

constexpr std::array<MenuEntry, 3> kHelpEntries{{
    {"ID_BTN_CONTENTS", "&Contents ..."},
    {},
    {"ID_BTN_ABOUT", "&About Queueshift Deployment Toolkit ..."},
}};

constexpr std::array<Menu, 3> kMenus{{
    {"ID_MNU_FILE", "&File", kFileEntries},
    {"ID_MNU_VIEW", "&View", kViewEntries},
    {"ID_MNU_HELP", "&Help", kHelpEntries},
}};

constexpr std::array<ToolButton, 6> kToolButtons{{
    {"ID_BTN_NEW", "New", "New INI file"},
    {},
    {"ID_BTN_OPEN", "Open", "Open an INI file"},
    {"ID_BTN_SAVE", "Save", "Save the INI file"},
    {},
    {"ID_BTN_CONTENTS", "Contents", "Help contents"},
}};

constexpr std::array<TypeTool, 6> kTypeTools{{
    {"ID_BTN_AD", true},
    {"ID_BTN_DEPLOY_GENERAL", true},
    {"ID_BTN_MDAC", true},
    {"ID_BTN_PRINTER", false},
    {"ID_BTN_SERVER", false},
    {"ID_BTN_MIXED", false},
}};

struct PageTool {
    std::string_view tool;
    int activeDirectory;
    int manual;
};

constexpr std::array<PageTool, 17> kPageTools{{
    {"ID_BTN_GENERAL", kGeneralPage, kGeneralPage},
    {"ID_BTN_AD", kActiveDirectoryPage, kActiveDirectoryPage},
    {"ID_BTN_SERVER", kServersPage, kServersPage},
    {"ID_BTN_PRINTER", kPrintersPage, kPrintersPage},
    {"ID_BTN_MIXED", kMixedPage, kMixedPage},
    {"ID_BTN_EMAIL", kSMTPPage, kSMTPPage},
    {"ID_BTN_FILE", kFileOutputPage, kFileOutputPage},
    {"ID_BTN_CLIENT", kClientPopupPage, kClientPopupPage},
    {"ID_BTN_APP_EL", kEventLogPage, kEventLogPage},
    {"ID_BTN_PRUNE", kPrunePage, kPrunePage},
    {"ID_BTN_POPULATE", kPopulatePage, kPopulatePage},
    {"ID_BTN_SET_DEFAULT", kSetDefaultPage, kSetDefaultPage},
    {"ID_BTN_DRIVERS", kDriversPage, kDriversPage},
    {"ID_BTN_DEPLOYMENT", kDeploymentPage, kDeploymentGeneralPage},
    {"ID_BTN_SUPPORT", kSupportPage, kSupportPage},
    {"ID_BTN_DEPLOY_GENERAL", kDeploymentGeneralPage, kDeploymentGeneralPage},
    {"ID_BTN_MDAC", kMDACPage, kMDACPage},
}};

} // namespace

std::span<const Menu> Menus() {
    return kMenus;
}

std::span<const ToolButton> ToolButtons() {
    return kToolButtons;
}

std::span<const TypeTool> TypeTools() {
    return kTypeTools;
}

int PageOfTool(std::string_view tool, bool usesActiveDirectory) {
    if (tool.empty()) {
        return -1;
    }
    const auto* const row = std::ranges::find(kPageTools, tool, &PageTool::tool);
    if (row == kPageTools.end()) {
        return -1;
    }
    return usesActiveDirectory ? row->activeDirectory : row->manual;
}

} // namespace modWizard
