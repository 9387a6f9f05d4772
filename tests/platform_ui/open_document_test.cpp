// The system's own opener, as far as it can be asked without starting a browser.

#include "platform/ui/open_document.h"

#include <gtest/gtest.h>

namespace platform::ui {
namespace {

TEST(OpenDocument, AnAddressThatNoProgramOpensIsAFailureWithAReason) {
    const OpenFailure failure = OpenDocument(nullptr, "no-such-scheme://nowhere.example");
    ASSERT_TRUE(failure.has_value());
    EXPECT_NE(*failure, "");
}

TEST(OpenDocument, TheOpenerCanBeReplacedAndPutBack) {
    std::string asked;
    const DocumentOpener system = SetDocumentOpener([&](wxWindow*, const std::string& address) {
        asked = address;
        return OpenFailure();
    });
    EXPECT_EQ(OpenDocument(nullptr, "http://a.example"), std::nullopt);
    EXPECT_EQ(asked, "http://a.example");
    SetDocumentOpener(system);
    asked.clear();
    EXPECT_TRUE(OpenDocument(nullptr, "no-such-scheme://nowhere.example").has_value());
    EXPECT_EQ(asked, "");
}

} // namespace
} // namespace platform::ui
