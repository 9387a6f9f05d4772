// Names that are no UTF-8, as old shares and archives bring them along: shown as well as can be,
// and opened.

#include "tests/files/new_ini_dialog_test.h"

#include "platform/program.h"
#include "tests/support/files.h"

namespace window_test {
namespace {

constexpr const char* kOldName = "caf\xE9.ini";
constexpr const char* kShown = "caf\xEF\xBF\xBD.ini";

using FileNames = NewINIDialog;

TEST_F(FileNames, AFileIsChosenByItsOwnBytes) {
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File(kOldName), "");
    dialog.OpenFolder(folder.Path());
    EXPECT_EQ(Rows(*dialog.filExistingINI), std::vector<std::string>{kShown});
    EXPECT_EQ(dialog.ExistingFileName(), "");
    dialog.filExistingINI->SetSelection(0);
    EXPECT_EQ(dialog.ExistingFileName(), kOldName);
}

TEST_F(FileNames, AFolderIsShownInTheWay) {
    const test::TemporaryFolder folder;
    const std::string inner = folder.Subfolder(kOldName);
    dialog.OpenFolder(inner);
    EXPECT_EQ(Rows(*dialog.dirExistingINI).back(), kShown);
    EXPECT_EQ(dialog.ExistingFolder(), inner);
}

} // namespace
} // namespace window_test
