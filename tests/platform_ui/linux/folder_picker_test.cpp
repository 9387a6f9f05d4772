// The folder pickers on Linux.

#include "files/browse.h"

#include "tests/support/files.h"
#include "tests/support/window/window_test.h"

namespace window_test {
namespace {

TEST(FolderPicker, GivesThePickedFolderOrNothing) {
    const test::TemporaryFolder folder;
    ModalScript dialogs;
    dialogs.ExpectFolderDialog("Please select a folder.", folder.Path());
    EXPECT_EQ(modBrowseForFolder::BrowseForFolder(nullptr), folder.Path());
    dialogs.ExpectFolderDialog("Please select a folder.", "");
    EXPECT_EQ(modBrowseForFolder::BrowseForFolder(nullptr), "");
}

TEST(FolderPicker, TheNetworkPickerHasItsOwnTitle) {
    const test::TemporaryFolder folder;
    ModalScript dialogs;
    dialogs.ExpectFolderDialog("Select a network computer or share.", folder.Path());
    EXPECT_EQ(modBrowseForNetworkFolder::BrowseForNetworkFolder(nullptr), folder.Path());
    dialogs.ExpectFolderDialog("Select a network computer or share.", "");
    EXPECT_EQ(modBrowseForNetworkFolder::BrowseForNetworkFolder(nullptr), "");
}

} // namespace
} // namespace window_test
