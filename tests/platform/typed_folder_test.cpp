#include "platform/typed_folder.h"

#include "platform/program.h"

#include "tests/support/files.h"

#include <algorithm>
#include <chrono>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

using platform::TypedFolder;
namespace fs = std::filesystem;

constexpr bool kIsPosix = fs::path::preferred_separator == '/';

class TypedFolders : public testing::Test {
protected:
    TypedFolders() { test::WriteBytes(source_, "new"); }

    test::TemporaryFolder folder_;
    test::TemporaryFolder sourceFolder_;
    const std::string source_ = sourceFolder_.File("source");
    const TypedFolder typed_{folder_.Path()};
};

TEST_F(TypedFolders, OnlyAFolderExists) {
    EXPECT_TRUE(typed_.Exists());
    test::WriteBytes(folder_.File("file"), "");
    EXPECT_FALSE(TypedFolder(folder_.File("file")).Exists());
    EXPECT_FALSE(TypedFolder(folder_.File("missing")).Exists());
    EXPECT_FALSE(TypedFolder("").Exists());
}

TEST_F(TypedFolders, BothSeparatorsLeadIntoIt) {
    const std::string inner = folder_.Subfolder("inner");
    std::string forward = inner;
    std::string backward = inner;
    std::replace(forward.begin(), forward.end(), '\\', '/');
    std::replace(backward.begin(), backward.end(), '/', '\\');
    for (const auto& typed : {forward, backward, backward + '\\', forward + '/'}) {
        EXPECT_TRUE(TypedFolder(typed).Exists()) << typed;
        EXPECT_FALSE(TypedFolder(typed).WriteInto("file", typed)) << typed;
        EXPECT_EQ(test::ReadBytes(folder_.File("inner/file")), typed);
    }
}

TEST_F(TypedFolders, TellsWhichFilesLieInIt) {
    EXPECT_FALSE(typed_.Holds("file"));
    test::WriteBytes(folder_.File("file"), "");
    EXPECT_TRUE(typed_.Holds("file"));
    EXPECT_FALSE(TypedFolder("").Holds("file"));
    std::filesystem::create_directory(folder_.File("inner"));
    EXPECT_FALSE(typed_.Holds("inner")) << "a folder is no file";
}

