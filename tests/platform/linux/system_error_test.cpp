#include "platform/system_error.h"

#include "platform/utf8.h"
#include "tests/support/files.h"

#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

namespace {

bool IsUtf8(const std::string& text) {
    for (std::size_t at = 0; at < text.size();) {
        if (platform::NextCharacter(text, at) == platform::kNoCharacter) {
            return false;
        }
    }
    return true;
}

/// A German locale of one byte to a character, made for the test: hardly a machine has one.
class Latin1 : public testing::Test {
protected:
    Latin1() {
        const std::string make = "localedef -c -i de_DE -f ISO-8859-1 '" +
                                 folder_.File("de_DE.ISO-8859-1") + "' >/dev/null 2>&1";
        static_cast<void>(std::system(make.c_str()));
        setenv("LOCPATH", folder_.Path().c_str(), 1);
        entered_ = std::setlocale(LC_ALL, "de_DE.ISO-8859-1") != nullptr;
    }
    ~Latin1() override {
        unsetenv("LOCPATH");
        std::setlocale(LC_ALL, "C");
    }
    void SetUp() override {
        ASSERT_TRUE(entered_) << "the sources of locales are missing: run script/bootstrap";
    }

private:
    test::TemporaryFolder folder_;
    bool entered_ = false;
};

// A message box shows nothing at all of a text that is no UTF-8.
TEST_F(Latin1, DescriptionsOfErrorsAreUtf8AllTheSame) {
    for (int number = 1; number <= EHWPOISON; ++number) {
        const std::string description = platform::SystemErrorFromNumber(number).description;
        EXPECT_NE(description, "") << number;
        EXPECT_TRUE(IsUtf8(description)) << number << ": " << description;
    }
}

} // namespace
