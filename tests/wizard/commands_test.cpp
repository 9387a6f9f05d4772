// Menus, toolbar and the handler behind them.
#include "tests/wizard/wizard_test.h"

#include "files/about.h"
#include "files/ini_file.h"
#include "files/new_ini.h"

#include <wx/menu.h>
#include <wx/toolbar.h>

namespace window_test {
namespace {

class Commands : public WizardTest {
protected:
    // The entries of a menu, "-" for a separator.
    [[nodiscard]] Texts Entries(std::size_t menu) const {
        Texts entries;
        for (const wxMenuItem* item : window->GetMenuBar()->GetMenu(menu)->GetMenuItems()) {
            entries.push_back(item->IsSeparator() ? "-" : item->GetItemLabel().utf8_string());
        }
        return entries;
    }

    void ChooseEntry(int menu, const char* caption) {
        const int id =
            window->GetMenuBar()->GetMenu(static_cast<std::size_t>(menu))->FindItem(caption);
        ASSERT_NE(id, wxNOT_FOUND) << caption;
        window->ProcessCommand(id);
    }
};

TEST_F(Commands, MenusHoldTheirEntries) {
    Start(kManual);
    const wxMenuBar& bar = *window->GetMenuBar();
    ASSERT_EQ(bar.GetMenuCount(), 3U);
    EXPECT_EQ(bar.GetMenuLabel(0), "&File");
    EXPECT_EQ(bar.GetMenuLabel(1), "&View");
    EXPECT_EQ(bar.GetMenuLabel(2), "&Help");
    EXPECT_EQ(Entries(0), (Texts{"&New\tCtrl+N", "-", "&Open ...\tCtrl+O", "-", "&Save\tCtrl+S",
                                 "Save &As ...", "-", "E&xit"}));
    EXPECT_EQ(Entries(1), (Texts{"&General",
                                 "-",
                                 "&Active Directory",
                                 "-",
                                 "Server &To Server",
                                 "Pr&inter To Printer",
                                 "&Mixed Server And Printer",
                                 "-",
                                 "&Email Output",
                                 "&File Output",
                                 "Client Pop-&up",
                                 "Application Event &Log",
                                 "-",
                                 "&Deployment",
                                 "Deployment Ge&neral",
                                 "MDA&C",
                                 "-",
                                 "&Prune",
                                 "P&opulate",
                                 "-",
                                 "&Set Default",
                                 "Dri&vers",
                                 "-",
                                 "Su&pport"}));
    EXPECT_EQ(Entries(2),
              (Texts{"&Contents ...", "-", "&About Queueshift Deployment Toolkit ..."}));
}

TEST_F(Commands, ToolbarButtonsAreTheMenusCommands) {
    Start(kManual);
    const wxToolBar& bar = *window->GetToolBar();
    const wxMenuBar& menus = *window->GetMenuBar();
    Texts buttons;
    for (std::size_t i = 0; i < bar.GetToolsCount(); ++i) {
        const wxToolBarToolBase* const tool = bar.GetToolByPos(static_cast<int>(i));
        if (tool->IsSeparator()) {
            buttons.emplace_back("-");
            continue;
        }
        const wxMenuItem* const entry = menus.FindItem(tool->GetId());
        ASSERT_NE(entry, nullptr) << tool->GetLabel();
        buttons.push_back(entry->GetItemLabelText().utf8_string());
        EXPECT_TRUE(tool->GetNormalBitmap().IsOk()) << tool->GetLabel();
    }
    EXPECT_EQ(buttons, (Texts{"New", "-", "Open ...", "Save", "-", "Contents ..."}));
}

struct PageCommand {
    const char* tool;
    const char* caption;
    int page;
    const char* node;
    Texts runs;
};

class PageCommands : public Commands {
protected:
    void ExpectEach(const std::vector<PageCommand>& rows) {
        PreparationProbe probe(*window);
        for (const PageCommand& row : rows) {
            for (const bool byMenu : {true, false}) {
                GoTo(row.page == 0 ? 3 : 0);
                probe.Arm();
                if (byMenu) {
                    ChooseEntry(1, row.caption);
                } else {
                    window->ssaQueueshift_ToolClick(row.tool);
                }
                EXPECT_EQ(CurrentPage(), row.page) << row.tool;
                EXPECT_EQ(CurrentNode(), row.node) << row.tool;
                EXPECT_EQ(probe.Ran(), row.runs) << row.tool;
            }
        }
        EXPECT_FALSE(Changed());
    }
};

TEST_F(PageCommands, OfAnActiveDirectoryDocument) {
    Start(kActiveDirectory);
    ExpectEach({{"ID_BTN_GENERAL", "General", 0, "Key1", {}},
                {"ID_BTN_AD", "Active Directory", 1, "Key2", {}},
                {"ID_BTN_EMAIL", "Email Output", 4, "Key41", {}},
                {"ID_BTN_FILE", "File Output", 5, "Key42", {}},
                {"ID_BTN_CLIENT", "Client Pop-up", 6, "Key43", {}},
                {"ID_BTN_APP_EL", "Application Event Log", 7, "Key44", {}},
                {"ID_BTN_DEPLOYMENT", "Deployment", 16, "Key6", {}},
                {"ID_BTN_DEPLOY_GENERAL", "Deployment General", 14, "Key61", {}},
                {"ID_BTN_MDAC", "MDAC", 15, "Key62", {}},
                {"ID_BTN_PRUNE", "Prune", 12, "Key82", {"Prune"}},
                {"ID_BTN_POPULATE", "Populate", 17, "Key81", {"Populate"}},
                {"ID_BTN_SET_DEFAULT", "Set Default", 18, "Key9", {"DefaultPrinters"}},
                {"ID_BTN_DRIVERS", "Drivers", 19, "Key10", {"Drivers"}},
                {"ID_BTN_SUPPORT", "Support", 13, "Key7", {}}});
}

TEST_F(PageCommands, OfAManualDocument) {
    Start(kManual);
    ExpectEach({{"ID_BTN_GENERAL", "General", 0, "Key1", {}},
                {"ID_BTN_SERVER", "Server To Server", 2, "Key31", {}},
                {"ID_BTN_PRINTER", "Printer To Printer", 10, "Key32", {}},
                {"ID_BTN_MIXED", "Mixed Server And Printer", 11, "Key33", {}},
                {"ID_BTN_EMAIL", "Email Output", 4, "Key41", {}},
                {"ID_BTN_FILE", "File Output", 5, "Key42", {}},
                {"ID_BTN_CLIENT", "Client Pop-up", 6, "Key43", {}},
                {"ID_BTN_APP_EL", "Application Event Log", 7, "Key44", {}},
                {"ID_BTN_DEPLOYMENT", "Deployment", 14, "Key6", {}},
                {"ID_BTN_PRUNE", "Prune", 12, "Key82", {"Prune"}},
                {"ID_BTN_POPULATE", "Populate", 17, "Key81", {"Populate"}},
                {"ID_BTN_SET_DEFAULT", "Set Default", 18, "Key9", {"DefaultPrinters"}},
                {"ID_BTN_DRIVERS", "Drivers", 19, "Key10", {"Drivers"}},
                {"ID_BTN_SUPPORT", "Support", 13, "Key7", {}}});
}

TEST_F(PageCommands, AnyOtherToolDoesNothing) {
    Start(kManual);
    GoTo(4);
    PreparationProbe probe(*window);
    probe.Arm();
    for (const char* tool : {"", "ID_MNU_FILE", "ID_BTN_NONE", "id_btn_general"}) {
        window->ssaQueueshift_ToolClick(tool);
        EXPECT_EQ(CurrentPage(), 4) << tool;
    }
    EXPECT_EQ(probe.Ran(), Texts{});
}

const FileDialog kSaveDialog{true, "Save INI file As ...", "UNTITLED.INI",
                             "Queueshift (*.ini)|*.ini"};
const FileDialog kOpenDialog{false, "Open INI File ...", "", "Queueshift (*.ini)|*.ini"};

const platform::Message kNothingToSave{
    "At least one of the Manual Configurations or Maintenace methods must have data. Please enter "
    "at least one set of Manual data before saving.",
    "Error Saving", platform::Buttons::Ok, platform::Icon::Critical};

TEST_F(Commands, SaveAndSaveAsNeedACompleteDocument) {
    Start(kManual);
    const test::TemporaryFolder folder;
    modINIDocument::g_strINIFilePath = folder.File("kept.ini");
    modINIDocument::g_strINIFileTitle = "kept.ini";
    test::WriteBytes(folder.File("kept.ini"), "[GENERAL]\r\n");
    modINIDocument::g_bolDocumentChanged = true;
    for (const char* tool : {"ID_BTN_SAVE", "ID_BTN_SAVE_AS"}) {
        window->SetTitle("stale");
        ModalScript dialogs;
        dialogs.ExpectMessage(kNothingToSave);
        window->ssaQueueshift_ToolClick(tool);
        EXPECT_EQ(test::ReadBytes(folder.File("kept.ini")), "[GENERAL]\r\n");
        EXPECT_TRUE(Changed());
        EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [kept.ini]");
    }
}

TEST_F(Commands, SaveAsksForANameOnceAndTheCaptionFollows) {
    Start(kManual);
    const test::TemporaryFolder folder;
    Tick(window, "chkDeleteNonNetworked");
    EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [UNTITLED]");
    ModalScript dialogs;
    dialogs.ExpectFileDialog(kSaveDialog, folder.File("Sites.ini"));
    ChooseEntry(0, "Save");
    EXPECT_TRUE(dialogs.Done());
    EXPECT_FALSE(Changed());
    EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [Sites.ini]");
    EXPECT_NE(test::ReadBytes(folder.File("Sites.ini")).find("DeleteAllNonNetworked=True\r\n"),
              std::string::npos);
    Tick(window, "chkDeleteNonNetworked", false);
    Tick(window, "chkDeleteNonNetworked");
    Tick(window, "chkAlwaysRun");
    ChooseEntry(0, "Save");
    EXPECT_NE(test::ReadBytes(folder.File("Sites.ini")).find("AlwaysRun=True\r\n"),
              std::string::npos);
}

TEST_F(Commands, SaveOfACleanDocumentDoesNothing) {
    Start(kManual);
    PutItems(window, "lstServerPairs", {"A -> B"});
    const ModalScript noDialogs;
    ChooseEntry(0, "Save");
    EXPECT_EQ(modINIDocument::g_strINIFilePath, "");
}

TEST_F(Commands, SaveAsOffersTheUntitledNameAndKeepsTheCaptionWhenCancelled) {
    Start(kManual);
    const test::TemporaryFolder folder;
    PutItems(window, "lstServerPairs", {"A -> B"});
    ModalScript dialogs;
    dialogs.ExpectFileDialog(kSaveDialog, folder.File("One.ini"));
    ChooseEntry(0, "Save As ...");
    EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [One.ini]");
    dialogs.ExpectFileDialog(kSaveDialog, "");
    ChooseEntry(0, "Save As ...");
    EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [One.ini]");
    EXPECT_TRUE(dialogs.Done());
}

TEST_F(Commands, OpenShowsTheFileAndItsName) {
    Start(kManual);
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File("ad.ini"), "[GENERAL]\r\nUseActiveDirectory=True\r\n"
                                            "UseManualDefinitions=False\r\nAlwaysRun=True\r\n"
                                            "ShowProgress=False\r\n");
    GoTo(4);
    Enter(window, "cboDomainName", "old.example");
    ForgetChanges();
    modINIDocument::g_Document.ReadFailed = false;
    ModalScript dialogs;
    dialogs.ExpectFileDialog(kOpenDialog, folder.File("ad.ini"));
    // The keys that this file lacks are flags that cannot be read.
    dialogs.ExpectMessage({"Unable to read INI file. Please check your permissions to the folder "
                           "and file you are attempting to read.",
                           "Write Error", platform::Buttons::Ok, platform::Icon::Critical});
    ChooseEntry(0, "Open ...");
    EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [ad.ini]");
    EXPECT_EQ(TextIn(window, "cboConfigurationFileType"), "Active Directory");
    EXPECT_TRUE(IsTicked(window, "chkAlwaysRun"));
    EXPECT_FALSE(IsTicked(window, "chkShowProgress"));
    EXPECT_EQ(TextIn(window, "cboDomainName"), "");
    EXPECT_EQ(CurrentPage(), 0);
    EXPECT_FALSE(Changed());
}

TEST_F(Commands, NewStartsADocumentOfTheChosenType) {
    Start(kActiveDirectory);
    modINIDocument::g_strINIFilePath = "somewhere";
    modINIDocument::g_strINIFileTitle = "some.ini";
    for (const DocumentType type : {kManual, kActiveDirectory}) {
        GoTo(4);
        ModalScript dialogs;
        dialogs.ExpectDialog<frmNewINI>([type](frmNewINI& dialog) {
            EXPECT_TRUE(dialog.optUseActiveDirectory->GetValue());
            (type == kActiveDirectory ? dialog.optUseActiveDirectory
                                      : dialog.optUseManualConfiguration)
                ->SetValue(true);
            frmNewINI::g_bolCancelPressed = false;
            return static_cast<int>(wxID_OK);
        });
        ChooseEntry(0, "New");
        EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [UNTITLED]");
        EXPECT_EQ(modINIDocument::g_strINIFilePath, "");
        EXPECT_EQ(TextIn(window, "cboConfigurationFileType"),
                  type == kManual ? "Manual Configuration" : "Active Directory");
        EXPECT_EQ(CurrentPage(), 0);
        EXPECT_FALSE(Changed());
    }
}

TEST_F(Commands, TheAddingFlagsSurviveNew) {
    Start(kManual);
    window->servers->m_bolNewServerPair = false;
    window->prune->m_bolNewPrune = false;
    ModalScript dialogs;
    dialogs.ExpectDialog<frmNewINI>([](frmNewINI&) {
        frmNewINI::g_bolCancelPressed = false;
        return static_cast<int>(wxID_OK);
    });
    ChooseEntry(0, "New");
    EXPECT_FALSE(window->servers->m_bolNewServerPair);
    EXPECT_FALSE(window->prune->m_bolNewPrune);
    EXPECT_TRUE(window->mixed->m_bolNewMixedPair);
}

TEST_F(Commands, AboutShowsTheAboutBox) {
    Start(kManual);
    ModalScript dialogs;
    dialogs.ExpectLive<frmAbout>([this](frmAbout& box) {
        // In the caption as well, where the system shows one there.
        EXPECT_EQ(box.GetIcons().GetIconCount(), window->GetIcons().GetIconCount());
        EXPECT_GT(box.GetIcons().GetIconCount(), 0U);
        Screenshot("about", &box);
        box.cmdOK_Click();
    });
    Show();
    ChooseEntry(2, "About Queueshift Deployment Toolkit ...");
    EXPECT_TRUE(dialogs.Done());
}

TEST_F(Commands, CtrlNOpensTheNewDocumentDialogByKeyboard) {
    Start(kManual);
    Show();
    FocusOn(Find(window, "chkAlwaysRun"));
    ModalScript dialogs;
    dialogs.ExpectDialog<frmNewINI>([](frmNewINI&) {
        frmNewINI::g_bolCancelPressed = true;
        return static_cast<int>(wxID_CANCEL);
    });
    Press('N', wxMOD_CONTROL);
    EXPECT_TRUE(WaitFor([&] { return dialogs.Done(); }, "the new-document dialog"));
}

TEST_F(Commands, CtrlSSavesByKeyboard) {
    Start(kManual);
    const test::TemporaryFolder folder;
    PutItems(window, "lstServerPairs", {"A -> B"});
    modINIDocument::g_strINIFilePath = folder.File("kept.ini");
    modINIDocument::g_strINIFileTitle = "kept.ini";
    Show();
    FocusOn(Find(window, "chkAlwaysRun"));
    Press(WXK_SPACE);
    ASSERT_TRUE(WaitFor([] { return Changed(); }, "the click by keyboard"));
    Press('S', wxMOD_CONTROL);
    WaitFor([] { return !Changed(); }, "the save");
    EXPECT_NE(test::ReadBytes(folder.File("kept.ini")).find("FromServers=A\r\n"),
              std::string::npos);
}

} // namespace
} // namespace window_test
