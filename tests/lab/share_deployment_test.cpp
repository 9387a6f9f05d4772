// From the wizard to a share: the folder browsed, checked, and deployed to.
#include "platform/message.h"
#include "platform/program.h"
#include "platform/ui/linux/network_folder_dialog.h"
#include "tests/lab/shares.h"
#include "tests/support/window/screenshot.h"
#include "tests/wizard/wizard_test.h"

#include <array>
#include <filesystem>

#include <gmock/gmock.h>

namespace window_test {
namespace {

using lab::Share;
using lab::SharePath;
using platform::Buttons;
using platform::Icon;
using platform::ui::NetworkFolderDialog;
namespace fs = std::filesystem;

const platform::Message kSuccess{"Deployment successfull.", "Sucess", Buttons::Ok,
                                 Icon::Information};
const platform::Message kNoFolder{
    "The deployment folder does not exist. Please check your deployment folder and try again.",
    "Error", Buttons::Ok, Icon::Critical};
const platform::Message kIniWarning{
    "Warning: Queueshift was unable to deploy your INI file to the folder specified.\r\n\r\nThe "
    "file already exists and is currently write protected.\r\nIf you saved your INI file to the "
    "same folder as your deployment folder,\r\nthen you can ignore this warning, becuase your INI "
    "file is already deployed.\r\nIf not, then please check your file and folder permissions.",
    "INI File Write Warning", Buttons::Ok, Icon::Exclamation};

constexpr std::array kProgramFiles = {"QueueshiftEngine.exe", "MSCOMCTL.OCX", "MSWINSCK.OCX",
                                      "MDAC_TYP2.8.EXE"};

class ShareDeployment : public WizardTest {
protected:
    ShareDeployment() {
        Start(kManual);
        for (const auto* const name : kProgramFiles) {
            test::WriteBytes(Beside(name), std::string("stand-in for ") + name);
        }
        test::WriteBytes(saved_.File("Büro.ini"), "[GENERAL]\r\nShowProgress=True\r\n");
        modINIDocument::g_strINIFilePath = saved_.File("Büro.ini");
        modINIDocument::g_strINIFileTitle = "Büro.ini";
        modINIDocument::g_bolDocumentChanged = false;
    }
    ~ShareDeployment() override {
        for (const auto* const name : kProgramFiles) {
            fs::remove(Beside(name));
        }
        lab::EmptyShares();
    }

    static std::string Beside(const std::string& name) {
        return platform::JoinPath(platform::ProgramFolder(), name);
    }

    void Deploy(const std::vector<platform::Message>& boxes) {
        ModalScript dialogs;
        for (const auto& box : boxes) {
            dialogs.ExpectMessage(box);
        }
        window->cmdDeployNow_Click();
        EXPECT_TRUE(dialogs.Done());
    }

    test::TemporaryFolder saved_;
};

TEST_F(ShareDeployment, EverythingArrivesAndComparesEqual) {
    fs::create_directory(SharePath("deploy/Büro & Co"));
    PutText(window, "txtNetworkSharePath", Share(R"(deploy\Büro & Co)"));
    Tick(window, "chkCreateHTML");
    Tick(window, "chkBatchFile");
    Tick(window, "chkIncludeMDAC");
    Pick(window, "optMDACVersion(2)");
    modINIDocument::g_bolDocumentChanged = false;
    Deploy({kSuccess});
    const std::string arrived = SharePath("deploy/Büro & Co/");
    for (const auto* const name : kProgramFiles) {
        EXPECT_EQ(test::ReadBytes(arrived + name), test::ReadBytes(Beside(name))) << name;
    }
    EXPECT_EQ(test::ReadBytes(arrived + "Büro.ini"), test::ReadBytes(saved_.File("Büro.ini")));
    EXPECT_THAT(test::ReadBytes(arrived + "Büro.ini.bat"),
                testing::HasSubstr(R"(\\dc1.corp.example\deploy)"));
    EXPECT_THAT(test::ReadBytes(arrived + "Büro.ini.html"), testing::StartsWith("<"));
    EXPECT_EQ(lab::EntryCount("deploy/Büro & Co"), 7);
    Deploy({kSuccess});
    EXPECT_EQ(lab::EntryCount("deploy/Büro & Co"), 7) << "a second time over the first";
}

TEST_F(ShareDeployment, AMissingFolderAComputerAndAClosedShareAreNoFolder) {
    for (const auto* const folder : {R"(deploy\missing)", "", "closed", "missing"}) {
        PutText(window, "txtNetworkSharePath", Share(folder));
        modINIDocument::g_bolDocumentChanged = false;
        Deploy({kNoFolder});
    }
}

TEST_F(ShareDeployment, AReadOnlySettingsFileOnTheShareIsTheWarning) {
    test::WriteBytes(SharePath("deploy/Büro.ini"), "old");
    lab::MakeReadOnly("deploy", "Büro.ini");
    PutText(window, "txtNetworkSharePath", Share("deploy"));
    modINIDocument::g_bolDocumentChanged = false;
    Deploy({kIniWarning});
    EXPECT_EQ(test::ReadBytes(SharePath("deploy/Büro.ini")), "old");
    EXPECT_EQ(lab::EntryCount("deploy"), 4);
}

TEST_F(ShareDeployment, TheShareIsFoundByBrowsing) {
    fs::create_directories(SharePath("deploy/Sites/North"));
    GoTo(modWizard::kDeploymentGeneralPage);
    ModalScript dialogs;
    dialogs.ExpectLive<NetworkFolderDialog>([](NetworkFolderDialog& dialog) {
        dialog.txtComputer->SetValue("dc1.corp.example");
        Push(&dialog, "cmdShow");
        auto& tree = *dialog.tvwNetwork;
        const wxDataViewItem computer = tree.GetSelection();
        EXPECT_EQ(tree.GetChildCount(computer), 6);
        const wxDataViewItem share = tree.GetNthChild(computer, 1);
        EXPECT_EQ(tree.GetItemText(share), "deploy");
        tree.Expand(share);
        WaitFor([&] { return tree.GetItemText(tree.GetNthChild(share, 0)) == "Sites"; }, "folders");
        const wxDataViewItem sites = tree.GetNthChild(share, 0);
        tree.Expand(sites);
        WaitFor([&] { return tree.GetItemText(tree.GetNthChild(sites, 0)) == "North"; }, "folders");
        WaitFor([&] { return tree.IsEnabled(); }, "the end of the waiting");
        tree.Select(tree.GetNthChild(sites, 0));
        dialog.cmdOK->Enable();
        Pump();
        Screenshot("network-folder", &dialog);
        Push(&dialog, "cmdOK");
    });
    Push(window, "cmdBrowseDeployment");
    EXPECT_TRUE(dialogs.Done());
    EXPECT_EQ(TextIn(window, "txtNetworkSharePath"), Share(R"(deploy\Sites\North)"));
}

} // namespace
} // namespace window_test
