// The folder test that deployment and the page checks use.

#include "files/browse.h"

#include "tests/support/files.h"

#include <gtest/gtest.h>

namespace {

using modBrowseForFolder::FolderExists;

TEST(FolderExistsTest, TellsFoldersFromFilesAndFromNothing) {
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File("file"), "x");
    EXPECT_TRUE(FolderExists(folder.Path()));
    EXPECT_FALSE(FolderExists(folder.File("file")));
    EXPECT_FALSE(FolderExists(folder.File("missing")));
    EXPECT_FALSE(FolderExists(""));
}

TEST(FolderExistsTest, TakesATrailingBackslash) {
    const test::TemporaryFolder folder;
    EXPECT_TRUE(FolderExists(folder.Path() + "\\"));
}

} // namespace
