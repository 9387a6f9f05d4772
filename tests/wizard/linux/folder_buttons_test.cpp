// The folder buttons of the pages open their own picker: only deployment browses the network.
#include "platform/ui/linux/network_folder_dialog.h"
#include "tests/wizard/wizard_test.h"

namespace window_test {
namespace {

constexpr const char* kLocalPicker = "Please select a folder.";

class FolderButtons : public WizardTest {
protected:
    void ExpectLocalPicker(const char* button, const char* field) {
        const test::TemporaryFolder folder;
        ModalScript dialogs;
        dialogs.ExpectFolderDialog(kLocalPicker, "");
        Push(window, button);
        EXPECT_EQ(TextIn(window, field), "") << button;
        dialogs.ExpectFolderDialog(kLocalPicker, folder.Path());
        Push(window, button);
        EXPECT_EQ(TextIn(window, field), folder.Path()) << button;
    }
};

TEST_F(FolderButtons, OpenThePickerOfTheirPage) {
    Start(kManual);
    Tick(window, "chkUseFileOutput");
    ExpectLocalPicker("cmdBrowseFileOutput", "txtFileOutputPath");
    ExpectLocalPicker("cmdBrowseDriverSharePath", "txtDriverSharePath");
}

TEST_F(FolderButtons, DeploymentBrowsesTheNetwork) {
    Start(kManual);
    ModalScript dialogs;
    dialogs.ExpectDialog<platform::ui::NetworkFolderDialog>([](auto&) { return wxID_CANCEL; });
    Push(window, "cmdBrowseDeployment");
    EXPECT_EQ(TextIn(window, "txtNetworkSharePath"), "");
    dialogs.ExpectDialog<platform::ui::NetworkFolderDialog>([](auto& dialog) {
        // The port is closed: the computer stands there to be picked, and nothing in it.
        dialog.txtComputer->SetValue("127.0.0.255");
        window_test::Push(&dialog, "cmdShow");
        return wxID_OK;
    });
    Push(window, "cmdBrowseDeployment");
    EXPECT_EQ(TextIn(window, "txtNetworkSharePath"), "\\\\127.0.0.255");
}

} // namespace
} // namespace window_test
