#include "platform/volumes.h"

#include "platform/program.h"

#include "tests/support/files.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

TEST(Volumes, EachOpensAFolder) {
    const auto volumes = platform::Volumes();
    ASSERT_FALSE(volumes.empty());
    for (const auto& volume : volumes) {
        EXPECT_FALSE(volume.label.empty());
        EXPECT_EQ(platform::VolumePath(volume), volume.rootPath);
    }
    EXPECT_TRUE(std::ranges::any_of(volumes, [](const auto& volume) {
        return std::filesystem::is_directory(platform::VolumePath(volume));
    }));
}

TEST(Volumes, FoldersAndFilesAreListedApartAndSorted) {
    const test::TemporaryFolder folder;
    for (const auto name : {"beta", "Alpha", "gamma.ini"}) {
        static_cast<void>(folder.Subfolder(name));
    }
    for (const auto name : {"b.ini", "A.INI", "c.Ini", "d.txt", "ini", ".ini.bak"}) {
        test::WriteBytes(folder.File(name), "");
    }
    EXPECT_EQ(platform::FoldersIn(folder.Path()), (Names{"Alpha", "beta", "gamma.ini"}));
    EXPECT_EQ(platform::FilesIn(folder.Path(), ".ini"), (Names{"A.INI", "b.ini", "c.Ini"}));
}

TEST(Volumes, AFolderThatCannotBeReadIsEmpty) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(platform::FoldersIn(folder.File("missing")), Names{});
    EXPECT_EQ(platform::FilesIn(folder.File("missing"), ".ini"), Names{});
}

TEST(Volumes, TheChainOfFoldersLeadsFromTheRoot) {
    const test::TemporaryFolder folder;
    const std::string inner = folder.Subfolder("inner");
    const Names chain = platform::FolderChain(inner);
    ASSERT_GE(chain.size(), 3u);
    EXPECT_EQ(chain.back(), inner);
    EXPECT_EQ(chain[chain.size() - 2], folder.Path());
    EXPECT_EQ(platform::LastName(chain.front()), chain.front());
    for (const auto& step : chain) {
        EXPECT_TRUE(std::filesystem::is_directory(step)) << step;
    }
}

TEST(Volumes, TheLastNameOfAPath) {
    const std::string path = platform::JoinPath(platform::JoinPath("a", "b"), "c");
    EXPECT_EQ(platform::LastName(path), "c");
    EXPECT_EQ(platform::LastName(platform::JoinPath(path, "")), "c");
    EXPECT_EQ(platform::LastName("c"), "c");
}

TEST(Volumes, TheStartFolderIsAFolderAndNoRoot) {
    const std::string start = platform::StartFolder();
    EXPECT_TRUE(std::filesystem::is_directory(start)) << start;
    EXPECT_NE(platform::LastName(start), start);
}

} // namespace
