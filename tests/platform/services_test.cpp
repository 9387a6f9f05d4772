#include "platform/identity.h"
#include "platform/locale_names.h"
#include "platform/program.h"
#include "platform/system_error.h"

#include "tests/support/files.h"
#include "tests/support/message_log.h"
#include "tests/support/profile_machine.h"

#include <filesystem>
#include <set>

#include <gtest/gtest.h>

namespace {

TEST(SystemError, ZeroIsSuccess) {
    EXPECT_FALSE(platform::SystemErrorFromNumber(0));
    EXPECT_EQ(platform::SystemErrorFromNumber(0).description, "");
}

TEST(SystemError, CarriesTheSystemsOwnWords) {
    const auto error = platform::SystemErrorFromNumber(2);
    EXPECT_TRUE(error);
    EXPECT_EQ(error.number, 2);
    EXPECT_FALSE(error.description.empty());
    EXPECT_EQ(error.description.find_first_of("\r\n"), std::string::npos);
    EXPECT_NE(error.description, platform::SystemErrorFromNumber(5).description);
}

TEST(Program, ItsFolderHoldsTheProgram) {
    const std::string folder = platform::ProgramFolder();
    EXPECT_TRUE(std::filesystem::is_directory(folder)) << folder;
    EXPECT_FALSE(folder.ends_with('/') || folder.ends_with('\\')) << folder;
}

TEST(Program, PathsAreJoinedWithOneSeparatorOfTheSystem) {
    const auto separator = static_cast<char>(std::filesystem::path::preferred_separator);
    const std::string joined = std::string("folder") + separator + "name";
    EXPECT_EQ(platform::JoinPath("folder", "name"), joined);
    EXPECT_EQ(platform::JoinPath(std::string("folder") + separator, "name"), joined);
}

TEST(Program, AFileIsWriteProtectedWhenNobodyMayWriteIt) {
    const test::TemporaryFolder folder;
    const std::string path = folder.File("file");
    EXPECT_FALSE(platform::IsWriteProtected(path)) << "nothing is there";
    test::WriteBytes(path, "x");
    EXPECT_FALSE(platform::IsWriteProtected(path));
    test::Protect(path);
    EXPECT_TRUE(platform::IsWriteProtected(path));
}

TEST(Program, APathExistsWhateverItLeadsTo) {
    const test::TemporaryFolder folder;
    EXPECT_TRUE(platform::PathExists(folder.Path()));
    EXPECT_FALSE(platform::PathExists(folder.File("file")));
    test::WriteBytes(folder.File("file"), "");
    EXPECT_TRUE(platform::PathExists(folder.File("file")));
    EXPECT_FALSE(platform::PathExists(""));
}

TEST(Identity, TheUserNameIsFollowedByOneNul) {
    const std::string name = platform::CurrentUserName();
    ASSERT_GE(name.size(), 2u);
    EXPECT_EQ(name.find('\0'), name.size() - 1);
}

TEST(Identity, TheComputersNameComesFromTheSystemOrNotAtAll) {
    const auto name = platform::ComputerName();
    if (test::IsWine()) {
        // Its network object can be created, but has no such property to read.
        EXPECT_EQ(name, std::nullopt);
    } else {
        ASSERT_TRUE(name.has_value());
        EXPECT_FALSE(name->empty());
    }
}

TEST(LocaleNames, TheTwelveMonthsDiffer) {
    std::set<std::string> names;
    for (int month = 0; month < 12; ++month) {
        names.insert(platform::MonthName(month));
    }
    EXPECT_EQ(names.size(), 12u);
    EXPECT_FALSE(names.contains(""));
}

TEST(LocaleNames, NoonAndMidnightBeginTheHalvesOfTheDay) {
    const std::string morning = platform::AmPmDesignator(0);
    const std::string evening = platform::AmPmDesignator(12);
    EXPECT_FALSE(morning.empty());
    EXPECT_NE(morning, evening);
    EXPECT_EQ(platform::AmPmDesignator(11), morning);
    EXPECT_EQ(platform::AmPmDesignator(23), evening);
}

TEST(Message, WithoutAHandlerNothingIsAgreedTo) {
    using platform::Answer;
    using platform::Buttons;
    auto handler = platform::SetMessageHandler(nullptr);
    EXPECT_EQ(platform::ShowMessage({"text", "caption", Buttons::Ok}), Answer::Ok);
    EXPECT_EQ(platform::ShowMessage({"text", "caption", Buttons::YesNo}), Answer::No);
    EXPECT_EQ(platform::ShowMessage({"text", "caption", Buttons::YesNoCancel}), Answer::Cancel);
    platform::SetMessageHandler(std::move(handler));
}

TEST(Message, GoesToTheHandlerAndItsAnswerComesBack) {
    const test::MessageLog log(platform::Answer::Yes);
    EXPECT_EQ(platform::ShowMessage({"t", "c", platform::Buttons::YesNo, platform::Icon::Question}),
              platform::Answer::Yes);
    ASSERT_EQ(log.Messages().size(), 1u);
    EXPECT_EQ(log.Messages()[0].text, "t");
    EXPECT_EQ(log.Messages()[0].icon, platform::Icon::Question);
}

} // namespace
