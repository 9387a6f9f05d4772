// Whatever the system does in the middle of a save or a copy, the file is the old one or the new
// one, whole.
#include "platform/profile.h"
#include "platform/typed_folder.h"

#include "tests/platform/linux/as_nobody.h"
#include "tests/platform/linux/faults.h"
#include "tests/platform/linux/small_disk.h"
#include "tests/support/files.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {

using platform::TypedFolder;
using platform::profile::Update;
using test::Fault;
using test::PlannedFault;
namespace fs = std::filesystem;

/// A way to change a file, and what the file holds before and after.
struct Change {
    std::string before;
    std::string after;
    std::function<int()> make; ///< 0 or errno
};

class Faults : public testing::TestWithParam<const char*> {
protected:
    Faults() {
        std::string bytes(300'000, 'n');
        test::WriteBytes(elsewhere_.File("source"), bytes);
        const std::string kind = GetParam();
        if (kind == "Save") {
            change_ = {"[a]\r\nk=1\r\n", "[a]\r\nk=2\r\n", [this] {
                           Update update(path_);
                           const int error = update.Write("a", "k", "2");
                           return error != 0 ? error : update.Commit();
                       }};
        } else if (kind == "Copy") {
            change_ = {std::string(200'000, 'o'), bytes, [this] {
                           return TypedFolder(folder_.Path())
                               .CopyInto(elsewhere_.File("source"), name_)
                               .number;
                       }};
        } else {
            change_ = {std::string(100'000, 'o'), bytes, [this, bytes] {
                           return TypedFolder(folder_.Path()).WriteInto(name_, bytes).number;
                       }};
        }
    }

    void Begin(bool exists) {
        fs::remove_all(folder_.Path());
        fs::create_directory(folder_.Path());
        if (exists) {
            test::WriteBytes(path_, change_.before);
        }
    }

    /// Neither half of it nor anything else.
    void ExpectOldOrNew(bool existed) const {
        if (fs::exists(path_)) {
            const std::string bytes = test::ReadBytes(path_);
            EXPECT_TRUE(bytes == change_.after || (existed && bytes == change_.before))
                << bytes.size() << " bytes";
        } else {
            EXPECT_FALSE(existed) << "the file is gone";
        }
    }

    test::TemporaryFolder elsewhere_;
    test::TemporaryFolder folder_;
    std::string name_ = "file";
    std::string path_ = folder_.File(name_);
    Change change_;
};

TEST_P(Faults, KilledAtEveryWriteFlushAndRenameTheFileIsOldOrNew) {
    for (const bool existed : {true, false}) {
        Begin(existed);
        const int deaths = test::KillAtEveryStep([this] { change_.make(); },
                                                 [this, existed] {
                                                     ExpectOldOrNew(existed);
                                                     Begin(existed);
                                                 });
        EXPECT_GE(deaths, 10);
        EXPECT_EQ(test::ReadBytes(path_), change_.after) << "the runs that were not killed";
    }
}

TEST_P(Faults, AnErrorAtAnyStepLeavesTheOldFileOrDoesNoHarm) {
    for (const int error : {ENOSPC, EDQUOT, EIO}) {
        int failures = 0;
        for (int step = 1;; ++step) {
            Begin(true);
            const PlannedFault fault(Fault::Fails, step, error);
            const int result = change_.make();
            if (!fault.Happened()) {
                EXPECT_EQ(result, 0);
                break;
            }
            EXPECT_TRUE(result == 0 || result == error) << "step " << step << ": " << result;
            EXPECT_EQ(test::ReadBytes(path_), result == 0 ? change_.after : change_.before)
                << "step " << step;
            EXPECT_TRUE(folder_.EntryCount() == 1 || fault.HitADeletion()) << "step " << step;
            failures += result == 0 ? 0 : 1;
        }
        EXPECT_GE(failures, 4) << "creating, writing, flushing, renaming";
    }
}

TEST_P(Faults, BytesThatGoInPiecesArriveWhole) {
    for (int step = 1; step < 30; ++step) {
        Begin(true);
        const PlannedFault fault(Fault::Halves, step);
        EXPECT_EQ(change_.make(), 0);
        EXPECT_EQ(test::ReadBytes(path_), change_.after) << "step " << step;
    }
}

TEST_P(Faults, AnInterruptionIsNoError) {
    for (int step = 1; step < 30; ++step) {
        Begin(true);
        const PlannedFault fault(Fault::Fails, step, EINTR);
        const int result = change_.make();
        EXPECT_TRUE(result == 0 || result == EINTR);
        EXPECT_EQ(test::ReadBytes(path_), result == 0 ? change_.after : change_.before)
            << "step " << step;
    }
}

TEST_P(Faults, AFullDiskLeavesTheOldFile) {
    Begin(false);
    const test::SmallDisk disk(folder_.Path());
    if (!disk.Mounted()) {
        GTEST_SKIP() << "a disk of its own needs root";
    }
    test::WriteBytes(path_, change_.before);
    disk.Fill();
    EXPECT_EQ(change_.make(), ENOSPC);
    EXPECT_EQ(test::ReadBytes(path_), change_.before);
    EXPECT_EQ(folder_.EntryCount(), 2) << "the file and what fills the disk";
}

TEST_P(Faults, ANameOfAnyCharactersIsTakenAsItIs) {
    std::vector<std::string> names = {"..ini", "-rf", "~", " ", "a\\b", "%s%n", "$(x)", "file "};
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '/') {
            names.push_back(std::string("a") + static_cast<char>(byte) + ".ini");
        }
    }
    for (const auto& name : names) {
        Begin(false);
        path_ = folder_.File(name);
        name_ = name;
        EXPECT_EQ(change_.make(), 0) << name;
        EXPECT_EQ(folder_.EntryCount(), 1) << name;
        ASSERT_TRUE(fs::exists(path_)) << name;
    }
}