TEST_F(TypedFolders, AFileIsCopiedInto) {
    EXPECT_FALSE(typed_.CopyInto(source_, "copy"));
    EXPECT_EQ(test::ReadBytes(folder_.File("copy")), "new");
    EXPECT_EQ(test::ReadBytes(source_), "new");
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(TypedFolders, ACopyReplacesAnExistingFile) {
    test::WriteBytes(folder_.File("copy"), "something longer than the new one");
    EXPECT_FALSE(typed_.CopyInto(source_, "copy"));
    EXPECT_EQ(test::ReadBytes(folder_.File("copy")), "new");
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(TypedFolders, ACopyKeepsTheTimeOfItsSource) {
    const auto then = fs::file_time_type::clock::now() - std::chrono::hours(48);
    fs::last_write_time(source_, then);
    EXPECT_FALSE(typed_.CopyInto(source_, "copy"));
    const auto difference = fs::last_write_time(folder_.File("copy")) - then;
    EXPECT_LT(std::chrono::abs(difference), std::chrono::seconds(3));
}

TEST_F(TypedFolders, AnEmptyFileIsCopied) {
    test::WriteBytes(source_, "");
    EXPECT_FALSE(typed_.CopyInto(source_, "copy"));
    EXPECT_EQ(test::ReadBytes(folder_.File("copy")), "");
}

TEST_F(TypedFolders, ALargeFileIsCopiedWhole) {
    std::string bytes;
    for (int i = 0; bytes.size() < 5'000'000; ++i) {
        bytes += std::to_string(i);
    }
    test::WriteBytes(source_, bytes);
    EXPECT_FALSE(typed_.CopyInto(source_, "copy"));
    EXPECT_TRUE(test::ReadBytes(folder_.File("copy")) == bytes);
}

TEST_F(TypedFolders, AMissingSourceFailsAndTheTargetStays) {
    test::WriteBytes(folder_.File("copy"), "old");
    EXPECT_EQ(typed_.CopyInto(sourceFolder_.File("missing"), "copy").number, 2);
    EXPECT_EQ(test::ReadBytes(folder_.File("copy")), "old");
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(TypedFolders, AMissingSourceLeavesNoHalfFile) {
    EXPECT_TRUE(typed_.CopyInto(sourceFolder_.File("missing"), "copy"));
    EXPECT_EQ(folder_.EntryCount(), 0);
}

TEST_F(TypedFolders, AFolderCannotBeCopied) {
    EXPECT_TRUE(typed_.CopyInto(sourceFolder_.Path(), "copy"));
    EXPECT_EQ(folder_.EntryCount(), 0);
}

TEST_F(TypedFolders, AProtectedTargetRefusesCopiesAndTextsAndStays) {
    test::WriteBytes(folder_.File("copy"), "old");
    test::Protect(folder_.File("copy"));
    const int denied = kIsPosix ? 13 : 5; // "permission denied", "access denied"
    EXPECT_EQ(typed_.CopyInto(source_, "copy").number, denied);
    EXPECT_EQ(typed_.WriteInto("copy", "new").number, denied);
    EXPECT_EQ(test::ReadBytes(folder_.File("copy")), "old");
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(TypedFolders, AFolderInThePlaceOfTheTargetStays) {
    static_cast<void>(folder_.Subfolder("copy"));
    EXPECT_TRUE(typed_.CopyInto(source_, "copy"));
    EXPECT_TRUE(typed_.WriteInto("copy", "new"));
    EXPECT_TRUE(fs::is_directory(folder_.File("copy")));
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(TypedFolders, AFileIsNotCopiedOntoItselfHoweverItIsSpelt) {
    const int fileExists = kIsPosix ? 17 : 80;
    const std::string path = folder_.File("file");
    test::WriteBytes(path, "whole");
    const std::string inner = folder_.Subfolder("inner");
    for (const auto& typed : {folder_.Path(), folder_.Path() + "/.", inner + "/.."}) {
        EXPECT_EQ(TypedFolder(typed).CopyInto(path, "file").number, fileExists) << typed;
        EXPECT_EQ(TypedFolder(typed).CopyInto(inner + "/../file", "file").number, fileExists);
    }
    EXPECT_EQ(test::ReadBytes(path), "whole");
}

TEST_F(TypedFolders, AHardLinkIsTheSameFile) {
    test::WriteBytes(folder_.File("file"), "whole");
    fs::create_hard_link(folder_.File("file"), folder_.File("link"));
    EXPECT_EQ(typed_.CopyInto(folder_.File("file"), "link").number, kIsPosix ? 17 : 80);
    EXPECT_EQ(test::ReadBytes(folder_.File("file")), "whole");
}

TEST_F(TypedFolders, BytesAreWrittenAsTheyAre) {
    const std::string bytes("a\0b\r\n\xFF", 6);
    EXPECT_FALSE(typed_.WriteInto("file", bytes));
    EXPECT_EQ(test::ReadBytes(folder_.File("file")), bytes);
    EXPECT_FALSE(typed_.WriteInto("file", ""));
    EXPECT_EQ(test::ReadBytes(folder_.File("file")), "");
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(TypedFolders, NamesAreTakenAsTheyAre) {
    EXPECT_FALSE(typed_.WriteInto("Büro – ж 日.ini.bat", "x"));
    EXPECT_EQ(test::ReadBytes(folder_.File("Büro – ж 日.ini.bat")), "x");
}

TEST_F(TypedFolders, AMissingFolderTakesNothing) {
    const TypedFolder missing(folder_.File("missing"));
    EXPECT_TRUE(missing.CopyInto(source_, "copy"));
    EXPECT_TRUE(missing.WriteInto("file", "x"));
    EXPECT_EQ(folder_.EntryCount(), 0);
}

TEST_F(TypedFolders, NoFolderTakesNothing) {
    EXPECT_TRUE(TypedFolder("").CopyInto(source_, "queueshift-test-copy"));
    EXPECT_TRUE(TypedFolder("").WriteInto("queueshift-test-copy", "x"));
    EXPECT_FALSE(platform::PathExists(platform::JoinPath("", "queueshift-test-copy")));
}

} // namespace
