// The directory service against a real domain controller.
#include "platform/directory_service.h"

#include "tests/lab/server_stand_in.h"
#include "tests/support/files.h"
#include "tests/support/setting.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <ldap.h>

namespace lab {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::StartsWith;

constexpr char kDomain[] = "corp.example";
constexpr char kHost[] = "dc1.corp.example";
constexpr int kLdapPort = 389;

void Control(const std::string& arguments) {
    ASSERT_EQ(std::system((std::string(std::getenv("LAB_CONTROL")) + ' ' + arguments).c_str()), 0);
}

class Directory : public testing::Test {
protected:
    void Bind(const std::string& domain) { service->Bind(domain); }

    void Query() {
        service->Connect();
        service->Prepare();
        service->Execute();
    }

    std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (; !service->AtEnd(); service->MoveNext()) {
            names.push_back(service->Value("name").value_or("(none)"));
        }
        return names;
    }

    static int PortOf(const char* variable) { return std::stoi(std::getenv(variable)); }

    static std::string At(int port) { return std::string(kHost) + ':' + std::to_string(port); }

    int waits = 0;
    std::unique_ptr<platform::DirectoryService> service =
        platform::MakeDirectoryService([this] { return ++waits >= 0; });
};

TEST_F(Directory, BindsToADomainByItsServiceRecordsAndToAServerByItsName) {
    for (const std::string& name : {std::string(kDomain), std::string(kHost), At(kLdapPort)}) {
        service = platform::MakeDirectoryService([] { return true; });
        Bind(name);
        EXPECT_EQ(service->Error().number, 0) << name << ": " << service->Error().description;
        Query();
        EXPECT_EQ(service->Error().number, 0) << name << ": " << service->Error().description;
    }
}

TEST_F(Directory, FindsEveryQueueWhateverTheirNumber) {
    for (const int count : {0, 1, 49, 50, 51, 1000, 1001, 5000}) {
        Control("queues " + std::to_string(count));
        service = platform::MakeDirectoryService([] { return true; });
        Bind(kDomain);
        Query();
        ASSERT_EQ(service->Error().number, 0) << service->Error().description;
        EXPECT_EQ(service->RecordCount(), count);
        std::vector<std::string> names = Names();
        ASSERT_EQ(names.size(), static_cast<std::size_t>(count));
        if (count > 0) {
            std::ranges::sort(names);
            EXPECT_EQ(std::ranges::adjacent_find(names), names.end());
            EXPECT_EQ(names.front(), "SRV00-Printer-00000");
        }
    }
}

TEST_F(Directory, AServerThatCutsItsAnswersIsAskedForPages) {
    Bind(At(PortOf("LAB_CAPPED_PORT")));
    ASSERT_EQ(service->Error().number, 0) << service->Error().description;
    Query();
    EXPECT_EQ(service->Error().number, 0) << service->Error().description;
    EXPECT_EQ(service->RecordCount(), 2500);
    std::vector<std::string> names = Names();
    std::ranges::sort(names);
    EXPECT_EQ(std::ranges::adjacent_find(names), names.end());
    EXPECT_EQ(names.front(), "SRV00-Capped-00000");
    EXPECT_EQ(names.back(), "SRV49-Capped-02499");
}

TEST_F(Directory, AServerThatCutsItsPagesTooFailsAfterThoseThatArrived) {
    Bind(At(PortOf("LAB_LIMITED_PORT")));
    ASSERT_EQ(service->Error().number, 0) << service->Error().description;
    Query();
    EXPECT_THAT(service->Error().number,
                testing::AnyOf(LDAP_SIZELIMIT_EXCEEDED, LDAP_ADMINLIMIT_EXCEEDED));
    EXPECT_GE(service->RecordCount(), 1000);
    EXPECT_LE(service->RecordCount(), 1500);
}

TEST_F(Directory, GivesNamesAsTheyAreAndTheFirstShare) {
    const std::vector<std::string> odd{"SRV-HP-4000-2",           "lonely",      "-leading",
                                       "M\u00FCnchen-\u00C9tage", "SRV'x-(a*b)", "\u5370-\u5237"};
    std::string arguments = "queue";
    for (const std::string& name : odd) {
        arguments += " \"" + name + '"';
    }
    Control(arguments);
    Bind(kDomain);
    Query();
    std::vector<std::string> names;
    for (; !service->AtEnd(); service->MoveNext()) {
        names.push_back(service->Value("name").value_or("(none)"));
        EXPECT_THAT(service->Value("printShareName").value_or(""), HasSubstr("share"));
    }
    for (const std::string& name : odd) {
        EXPECT_THAT(names, Contains(name));
    }
}