TEST_P(Faults, AVanishedFolderIsAnError) {
    Begin(false);
    fs::remove(folder_.Path());
    EXPECT_EQ(change_.make(), ENOENT);
    EXPECT_FALSE(fs::exists(folder_.Path()));
    fs::create_directory(folder_.Path());
}

TEST_P(Faults, AFolderThatBecameAFileIsAnError) {
    Begin(false);
    fs::remove(folder_.Path());
    test::WriteBytes(folder_.Path(), "a file");
    EXPECT_EQ(change_.make(), ENOTDIR);
    EXPECT_EQ(test::ReadBytes(folder_.Path()), "a file");
    fs::remove(folder_.Path());
    fs::create_directory(folder_.Path());
}

TEST_P(Faults, AFolderWithoutRightsIsAnError) {
    Begin(true);
    chmod(path_.c_str(), 0666); // the folder alone is in the way
    for (const mode_t mode : {0555u, 0444u, 0000u}) {
        chmod(folder_.Path().c_str(), mode);
        {
            const test::AsNobody nobody;
            EXPECT_EQ(change_.make(), EACCES) << std::oct << mode;
        }
        chmod(folder_.Path().c_str(), 0777);
        EXPECT_EQ(test::ReadBytes(path_), change_.before);
        EXPECT_EQ(folder_.EntryCount(), 1);
    }
}

TEST_P(Faults, ALockThatOthersAskForDoesNotHinderTheReplacement) {
    Begin(true);
    const int reader = open(path_.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(reader, LOCK_EX), 0);
    EXPECT_EQ(change_.make(), 0);
    std::string seen(change_.before.size() + 1, '\0');
    seen.resize(static_cast<std::size_t>(read(reader, seen.data(), seen.size())));
    close(reader);
    EXPECT_EQ(seen, change_.before) << "who reads the old file goes on reading it";
    EXPECT_EQ(test::ReadBytes(path_), change_.after);
}

INSTANTIATE_TEST_SUITE_P(Every, Faults, testing::Values("Save", "Copy", "Write"),
                         [](const auto& about) { return std::string(about.param); });

} // namespace
