#include "platform/profile.h"
#include "platform/program.h"
#include "platform/typed_folder.h"

#include "tests/platform/linux/as_nobody.h"
#include "tests/support/files.h"

#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

using platform::TypedFolder;
using platform::profile::Update;
namespace fs = std::filesystem;

class ReplacedFiles : public testing::Test {
protected:
    ReplacedFiles() { chmod(folder_.Path().c_str(), 0777); }

    static struct stat StatusOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return status;
    }
    static int Set(const std::string& path) {
        Update update(path);
        const int error = update.Write("a", "k", "2");
        return error != 0 ? error : update.Commit();
    }
    std::string Settings(mode_t mode) {
        const std::string path = folder_.File("Sites.ini");
        test::WriteBytes(path, "[a]\r\nk=1\r\n");
        chmod(path.c_str(), mode);
        return path;
    }

    test::TemporaryFolder folder_;
};

constexpr std::string_view kChanged = "[a]\r\nk=2\r\n";

TEST_F(ReplacedFiles, KeepTheirPermissions) {
    for (const mode_t mode : {0600u, 0640u, 0664u, 0777u}) {
        const std::string path = Settings(mode);
        EXPECT_EQ(Set(path), 0);
        EXPECT_EQ(StatusOf(path).st_mode & 07777, mode);
        EXPECT_EQ(test::ReadBytes(path), kChanged);
    }
}

TEST_F(ReplacedFiles, KeepTheirOwner) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root may give files away";
    }
    const std::string path = Settings(0640);
    ASSERT_EQ(chown(path.c_str(), 1234, 5678), 0);
    EXPECT_EQ(Set(path), 0);
    EXPECT_EQ(StatusOf(path).st_uid, 1234u);
    EXPECT_EQ(StatusOf(path).st_gid, 5678u);
}

TEST_F(ReplacedFiles, StayWhenTheirSourceEndsBeforeItsSize) {
    const std::string source =
        "/sys/kernel/uevent_seqnum"; // a page long, it says, and holds a line
    ASSERT_GT(StatusOf(source).st_size, 100);
    const std::string path = Settings(0644);
    EXPECT_EQ(TypedFolder(folder_.Path()).CopyInto(source, "Sites.ini").number, EIO);
    EXPECT_EQ(test::ReadBytes(path), "[a]\r\nk=1\r\n");
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(ReplacedFiles, AreReachedThroughSymbolicLinksThatStay) {
    const std::string path = Settings(0644);
    const std::string inner = folder_.Subfolder("inner");
    fs::create_symlink("../Sites.ini", inner + "/relative");
    fs::create_symlink(inner + "/relative", folder_.File("link.ini"));
    EXPECT_EQ(Set(folder_.File("link.ini")), 0);
    EXPECT_TRUE(fs::is_symlink(folder_.File("link.ini")));
    EXPECT_TRUE(fs::is_symlink(inner + "/relative"));
    EXPECT_EQ(test::ReadBytes(path), kChanged);
}

TEST_F(ReplacedFiles, ALinkThatLeadsNowhereYetGetsItsFile) {
    fs::create_symlink("new.ini", folder_.File("link.ini"));
    EXPECT_EQ(Set(folder_.File("link.ini")), 0);
    EXPECT_TRUE(fs::is_symlink(folder_.File("link.ini")));
    EXPECT_EQ(test::ReadBytes(folder_.File("new.ini")), kChanged);
}

TEST_F(ReplacedFiles, ALoopOfLinksIsAnError) {
    fs::create_symlink("b", folder_.File("a"));
    fs::create_symlink("a", folder_.File("b"));
    EXPECT_EQ(Set(folder_.File("a")), ELOOP);
    EXPECT_EQ(TypedFolder(folder_.Path()).WriteInto("a", "x").number, ELOOP);
    EXPECT_EQ(folder_.EntryCount(), 2);
}

TEST_F(ReplacedFiles, WithoutAnyWriteBitAreProtectedFromRootToo) {
    const std::string path = Settings(0444);
    EXPECT_EQ(Set(path), EACCES);
    EXPECT_EQ(test::ReadBytes(path), "[a]\r\nk=1\r\n");
    EXPECT_EQ(TypedFolder(folder_.Path()).WriteInto("Sites.ini", "x").description,
              "Permission denied");
}

TEST_F(ReplacedFiles, ThatTheUserMayNotWriteAreProtectedThoughTheFolderIsNot) {
    const std::string path = Settings(0644);
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs a file of another user";
    }
    const test::AsNobody nobody;
    EXPECT_TRUE(platform::IsWriteProtected(path));
    EXPECT_EQ(Set(path), EACCES);
    EXPECT_EQ(TypedFolder(folder_.Path()).WriteInto("Sites.ini", "x").number, EACCES);
    EXPECT_EQ(test::ReadBytes(path), "[a]\r\nk=1\r\n");
}

TEST_F(ReplacedFiles, InAFolderThatTakesNoFilesStayAsTheyWere) {
    const std::string path = Settings(0666);
    chmod(folder_.Path().c_str(), 0555);
    const test::AsNobody nobody;
    EXPECT_EQ(Set(path), EACCES);
    EXPECT_EQ(test::ReadBytes(path), "[a]\r\nk=1\r\n");
}

