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

} // namespace
} // namespace window_test
