// The command bar: menus, toolbar and the one handler behind them.
#include "directory/ad_printers.h"
#include "files/about.h"
#include "platform/ui/command_name.h"
#include "platform/ui/menu_key.h"
#include "platform/ui/text.h"
#include "wizard/commands.h"
#include "wizard/help.h"
#include "wizard/icons.h"
#include "wizard/wizard.h"

#include <wx/menu.h>
#include <wx/toolbar.h>

#include <algorithm>
#include <array>

void frmWizard::CreateCommandBar() {
    const auto idOf = [this](std::string_view tool) {
        const auto [found, added] = toolIds_.try_emplace(std::string(tool), 0);
        if (added) {
            found->second = wxWindow::NewControlId();
            Bind(
                wxEVT_MENU,
                [this, name = found->first](wxCommandEvent&) { ssaQueueshift_ToolClick(name); },
                found->second);
        }
        return found->second;
    };
    auto* const bar = new wxMenuBar;
    std::vector<wxString> menus;
    for (const modWizard::Menu& menu : modWizard::Menus()) {
        auto* const entries = new wxMenu;
        for (const modWizard::MenuEntry& entry : menu.entries) {
            if (entry.tool.empty()) {
                entries->AppendSeparator();
                continue;
            }
            wxString text = entry.caption;
            if (*entry.accelerator != '\0') {
                text << '\t' << entry.accelerator;
            }
            wxMenuItem* const item = entries->Append(idOf(entry.tool), text);
            platform::ui::NameMenuEntry(*item, platform::ui::ToWx(entry.tool));
        }
        bar->Append(entries, menu.caption);
        menus.push_back(platform::ui::ToWx(menu.id));
    }
    platform::ui::NameMenuBar(*bar, "Queueshift INI Editor", menus);
    SetMenuBar(bar);

    wxToolBar* const tools = CreateToolBar(wxTB_HORIZONTAL | wxTB_FLAT);
    std::vector<wxString> names;
    for (const modWizard::ToolButton& button : modWizard::ToolButtons()) {
        names.push_back(platform::ui::ToWx(button.tool));
        if (button.tool.empty()) {
            tools->AddSeparator();
        } else {
            tools->AddTool(idOf(button.tool), button.label, modWizard::ToolImage(button.tool),
                           button.hint);
        }
    }
    tools->Realize();
    platform::ui::NameToolBar(*tools, "Queueshift INI EditorToolbar", names);
}

void frmWizard::ssaQueueshift_ToolClick(std::string_view tool) {
    // What a query under way would fill belongs to the document of before.
    constexpr std::array<std::string_view, 4> kFileTools{"ID_BTN_NEW", "ID_BTN_OPEN", "ID_BTN_SAVE",
                                                         "ID_BTN_SAVE_AS"};
    if (std::ranges::find(kFileTools, tool) != kFileTools.end()) {
        modADPrinters::AbandonQueries();
    }
    if (tool == "ID_BTN_NEW") {
        modINIFile::NewINIFile();
        RefreshCaption();
    } else if (tool == "ID_BTN_OPEN") {
        modINIFile::OpenINIFile();
        RefreshCaption();
    } else if (tool == "ID_BTN_SAVE") {
        if (CanSaveDocument()) {
            modINIFile::SaveINIFile();
        }
        RefreshCaption();
    } else if (tool == "ID_BTN_SAVE_AS") {
        if (CanSaveDocument()) {
            modINIFile::SaveINIFileAs();
        }
        RefreshCaption();
    } else if (tool == "ID_BTN_EXIT") {
        Close();
    } else if (tool == "ID_BTN_CONTENTS") {
        modWizard::ShowHelpContents();
    } else if (tool == "ID_BTN_ABOUT") {
        frmAbout about(this);
        about.SetIcons(GetIcons());
        about.ShowModal();
    } else if (const int page = modWizard::PageOfTool(tool, UsesActiveDirectory()); page >= 0) {
        ShowPage(page);
        Prepare(modWizard::Pages()[static_cast<std::size_t>(page)].shown);
    }
}

void frmWizard::cmdHelp_Click(int index) {
    ShowHelpContext(modWizard::HelpContext(index, UsesActiveDirectory()));
}

void frmWizard::ShowHelpContext(int context) {
    modWizard::ShowHelpContext(context);
}

// F1 asks about the page that is showing. A menu wins over a control that has its access key.
void frmWizard::OnKey(wxKeyEvent& event) {
    const bool access = event.GetModifiers() == wxMOD_ALT;
    if (event.GetKeyCode() == WXK_F1 && !event.HasAnyModifiers()) {
        cmdHelp_Click(sstWizard->GetSelection());
    } else if (!(access && platform::ui::OpenMenuByKey(*this, event.GetKeyCode())) &&
               !RunAccelerator(event)) {
        event.Skip();
    }
}

// Before the controls see the key: in the tree and the lists of GTK Ctrl+N goes down a row.
bool frmWizard::RunAccelerator(const wxKeyEvent& event) {
    if (event.GetModifiers() != wxMOD_CONTROL) {
        return false;
    }
    const wxString pressed = "Ctrl+" + wxString(wxUniChar(event.GetKeyCode()));
    for (const modWizard::Menu& menu : modWizard::Menus()) {
        for (const modWizard::MenuEntry& entry : menu.entries) {
            if (pressed == entry.accelerator) {
                ProcessCommand(toolIds_.at(std::string(entry.tool)));
                return true;
            }
        }
    }
    return false;
}
