// The domains offered on a machine that has joined none.
#include "platform/directory_service.h"

#include "tests/support/files.h"
#include "tests/support/message_log.h"
#include "tests/support/setting.h"

#include <gmock/gmock.h>
extern "C" {
#include <wbclient.h>
}

namespace platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// As a Kerberos configuration and a resolver name them, where no winbind runs.
class LinuxDomainNames : public testing::Test {
protected:
    void SetUp() override {
        if (WBC_ERROR_IS_OK(wbcPing())) {
            GTEST_SKIP() << "a winbind runs here, whose domains nobody knows";
        }
    }

    void Configure(const std::string& text) { test::WriteBytes(configuration_, text); }

private:
    const test::TemporaryFolder folder_;
    const std::string configuration_ = folder_.File("krb5.conf");
    const test::Setting kerberos_{"KRB5_CONFIG", configuration_};
};

TEST_F(LinuxDomainNames, AreTheOwnRealmThoseDescribedAndTheSearchDomains) {
    Configure("[libdefaults]\n default_realm = OWN.EXAMPLE\n"
              "[realms]\n ZZ.EXAMPLE = {\n  kdc = 127.0.0.1\n }\n"
              " AA.EXAMPLE = {\n  kdc = 127.0.0.1\n }\n");
    const test::Setting resolver("LOCALDOMAIN", "site.example lab.example");
    EXPECT_THAT(DomainNames(), ElementsAre("OWN.EXAMPLE", "ZZ.EXAMPLE", "AA.EXAMPLE",
                                           "site.example", "lab.example"));
}

TEST_F(LinuxDomainNames, AppearOnceInTheFirstSpelling) {
    Configure("[libdefaults]\n default_realm = Own.Example\n"
              "[realms]\n OWN.EXAMPLE = {\n  kdc = 127.0.0.1\n }\n"
              " lab.EXAMPLE = {\n  kdc = 127.0.0.1\n }\n");
    const test::Setting resolver("LOCALDOMAIN",
                                 "LAB.example. own.example site.example . SITE.EXAMPLE");
    EXPECT_THAT(DomainNames(), ElementsAre("Own.Example", "lab.EXAMPLE", "site.example"));
}

TEST_F(LinuxDomainNames, AreNoneWithoutAWordWhereNothingIsConfigured) {
    const test::MessageLog log;
    const test::Setting resolver("LOCALDOMAIN", ".");
    EXPECT_THAT(DomainNames(), IsEmpty()) << "a configuration that is not there";
    Configure("");
    EXPECT_THAT(DomainNames(), IsEmpty());
    EXPECT_THAT(log.Messages(), IsEmpty());
}

TEST_F(LinuxDomainNames, ABrokenConfigurationLeavesTheSearchDomains) {
    Configure("[realms\n = {{{\n");
    const test::MessageLog log;
    const test::Setting resolver("LOCALDOMAIN", "lab.example");
    EXPECT_THAT(DomainNames(), ElementsAre("lab.example"));
    EXPECT_THAT(log.Messages(), IsEmpty());
}

} // namespace
} // namespace platform
