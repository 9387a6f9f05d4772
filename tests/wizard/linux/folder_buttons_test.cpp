// The folder buttons of the pages open their own picker: only deployment browses the network.
#include "tests/wizard/wizard_test.h"

namespace window_test {
namespace {

constexpr const char* kLocalPicker = "Please select a folder.";
constexpr const char* kNetworkPicker = "Select a network computer or share.";

class FolderButtons : public WizardTest {
protected:
    void ExpectPicker(const std::string& title, const char* button, const char* field) {
        const test::TemporaryFolder folder;
        ModalScript dialogs;
        dialogs.ExpectFolderDialog(title, "");
        Push(window, button);
        EXPECT_EQ(TextIn(window, field), "") << button;
        dialogs.ExpectFolderDialog(title, folder.Path());
        Push(window, button);
        EXPECT_EQ(TextIn(window, field), folder.Path()) << button;
    }
};

TEST_F(FolderButtons, OpenThePickerOfTheirPage) {
    Start(kManual);
    Tick(window, "chkUseFileOutput");
    ExpectPicker(kLocalPicker, "cmdBrowseFileOutput", "txtFileOutputPath");
    ExpectPicker(kNetworkPicker, "cmdBrowseDeployment", "txtNetworkSharePath");
    ExpectPicker(kLocalPicker, "cmdBrowseDriverSharePath", "txtDriverSharePath");
}

} // namespace
} // namespace window_test