TEST_F(ReplacedFiles, NewFilesFollowTheUsersMask) {
    const mode_t old = umask(027);
    EXPECT_EQ(Set(folder_.File("new.ini")), 0);
    umask(old);
    EXPECT_EQ(StatusOf(folder_.File("new.ini")).st_mode & 0777, 0640u);
}

TEST_F(ReplacedFiles, CopiesHaveThePermissionsOfTheirSource) {
    test::WriteBytes(folder_.File("source"), "x");
    const mode_t old = umask(022);
    for (const mode_t mode : {0755u, 0600u}) {
        chmod(folder_.File("source").c_str(), mode);
        const std::string name = "copy" + std::to_string(mode);
        EXPECT_FALSE(TypedFolder(folder_.Path()).CopyInto(folder_.File("source"), name));
        EXPECT_EQ(StatusOf(folder_.File(name)).st_mode & 0777, mode);
    }
    umask(old);
}

TEST_F(ReplacedFiles, ReadersOfTheOldFileKeepIt) {
    const std::string path = Settings(0644);
    const auto before = StatusOf(path).st_ino;
    EXPECT_EQ(Set(path), 0);
    EXPECT_NE(StatusOf(path).st_ino, before) << "written in place, a reader could see half";
}

TEST_F(ReplacedFiles, MayHaveTheLongestName) {
    const std::string path = folder_.File(std::string(251, 'x') + ".ini");
    EXPECT_EQ(Set(path), 0);
    EXPECT_EQ(test::ReadBytes(path), kChanged);
    EXPECT_EQ(Set(folder_.File(std::string(256, 'x'))), ENAMETOOLONG);
}

TEST_F(ReplacedFiles, APipeIsNeitherReadNorReplaced) {
    const std::string path = folder_.File("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    EXPECT_EQ(Set(path), EINVAL);
    EXPECT_EQ(platform::profile::Reader(path).Read("a", "k", 10).error, EINVAL);
    EXPECT_TRUE(TypedFolder(folder_.Path()).CopyInto(path, "copy"));
    EXPECT_TRUE(fs::is_fifo(path));
}

TEST_F(ReplacedFiles, AFileThatMayNotBeReadFailsEveryRead) {
    const std::string path = Settings(0200);
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs a file of another user";
    }
    const test::AsNobody nobody;
    EXPECT_EQ(platform::profile::Reader(path).Read("a", "k", 10).error, EACCES);
}

TEST_F(ReplacedFiles, AFileBeyondAllReasonIsNotLoaded) {
    const std::string path = folder_.File("huge.ini");
    test::WriteBytes(path, "[a]\r\n");
    fs::resize_file(path, 20'000'000);
    EXPECT_EQ(platform::profile::Reader(path).Read("a", "k", 10).error, EFBIG);
    EXPECT_EQ(Set(path), EFBIG);
    EXPECT_EQ(fs::file_size(path), 20'000'000u);
    // Nor is memory made ready for as much as a file with holes claims to hold.
    fs::resize_file(path, std::uintmax_t{1} << 42);
    EXPECT_EQ(platform::profile::Reader(path).Read("a", "k", 10).error, EFBIG);
    EXPECT_EQ(Set(path), EFBIG);
}

TEST_F(ReplacedFiles, AFileOfAVirtualFileSystemIsCopiedWhole) {
    EXPECT_FALSE(TypedFolder(folder_.Path()).CopyInto("/proc/self/status", "copy"));
    EXPECT_NE(test::ReadBytes(folder_.File("copy")).find("Name:"), std::string::npos);
}

TEST(TypedNetworkPaths, NeverMeanALocalFolder) {
    for (const auto typed : {"//tmp", "\\\\tmp", "/\\tmp", "\\/tmp", "//", "///tmp"}) {
        EXPECT_FALSE(TypedFolder(typed).Exists()) << typed;
        EXPECT_FALSE(TypedFolder(typed).Holds(".")) << typed;
        EXPECT_EQ(TypedFolder(typed).WriteInto("queueshift-test", "x").number, ENOENT) << typed;
    }
    EXPECT_TRUE(TypedFolder("\\tmp").Exists());
    EXPECT_TRUE(TypedFolder("/").Exists());
}

TEST(TypedNames, KeepABackslash) {
    const test::TemporaryFolder folder;
    EXPECT_FALSE(TypedFolder(folder.Path()).WriteInto("a\\b", "x"));
    EXPECT_EQ(test::ReadBytes(folder.Path() + "/a\\b"), "x");
}

TEST(SameFile, IsFoundThroughSymbolicLinks) {
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File("file"), "whole");
    fs::create_symlink("file", folder.File("link"));
    fs::create_directory_symlink(folder.Path(), folder.File("here"));
    EXPECT_EQ(TypedFolder(folder.Path()).CopyInto(folder.File("file"), "link").number, EEXIST);
    EXPECT_EQ(TypedFolder(folder.File("here")).CopyInto(folder.File("file"), "file").number,
              EEXIST);
    EXPECT_EQ(test::ReadBytes(folder.File("file")), "whole");
}

} // namespace
