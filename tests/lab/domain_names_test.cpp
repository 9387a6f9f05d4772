// The domains offered on a machine that knows a domain controller.
#include "platform/directory_service.h"
#include "platform/linux/child_work.h"

#include "tests/support/setting.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace lab {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

/// Whoever asks for winbind finds none, for as long as this object lives.
class WithoutWinbind {
public:
    WithoutWinbind() { std::filesystem::rename(kSocket, kAway); }
    ~WithoutWinbind() { std::filesystem::rename(kAway, kSocket); }
    WithoutWinbind(const WithoutWinbind&) = delete;
    WithoutWinbind& operator=(const WithoutWinbind&) = delete;

private:
    static constexpr char kSocket[] = "/run/samba/winbindd";
    static constexpr char kAway[] = "/run/samba/winbindd-away";
};

// As a program that starts finds them: the library keeps the connection that it once has.
std::vector<std::string> NamesAtStart() {
    const auto ask = [] {
        std::string lines;
        for (const std::string& name : platform::DomainNames()) {
            lines += name + '\n';
        }
        return lines;
    };
    const std::optional<std::string> lines =
        platform::ResultOfChild(ask, std::chrono::steady_clock::now() + 60s, [] { return true; });
    std::vector<std::string> names;
    std::istringstream stream(lines.value_or("no answer\n"));
    for (std::string name; std::getline(stream, name);) {
        names.push_back(name);
    }
    return names;
}

TEST(LabDomainNames, AreTheRealmsThenTheTrustsThenTheSearchDomainsEachOnce) {
    EXPECT_THAT(NamesAtStart(),
                ElementsAre("CORP.EXAMPLE", "OTHER.EXAMPLE", "trusted.example", "lab.example"));
}

// The machine's own accounts are a domain for winbind as well, but have no directory.
TEST(LabDomainNames, WithoutARealmBeginWithWinbindsOwnDomain) {
    const test::Setting noRealm("KRB5_CONFIG", "/dev/null");
    EXPECT_THAT(NamesAtStart(), ElementsAre("corp.example", "trusted.example", "lab.example"));
}

TEST(LabDomainNames, WithoutWinbindAreTheRealmsAndTheSearchDomains) {
    const WithoutWinbind none;
    EXPECT_THAT(NamesAtStart(), ElementsAre("CORP.EXAMPLE", "OTHER.EXAMPLE", "lab.example"));
    const test::Setting noRealm("KRB5_CONFIG", "/dev/null");
    EXPECT_THAT(NamesAtStart(), ElementsAre("lab.example", "corp.example"));
}

} // namespace
} // namespace lab