TEST_F(Directory, CannotBeBoundWithoutATicket) {
    const test::Setting noTicket("KRB5CCNAME", "/nonexistent/ticket");
    Bind(kDomain);
    EXPECT_EQ(service->Error().number, LDAP_LOCAL_ERROR);
    EXPECT_THAT(service->Error().description, StartsWith("Local error: "));
    EXPECT_THAT(service->Error().description, HasSubstr("redentials"));
}

TEST_F(Directory, CannotBeBoundWithAnExpiredTicket) {
    const test::TemporaryFolder folder;
    const std::string cache = folder.File("ticket");
    Control("ticket 2 " + cache);
    while (std::system(("klist -s -c " + cache).c_str()) == 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    const test::Setting expired("KRB5CCNAME", cache);
    Bind(kDomain);
    EXPECT_EQ(service->Error().number, LDAP_LOCAL_ERROR);
    EXPECT_THAT(service->Error().description, HasSubstr("expired"));
}

TEST_F(Directory, CannotBeBoundInARealmThatIsOutOfReach) {
    Bind("dc1.other.example");
    EXPECT_EQ(service->Error().number, LDAP_LOCAL_ERROR);
    EXPECT_NE(service->Error().description, "Local error");
}

TEST_F(Directory, CannotBeBoundWhereNoSuchNameIsKnown) {
    for (const char* name : {"nowhere.example", "", " ", "ldap://dc1.corp.example", "a/b?c",
                             "dc1.corp.example:99999", "(objectClass=*)", "\xC3\xBC.example"}) {
        service = platform::MakeDirectoryService([] { return true; });
        Bind(name);
        EXPECT_EQ(service->Error().number, LDAP_SERVER_DOWN) << name;
        EXPECT_THAT(service->Error().description, StartsWith("Can't contact LDAP server: "))
            << name;
    }
}

TEST_F(Directory, CannotBeBoundWhenTheConnectionIsRefused) {
    Bind(At(1));
    EXPECT_EQ(service->Error().number, LDAP_SERVER_DOWN);
    EXPECT_EQ(service->Error().description, "Can't contact LDAP server: Connection refused");
}

TEST_F(Directory, CannotBeBoundWhenTheServerRefusesTheLayerOrTheMechanism) {
    for (const int code : {LDAP_STRONG_AUTH_REQUIRED, LDAP_CONFIDENTIALITY_REQUIRED,
                           LDAP_AUTH_METHOD_NOT_SUPPORTED}) {
        // A bind response to the first message, of this code, without further words.
        std::string answer("\x30\x0c\x02\x01\x01\x61\x07\x0a\x01\x00\x04\x00\x04\x00", 14);
        answer[9] = static_cast<char>(code);
        const StandIn server = StandIn::Answering(answer);
        service = platform::MakeDirectoryService([] { return true; });
        Bind(At(server.Port()));
        EXPECT_EQ(service->Error().number, code) << service->Error().description;
        EXPECT_THAT(service->Error().description, StartsWith(ldap_err2string(code)));
    }
}

TEST_F(Directory, AServerThatNeverAnswersIsGivenUpWhileTheWaitGoesOn) {
    const StandIn server = StandIn::Silent();
    Bind(At(server.Port()));
    EXPECT_EQ(service->Error().number, LDAP_TIMEOUT);
    EXPECT_GT(waits, 100) << "the window was left alone for long";
}

TEST_F(Directory, AWaitThatIsAbandonedEndsSoon) {
    const StandIn server = StandIn::Silent();
    service = platform::MakeDirectoryService([this] { return ++waits < 20; });
    Bind(At(server.Port()));
    EXPECT_NE(service->Error().number, 0);
    EXPECT_EQ(waits, 20);
}

TEST_F(Directory, AServerGoneInMidAnswerLeavesWhatHadArrived) {
    const StandIn server = StandIn::CuttingOff(kLdapPort, 300'000);
    Bind(At(server.Port()));
    ASSERT_EQ(service->Error().number, 0) << service->Error().description;
    Query();
    EXPECT_EQ(service->Error().number, LDAP_SERVER_DOWN);
    EXPECT_GT(service->RecordCount(), 100);
    EXPECT_LT(service->RecordCount(), 5000);
}

TEST_F(Directory, AServerThatFallsSilentInMidAnswerCanBeAbandoned) {
    service = platform::MakeDirectoryService([this] {
        waits += service->RecordCount() > 100 ? 1 : 0;
        return waits < 20;
    });
    const StandIn server = StandIn::FallingSilent(kLdapPort, 300'000);
    Bind(At(server.Port()));
    ASSERT_EQ(service->Error().number, 0) << service->Error().description;
    Query();
    EXPECT_EQ(service->Error().number, LDAP_USER_CANCELLED);
    EXPECT_EQ(waits, 20);
    EXPECT_LT(service->RecordCount(), 5000);
}

} // namespace
} // namespace lab
