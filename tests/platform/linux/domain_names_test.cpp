// The domains offered on a machine that has joined none.
#include "platform/directory_service.h"
#include "platform/linux/child_work.h"

#include "tests/support/files.h"
#include "tests/support/message_log.h"
#include "tests/support/setting.h"

#include <sstream>

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

    /// In a process of its own: the C library reads the resolver's settings once.
    static std::vector<std::string> Names() {
        const auto work = [] {
            std::string lines;
            for (const auto& name : DomainNames()) {
                lines += name + '\n';
            }
            return lines;
        };
        const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        std::istringstream lines(
            ResultOfChild(work, limit, [] { return true; }).value_or("none\n"));
        std::vector<std::string> names;
        for (std::string name; std::getline(lines, name);) {
            names.push_back(name);
        }
        return names;
    }

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
    EXPECT_THAT(Names(), ElementsAre("OWN.EXAMPLE", "AA.EXAMPLE", "ZZ.EXAMPLE", "site.example",
                                     "lab.example"));
}

TEST_F(LinuxDomainNames, AppearOnceInTheFirstSpelling) {
    Configure("[libdefaults]\n default_realm = Own.Example\n"
              "[realms]\n OWN.EXAMPLE = {\n  kdc = 127.0.0.1\n }\n"
              " lab.EXAMPLE = {\n  kdc = 127.0.0.1\n }\n");
    const test::Setting resolver("LOCALDOMAIN",
                                 "LAB.example. own.example site.example . SITE.EXAMPLE");
    EXPECT_THAT(Names(), ElementsAre("Own.Example", "lab.EXAMPLE", "site.example"));
}

TEST_F(LinuxDomainNames, AreNoneWithoutAWordWhereNothingIsConfigured) {
    const test::MessageLog log;
    const test::Setting resolver("LOCALDOMAIN", ".");
    EXPECT_THAT(Names(), IsEmpty()) << "a configuration that is not there";
    Configure("");
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(log.Messages(), IsEmpty());
}

TEST_F(LinuxDomainNames, ABrokenConfigurationLeavesTheSearchDomains) {
    Configure("[realms\n = {{{\n");
    const test::MessageLog log;
    const test::Setting resolver("LOCALDOMAIN", "lab.example");
    EXPECT_THAT(Names(), ElementsAre("lab.example"));
    EXPECT_THAT(log.Messages(), IsEmpty());
}

} // namespace
} // namespace platform
