// Shares of a real server: looking, putting files there, and everything that can go wrong.
#include "platform/linux/network_share.h"
#include "platform/typed_folder.h"

#include "tests/lab/shares.h"
#include "tests/support/files.h"

#include <cerrno>
#include <filesystem>
#include <sstream>

#include <gmock/gmock.h>
#include <unistd.h>

namespace lab {
namespace {

using platform::NetworkListing;
using platform::ParseNetworkPath;
using platform::TypedFolder;
using testing::ElementsAre;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;
namespace fs = std::filesystem;

constexpr const char* kRights = "system.nt_sec_desc.*";

bool Wait() {
    return true;
}

/// Who may do what with the file of the share "deploy".
std::vector<std::string> Rights(const std::string& name) {
    std::vector<std::string> rights;
    std::istringstream parts(Attribute("deploy", name, kRights));
    for (std::string part; std::getline(parts, part, ',');) {
        if (part.starts_with("ACL:")) {
            rights.push_back(part);
        }
    }
    return rights;
}

class NetworkShares : public testing::Test {
protected:
    NetworkShares() { test::WriteBytes(source_, "new"); }
    void SetUp() override {
        // The server may still be coming to itself after what an earlier test did to it.
        for (int attempt = 0; attempt < 100 && !deploy_.Exists(); ++attempt) {
            usleep(200'000);
        }
        ASSERT_TRUE(deploy_.Exists());
    }
    ~NetworkShares() override { EmptyShares(); }

    test::TemporaryFolder folder_;
    const std::string source_ = folder_.File("source");
    const TypedFolder deploy_{Share("deploy")};
};

TEST_F(NetworkShares, OnlyAFolderThatIsThereExists) {
    EXPECT_TRUE(deploy_.Exists());
    EXPECT_TRUE(TypedFolder(Share("deploy") + '\\').Exists());
    EXPECT_TRUE(TypedFolder("//DC1.corp.example/DEPLOY").Exists());
    fs::create_directories(SharePath("deploy/Büro 50% #1/inner"));
    EXPECT_TRUE(TypedFolder(Share(R"(deploy\Büro 50% #1\inner)")).Exists());
    EXPECT_TRUE(TypedFolder(Share("spare$")).Exists());
    EXPECT_FALSE(TypedFolder(Share(R"(deploy\missing)")).Exists());
    EXPECT_FALSE(TypedFolder(Share("missing")).Exists());
    EXPECT_FALSE(TypedFolder(Share("closed")).Exists());
    EXPECT_FALSE(TypedFolder(Share("")).Exists()) << "a computer is no folder";
    EXPECT_FALSE(TypedFolder(R"(\\missing.corp.example\deploy)").Exists());
    test::WriteBytes(SharePath("deploy/file"), "");
    EXPECT_FALSE(TypedFolder(Share(R"(deploy\file)")).Exists());
}

TEST_F(NetworkShares, TellWhichFilesLieThere) {
    EXPECT_FALSE(deploy_.Holds("file"));
    test::WriteBytes(SharePath("deploy/file"), "");
    fs::create_directory(SharePath("deploy/inner"));
    EXPECT_TRUE(deploy_.Holds("file"));
    EXPECT_FALSE(deploy_.Holds("inner")) << "a folder is no file";
    EXPECT_FALSE(TypedFolder(Share("")).Holds("deploy"));
}

TEST_F(NetworkShares, TakeCopiesAndTextsAndReplaceWhatWasThere) {
    for (const char* const name : {"plain", "Büro – ж.ini", "50% #1 @&;.bat"}) {
        EXPECT_FALSE(deploy_.WriteInto(name, "something longer than the new one")) << name;
        EXPECT_FALSE(deploy_.CopyInto(source_, name)) << name;
        EXPECT_EQ(test::ReadBytes(SharePath("deploy/") + name), "new");
        EXPECT_FALSE(deploy_.WriteInto(name, {"a\0b\r\n", 5})) << name;
        EXPECT_EQ(test::ReadBytes(SharePath("deploy/") + name), std::string_view("a\0b\r\n", 5));
    }
    EXPECT_EQ(EntryCount("deploy"), 3) << "nothing else is left there";
}

TEST_F(NetworkShares, ALargeFileArrivesWholeAndAsOldAsItsSource) {
    std::string bytes;
    for (int i = 0; bytes.size() < 40'000'000; ++i) {
        bytes += std::to_string(i);
    }
    test::WriteBytes(source_, bytes);
    const auto then = fs::file_time_type::clock::now() - std::chrono::hours(48);
    fs::last_write_time(source_, then);
    EXPECT_FALSE(deploy_.CopyInto(source_, "large"));
    EXPECT_TRUE(test::ReadBytes(SharePath("deploy/large")) == bytes);
    const auto difference = fs::last_write_time(SharePath("deploy/large")) - then;
    EXPECT_LT(std::chrono::abs(difference), std::chrono::seconds(3));
}

TEST_F(NetworkShares, AReadOnlyTargetStaysAsItIs) {
    test::WriteBytes(SharePath("deploy/file"), "old");
    MakeReadOnly("deploy", "file");
    EXPECT_EQ(deploy_.CopyInto(source_, "file").number, EACCES);
    EXPECT_EQ(deploy_.WriteInto("file", "new").number, EACCES);
    EXPECT_EQ(test::ReadBytes(SharePath("deploy/file")), "old");
    EXPECT_EQ(EntryCount("deploy"), 1);
}

TEST_F(NetworkShares, AReplacedFileKeepsItsRights) {
    EXPECT_FALSE(deploy_.WriteInto("file", "old"));
    const auto usual = Rights("file");
    // Everybody may do everything, guests may not read it.
    SetAttribute("deploy", "file", kRights,
                 "REVISION:1,ACL:S-1-1-0:0/0/2032127,ACL:S-1-5-32-546:1/0/1179785");
    ASSERT_THAT(Rights("file"), UnorderedElementsAre("ACL:S-1-1-0:0/0/0x001f01ff",
                                                     "ACL:S-1-5-32-546:1/0/0x00120089"));
    const auto rights = Rights("file");
    EXPECT_FALSE(deploy_.CopyInto(source_, "file"));
    EXPECT_EQ(test::ReadBytes(SharePath("deploy/file")), "new");
    EXPECT_THAT(Rights("file"), UnorderedElementsAreArray(rights));
    EXPECT_FALSE(deploy_.WriteInto("file", "newer"));
    EXPECT_THAT(Rights("file"), UnorderedElementsAreArray(rights));
    EXPECT_FALSE(deploy_.WriteInto("other", "new"));
    EXPECT_EQ(Rights("other"), usual) << "a new file has its folder's";
    EXPECT_EQ(EntryCount("deploy"), 2);
}

TEST_F(NetworkShares, AComputerThatNobodyKnowsIsCalledThat) {
    const std::string missing = R"(\\missing.corp.example\deploy)";
    EXPECT_EQ(TypedFolder(missing).CopyInto(source_, "file").number, ENONET);
    EXPECT_EQ(platform::ListNetwork(*ParseNetworkPath(missing), Wait).error.number, ENONET);
}

TEST_F(NetworkShares, ANameThatNoShareCanHoldIsRefused) {
    fs::create_directory(SharePath("deploy/inner"));
    for (const auto* const name : {"inner\\file", "a\"b.ini", "a\nb.ini", "a:b.ini"}) {
        EXPECT_EQ(deploy_.CopyInto(source_, name).number, EINVAL) << name;
        EXPECT_EQ(deploy_.WriteInto(name, "new").number, EINVAL) << name;
    }
    EXPECT_EQ(EntryCount("deploy"), 1);
    EXPECT_EQ(EntryCount("deploy/inner"), 0);
}

TEST_F(NetworkShares, AFolderInThePlaceOfTheTargetStays) {
    fs::create_directory(SharePath("deploy/file"));
    EXPECT_TRUE(deploy_.CopyInto(source_, "file"));
    EXPECT_TRUE(deploy_.WriteInto("file", "new"));
    EXPECT_TRUE(fs::is_directory(SharePath("deploy/file")));
    EXPECT_EQ(EntryCount("deploy"), 1);
}

TEST_F(NetworkShares, WhereNobodyMayWriteNothingChanges) {
    test::WriteBytes(SharePath("fixed/file"), "old");
    EXPECT_TRUE(TypedFolder(Share("fixed")).Exists());
    for (const auto* const share : {"fixed", "closed"}) {
        const TypedFolder folder(Share(share));
        EXPECT_EQ(folder.CopyInto(source_, "file").number, EACCES) << share;
        EXPECT_EQ(folder.WriteInto("new", "new").number, EACCES) << share;
    }
    EXPECT_EQ(test::ReadBytes(SharePath("fixed/file")), "old");
    EXPECT_EQ(EntryCount("fixed"), 1);
    EXPECT_EQ(EntryCount("closed"), 0);
}

TEST_F(NetworkShares, AMissingSourceFailsAndTheTargetStays) {
    test::WriteBytes(SharePath("deploy/file"), "old");
    EXPECT_EQ(deploy_.CopyInto(folder_.File("missing"), "file").number, ENOENT);
    EXPECT_TRUE(deploy_.CopyInto(folder_.Path(), "file"));
    EXPECT_EQ(test::ReadBytes(SharePath("deploy/file")), "old");
    EXPECT_EQ(EntryCount("deploy"), 1);
}

TEST_F(NetworkShares, WithoutATicketTheUserIsAGuest) {
    const WithoutTicket none;
    EXPECT_TRUE(TypedFolder(Share("guests")).Exists());
    EXPECT_FALSE(TypedFolder(Share("guests")).CopyInto(source_, "file"));
    EXPECT_EQ(test::ReadBytes(SharePath("guests/file")), "new");
    EXPECT_FALSE(deploy_.Exists());
    EXPECT_EQ(deploy_.CopyInto(source_, "file").number, EACCES);
    EXPECT_EQ(EntryCount("deploy"), 0);
}

TEST_F(NetworkShares, WhoOpensTheTargetMeanwhileFindsTheOldFileOrTheNewOne) {
    const std::string one(3'000'000, '1');
    const std::string two(2'000'000, '2');
    ASSERT_FALSE(deploy_.WriteInto("engine", one));
    Reader reader(Share("deploy"), "engine", {one, two});
    for (int round = 0; round < 10; ++round) {
        EXPECT_FALSE(deploy_.WriteInto("engine", round % 2 == 0 ? two : one));
    }
    const auto seen = reader.Stop();
    EXPECT_EQ(seen.faults, "");
    EXPECT_GT(seen.whole, 4);
}

TEST_F(NetworkShares, AServerThatDropsTheConnectionLeavesTheOldFile) {
    test::WriteBytes(SharePath("deploy/file"), "old");
    fs::resize_file(source_, 600'000'000);
    MidCopy act("deploy", [] { Control("drop-clients"); });
    EXPECT_TRUE(
        TypedFolder(Share("deploy"), [&act] { return act.Look(); }).CopyInto(source_, "file"));
    EXPECT_TRUE(act.Done());
    EXPECT_EQ(test::ReadBytes(SharePath("deploy/file")), "old");
}

TEST_F(NetworkShares, AServerThatFallsSilentEndsTheCopyInTheEnd) {
    test::WriteBytes(SharePath("deploy/file"), "old");
    fs::resize_file(source_, 600'000'000);
    MidCopy act("deploy", [] { Control("freeze"); });
    EXPECT_TRUE(
        TypedFolder(Share("deploy"), [&act] { return act.Look(); }).CopyInto(source_, "file"));
    EXPECT_TRUE(act.Done());
    EXPECT_FALSE(deploy_.Exists()) << "looking ends as well";
    Control("thaw");
    EXPECT_EQ(test::ReadBytes(SharePath("deploy/file")), "old");
    EXPECT_TRUE(deploy_.Exists());
}

TEST_F(NetworkShares, ASourceThatShrinksInTheMiddleLeavesTheOldFile) {
    test::WriteBytes(SharePath("deploy/file"), "old");
    fs::resize_file(source_, 600'000'000);
    MidCopy act("deploy", [this] { fs::resize_file(source_, 1000); });
    EXPECT_EQ(TypedFolder(Share("deploy"), [&act] { return act.Look(); })
                  .CopyInto(source_, "file")
                  .number,
              EIO);
    EXPECT_TRUE(act.Done());
    EXPECT_EQ(test::ReadBytes(SharePath("deploy/file")), "old");
    EXPECT_EQ(EntryCount("deploy"), 1);
}

TEST_F(NetworkShares, ACopyThatIsAbandonedLeavesTheOldFile) {
    test::WriteBytes(SharePath("deploy/file"), "old");
    fs::resize_file(source_, 600'000'000);
    MidCopy act("deploy", [] {});
    EXPECT_TRUE(TypedFolder(Share("deploy"), [&act] {
                    return act.Look() && !act.Done();
                }).CopyInto(source_, "file"));
    EXPECT_EQ(test::ReadBytes(SharePath("deploy/file")), "old");
}

TEST_F(NetworkShares, AFullDiskOfTheServerLeavesTheOldFile) {
    const SmallDisk disk(SharePath("deploy/small"));
    const TypedFolder small(Share(R"(deploy\small)"));
    EXPECT_FALSE(small.WriteInto("file", "old"));
    fs::resize_file(source_, 8'000'000);
    EXPECT_EQ(small.CopyInto(source_, "file").number, ENOSPC);
    EXPECT_EQ(test::ReadBytes(SharePath("deploy/small/file")), "old");
    EXPECT_EQ(EntryCount("deploy/small"), 1) << "the half file is gone";
}

TEST_F(NetworkShares, AShareThatWasRemovedIsNotFound) {
    test::WriteBytes(SharePath("spare$/file"), "old");
    const TypedFolder spare(Share("spare$"));
    EXPECT_TRUE(spare.Holds("file"));
    Control("remove-share spare$");
    EXPECT_FALSE(spare.Exists());
    EXPECT_EQ(spare.CopyInto(source_, "file").number, ENOENT);
    Control("restore-shares");
    EXPECT_TRUE(spare.Holds("file"));
}

TEST_F(NetworkShares, AComputerListsItsSharesAndAShareItsFolders) {
    const NetworkListing shares = platform::ListNetwork(*ParseNetworkPath(Share("")), Wait);
    EXPECT_EQ(shares.error.number, 0);
    EXPECT_THAT(shares.names,
                ElementsAre("closed", "deploy", "fixed", "guests", "netlogon", "sysvol"));
    fs::create_directories(SharePath("deploy/b/inner"));
    fs::create_directories(SharePath("deploy/Äpfel & Co"));
    fs::create_directories(SharePath("deploy/A"));
    test::WriteBytes(SharePath("deploy/file"), "");
    EXPECT_THAT(platform::ListNetwork(*ParseNetworkPath(Share("deploy")), Wait).names,
                ElementsAre("A", "b", "Äpfel & Co"));
    EXPECT_THAT(platform::ListNetwork(*ParseNetworkPath(Share(R"(deploy\b)")), Wait).names,
                ElementsAre("inner"));
}

TEST_F(NetworkShares, AListingThatFailsSaysWhy) {
    EXPECT_EQ(platform::ListNetwork(*ParseNetworkPath(Share("closed")), Wait).error.number, EACCES);
    EXPECT_EQ(platform::ListNetwork(*ParseNetworkPath(Share("missing")), Wait).error.number,
              ENOENT);
    EXPECT_EQ(
        platform::ListNetwork(*ParseNetworkPath(R"(\\missing.corp.example)"), Wait).error.number,
        ENONET);
}

} // namespace
} // namespace lab
