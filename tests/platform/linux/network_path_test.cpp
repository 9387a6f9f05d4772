#include "platform/linux/network_path.h"

#include "platform/typed_folder.h"
#include "tests/support/files.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

std::string Through(std::string_view typed) {
    const auto path = ParseNetworkPath(typed);
    return path ? TextOf(*path) : "none";
}

TEST(NetworkPaths, BothSeparatorsAndDoubledOnesLeadToTheSamePlace) {
    EXPECT_EQ(Through(R"(\\server\share\folder)"), R"(\\server\share\folder)");
    EXPECT_EQ(Through("//server/share/folder"), R"(\\server\share\folder)");
    EXPECT_EQ(Through(R"(/\server\\share/\folder\)"), R"(\\server\share\folder)");
    EXPECT_EQ(Through(R"(\\server)"), R"(\\server)");
    EXPECT_EQ(Through(R"(\\server\)"), R"(\\server)");
}

TEST(NetworkPaths, DotsAreFollowedButNeverOutOfTheShare) {
    EXPECT_EQ(Through(R"(\\server\share\one\..\two\.\three)"), R"(\\server\share\two\three)");
    EXPECT_EQ(Through(R"(\\server\share\..\..\..\two)"), R"(\\server\share\two)");
    EXPECT_EQ(Through(R"(\\server\..\share)"), R"(\\server\share)");
}

TEST(NetworkPaths, WithoutAComputerThereIsNone) {
    for (const auto* typed : {"", "\\", "\\\\", "\\\\\\share", "\\\\.\\pipe\\x", "\\\\?\\C:\\x",
                              "\\server\\share", "C:\\x", "/srv/share", "share"}) {
        EXPECT_EQ(Through(typed), "none") << typed;
    }
}

TEST(NetworkPaths, WhatMeansSomethingInAnAddressIsEscaped) {
    const auto path = ParseNetworkPath(R"(\\ser@ver:1\a b%41?c\Büro#;)");
    ASSERT_TRUE(path);
    EXPECT_EQ(UrlOf(*path), "smb://ser%40ver%3A1/a%20b%2541%3Fc/B%C3%BCro%23%3B");
    EXPECT_EQ(UrlOf(*path, "x/y"), UrlOf(*path) + "/x%2Fy");
}

TEST(NetworkPaths, NamesThatNoShareCanHoldAreTold) {
    for (const auto* name : {"QueueshiftEngine.exe", "Büro (1) 50% #;.ini", " ", "."}) {
        EXPECT_TRUE(IsNetworkFileName(name)) << name;
    }
    for (const auto* name : {"", "a\\b", "a/b", "a\"b", "a\nb", "a:b", "a*", "a?", "<", ">", "|"}) {
        EXPECT_FALSE(IsNetworkFileName(name)) << name;
    }
}

// A folder whose local path is that of the text must not be taken for it.
TEST(NetworkPaths, NeverMeanALocalFolder) {
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File("file"), "local");
    for (const auto* lead : {"/", "\\", "//"}) {
        const TypedFolder typed(lead + folder.Path());
        EXPECT_FALSE(typed.Exists()) << lead;
        EXPECT_FALSE(typed.Holds("file")) << lead;
        EXPECT_TRUE(typed.WriteInto("file", "new")) << lead;
        EXPECT_TRUE(typed.CopyInto(folder.File("file"), "copy")) << lead;
    }
    EXPECT_EQ(test::ReadBytes(folder.File("file")), "local");
    EXPECT_EQ(folder.EntryCount(), 1);
}

} // namespace
} // namespace platform
