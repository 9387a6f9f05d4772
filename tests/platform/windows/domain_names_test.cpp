#include "platform/directory_service.h"

#include "tests/platform/windows/directory_stand_in.h"
#include "tests/support/message_log.h"
#include "tests/support/profile_machine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using platform::ComPointer;
using testing::ElementsAre;
using testing::IsEmpty;

// A network whose domains have these names.
class Network {
public:
    explicit Network(std::vector<std::wstring> names) : names_(std::move(names)) {}

    test::Tape tape;
    HRESULT end = S_FALSE;

private:
    ComPointer<IDispatch> Domain(std::size_t index) {
        ComPointer<test::ScriptedObject> domain(
            new test::ScriptedObject(tape, "Domain " + std::to_string(index)));
        domain->AddProperty(
            "Name", [this, index](const auto&) { return platform::Variant(names_[index]); });
        return ComPointer<IDispatch>(domain.release());
    }

    ComPointer<IDispatch> Container() {
        ComPointer<test::ScriptedObject> container(new test::ScriptedObject(tape, "Network"));
        container->AddChildren([this](const auto&) {
            std::vector<ComPointer<IDispatch>> domains;
            for (std::size_t index = 0; index < names_.size(); ++index) {
                domains.push_back(Domain(index));
            }
            return test::Enumeration(std::move(domains), end);
        });
        return ComPointer<IDispatch>(container.release());
    }

    std::vector<std::wstring> names_;
    platform::ComApartment apartment_;
    test::StandInNamespace namespace_{tape, L"WinNT", [this] { return Container(); }};
};

TEST(DomainNames, AreTheNamesOfTheNetworksChildrenInItsOrder) {
    const Network network({L"SALES", L"CORP", L"K\u00D6LN"});
    EXPECT_THAT(platform::DomainNames(), ElementsAre("SALES", "CORP", "K\u00D6LN"));
    EXPECT_THAT(network.tape.Calls(),
                ElementsAre("bind \"WinNT:\"", "get Network.children", "get Domain 0.Name",
                            "get Domain 1.Name", "get Domain 2.Name"));
    EXPECT_THAT(network.tape.Alive(), IsEmpty());
}

TEST(DomainNames, AppearAsOftenAsTheNetworkTellsThem) {
    const Network network({L"CORP", L"SALES", L"CORP"});
    EXPECT_THAT(platform::DomainNames(), ElementsAre("CORP", "SALES", "CORP"));
}

TEST(DomainNames, AChildWithoutANameIsPassedOver) {
    Network network({L"SALES", L"CORP", L"LAB"});
    network.tape.Fail("Domain 1.Name", {.result = E_ACCESSDENIED});
    EXPECT_THAT(platform::DomainNames(), ElementsAre("SALES", "LAB"));
    EXPECT_THAT(network.tape.Alive(), IsEmpty());
}

TEST(DomainNames, AnEnumerationThatBreaksOffKeepsWhatItGave) {
    Network network({L"SALES", L"CORP"});
    network.end = E_FAIL;
    EXPECT_THAT(platform::DomainNames(), ElementsAre("SALES", "CORP"));
    EXPECT_THAT(network.tape.Alive(), IsEmpty());
}

TEST(DomainNames, ANetworkWithoutChildrenHasNone) {
    Network network({L"SALES"});
    network.tape.Fail("Network.children", {.result = E_FAIL});
    EXPECT_THAT(platform::DomainNames(), IsEmpty());
    EXPECT_THAT(network.tape.Alive(), IsEmpty());
}

TEST(DomainNames, ANetworkThatCannotBeBoundHasNoneAndSaysNothing) {
    const test::MessageLog log;
    {
        Network network({L"SALES"});
        network.tape.Fail("bind", {.result = E_FAIL});
        EXPECT_THAT(platform::DomainNames(), IsEmpty());
    }
    if (test::IsWine()) {
        // Which has no such namespace of its own.
        EXPECT_THAT(platform::DomainNames(), IsEmpty());
    }
    EXPECT_THAT(log.Messages(), IsEmpty());
}

} // namespace
