#include "platform/directory_service.h"

#include "tests/platform/windows/directory_stand_in.h"
#include "tests/support/profile_machine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using platform::DirectoryService;
using platform::Variant;
using test::Failure;
using test::Null;
using test::Text;
using test::Texts;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr auto kQuery = "put Command.CommandText = \"Select name, printShareName FROM "
                        "'LDAP://corp.example/DC=corp,DC=example' WHERE "
                        "objectCategory='printQueue'\"";

test::DirectoryStandIn::Record Queue(const std::wstring& name) {
    return {{"name", [name] { return Text(name); }},
            {"printShareName", [name] { return Texts({name}); }}};
}

// A record whose only field is `name`, with this value.
test::DirectoryStandIn::Record Field(test::DirectoryStandIn::Value value) {
    return {{"name", std::move(value)}};
}

class DirectoryAutomation : public testing::Test {
protected:
    // The service goes first: it holds objects of the directory.
    std::unique_ptr<test::DirectoryStandIn> directory_ = std::make_unique<test::DirectoryStandIn>();
    std::unique_ptr<DirectoryService> service_ = platform::MakeDirectoryService(nullptr);

    void Restart() {
        service_ = platform::MakeDirectoryService(nullptr);
        directory_.reset(); // A class has one class object at a time.
        directory_ = std::make_unique<test::DirectoryStandIn>();
    }

    void TakeStepsUpToTheQuery() {
        service_->Bind("corp.example");
        service_->Connect();
        service_->Prepare();
        service_->Execute();
    }

    // What the whole query leaves, and the texts of the field `name` of its records.
    std::vector<std::string> Names() {
        TakeStepsUpToTheQuery();
        std::vector<std::string> names;
        for (; !service_->AtEnd(); service_->MoveNext()) {
            names.push_back(service_->Value("name").value_or("(none)"));
        }
        return names;
    }

    void ExpectError(int number, const std::string& description) const {
        EXPECT_EQ(service_->Error().number, number);
        EXPECT_EQ(service_->Error().description, description);
    }
};

TEST_F(DirectoryAutomation, AQueryIsTheseCallsInThisOrder) {
    directory_->path = L"LDAP://corp.example/DC=corp,DC=example";
    directory_->records.push_back(Queue(L"SRV01-HP-4000"));
    TakeStepsUpToTheQuery();
    EXPECT_EQ(service_->RecordCount(), 1);
    EXPECT_FALSE(service_->AtEnd());
    EXPECT_EQ(service_->Value("name"), "SRV01-HP-4000");
    EXPECT_EQ(service_->Value("printShareName"), "SRV01-HP-4000");
    service_->MoveNext();
    EXPECT_TRUE(service_->AtEnd());
    ExpectError(0, "");
    EXPECT_THAT(directory_->tape.Calls(),
                ElementsAre("bind \"LDAP://corp.example\"", "create ADODB.Connection",
                            "put Connection.Provider = \"ADsDSOObject\"",
                            "call Connection.Open(\"\", \"\", \"\")", "create ADODB.Command",
                            "putref Command.ActiveConnection = Connection", "get Directory.ADsPath",
                            kQuery, "get Command.Properties", "get Properties.Item(\"Page Size\")",
                            "put Property.Value = 1000", "call Command.Execute",
                            "get Records.RecordCount", "get Records.EOF", "get Records.Fields",
                            "get Fields.Item(\"name\")", "get Field.Value", "get Records.Fields",
                            "get Fields.Item(\"printShareName\")", "get Field.Value",
                            "call Records.MoveNext", "get Records.EOF"));
}

TEST_F(DirectoryAutomation, NoObjectOutlivesTheQuery) {
    directory_->records = {Queue(L"a-b"), Queue(L"c-d")};
    EXPECT_THAT(Names(), ElementsAre("a-b", "c-d"));
    EXPECT_THAT(directory_->tape.Alive(),
                testing::UnorderedElementsAre("Directory", "Connection", "Command", "Records"));
    service_.reset();
    EXPECT_THAT(directory_->tape.Alive(), IsEmpty());
}

TEST_F(DirectoryAutomation, TextsBeyondAsciiGoBothWays) {
    directory_->records.push_back(Queue(L"M\u00FCnchen-Gro\u00DF \u20AC"));
    service_->Bind("K\u00F6ln.example");
    EXPECT_THAT(directory_->tape.Calls(), ElementsAre("bind \"LDAP://K\u00F6ln.example\""));
    EXPECT_THAT(Names(), ElementsAre("M\u00FCnchen-Gro\u00DF \u20AC"));
}

TEST_F(DirectoryAutomation, AValueIsTheFirstOfSeveral) {
    directory_->records = {Field([] {
                               return Texts({L"first", L"second"});
                           }),
                           Field([] { return Texts({}); }),
                           Field(Null),
                           Field([] { return Variant(); }),
                           Field([] { return Text(L""); }),
                           Field([] { return Variant(4000L); })};
    EXPECT_THAT(Names(), ElementsAre("first", "(none)", "(none)", "(none)", "", "4000"));
    ExpectError(0, "");
}

TEST_F(DirectoryAutomation, WithoutRecordsTheEndIsReachedAtOnce) {
    TakeStepsUpToTheQuery();
    EXPECT_EQ(service_->RecordCount(), 0);
    EXPECT_TRUE(service_->AtEnd());
    ExpectError(0, "");
}

TEST_F(DirectoryAutomation, EachStepThatFailsIsTheError) {
    const char* const members[] = {"bind",
                                   "create ADODB.Connection",
                                   "Connection.Provider",
                                   "Connection.Open",
                                   "create ADODB.Command",
                                   "Command.ActiveConnection",
                                   "Directory.ADsPath",
                                   "Command.CommandText",
                                   "Command.Execute",
                                   "Records.RecordCount",
                                   "Records.EOF",
                                   "Records.Fields",
                                   "Fields.Item",
                                   "Field.Value",
                                   "Records.MoveNext"};
    for (const char* member : members) {
        SCOPED_TRACE(member);
        Restart();
        directory_->records.push_back(Queue(L"a-b"));
        directory_->tape.Fail(member, {.result = E_ACCESSDENIED});
        TakeStepsUpToTheQuery();
        service_->RecordCount();
        service_->AtEnd();
        service_->Value("name");
        service_->MoveNext();
        ExpectError(E_ACCESSDENIED,
                    platform::SystemErrorFromNumber(static_cast<int>(E_ACCESSDENIED)).description);
        service_.reset();
        EXPECT_THAT(directory_->tape.Alive(), IsEmpty());
    }
}

TEST_F(DirectoryAutomation, TheLastStepThatFailsWins) {
    directory_->tape.Fail("Connection.Open", {.description = L"no provider"});
    directory_->tape.Fail("Command.ActiveConnection", {.description = L"closed connection"});
    service_->Bind("corp.example");
    service_->Connect();
    ExpectError(DISP_E_EXCEPTION, "no provider");
    service_->Prepare();
    ExpectError(DISP_E_EXCEPTION, "closed connection");
    service_->Execute();
    ExpectError(DISP_E_EXCEPTION, "closed connection");
}

TEST_F(DirectoryAutomation, AMissingObjectIsNotReportedInPlaceOfItsCause) {
    directory_->tape.Fail("Command.Execute", {.code = 3709, .description = L"cannot be used"});
    TakeStepsUpToTheQuery();
    EXPECT_EQ(service_->RecordCount(), 0);
    EXPECT_TRUE(service_->AtEnd());
    EXPECT_EQ(service_->Value("name"), std::nullopt);
    service_->MoveNext();
    ExpectError(3709, "cannot be used");
}

TEST_F(DirectoryAutomation, AStepWithoutItsObjectIsAnErrorOfItsOwn) {
    service_->Execute();
    ExpectError(91, "Object variable not set");
    EXPECT_EQ(service_->RecordCount(), 0);
    EXPECT_TRUE(service_->AtEnd());
}

TEST_F(DirectoryAutomation, ADirectoryThatWasNotBoundGivesNoQueryText) {
    service_->Connect();
    service_->Prepare();
    ExpectError(91, "Object variable not set");
    EXPECT_THAT(directory_->tape.Calls(), Not(Contains(HasSubstr("CommandText"))));
}

TEST_F(DirectoryAutomation, PagesThatCannotBeAskedForAreNoError) {
    for (const char* member : {"Command.Properties", "Properties.Item", "Property.Value"}) {
        SCOPED_TRACE(member);
        Restart();
        directory_->records.push_back(Queue(L"a-b"));
        directory_->tape.Fail(member, {.result = E_FAIL});
        EXPECT_THAT(Names(), ElementsAre("a-b"));
        ExpectError(0, "");
    }
}

TEST_F(DirectoryAutomation, PagesThatCannotBeAskedForLeaveAnEarlierError) {
    directory_->tape.Fail("Connection.Open", {.code = 3706, .description = L"no provider"});
    directory_->tape.Fail("Property.Value", {.description = L"no such property"});
    TakeStepsUpToTheQuery();
    EXPECT_THAT(directory_->tape.Calls(), Contains("put Property.Value = 1000"));
    ExpectError(3706, "no provider");
}

TEST_F(DirectoryAutomation, AWalkEndsWhenTheNextRecordCannotBeReached) {
    directory_->records = {Queue(L"a-b"), Queue(L"c-d")};
    directory_->tape.Fail("Records.MoveNext", {.code = 5, .description = L"lost"});
    EXPECT_THAT(Names(), ElementsAre("a-b"));
    ExpectError(5, "lost");
}

TEST_F(DirectoryAutomation, AWalkEndsWhenItsEndCannotBeTold) {
    directory_->records.push_back(Queue(L"a-b"));
    directory_->tape.Fail("Records.EOF", {.code = 6, .description = L"lost"});
    EXPECT_THAT(Names(), IsEmpty());
    ExpectError(6, "lost");
}

// The system's own objects from here on. Nothing listens where they are sent.

TEST(DirectoryOfTheSystem, ADomainThatCannotBeBoundIsAnError) {
    const auto service = platform::MakeDirectoryService(nullptr);
    service->Bind("127.0.0.1:1");
    EXPECT_LT(service->Error().number, 0);
    EXPECT_NE(service->Error().description, "");
}

TEST(DirectoryOfTheSystem, AnEmptyDomainIsAnError) {
    const auto service = platform::MakeDirectoryService(nullptr);
    service->Bind("");
    EXPECT_LT(service->Error().number, 0);
    EXPECT_NE(service->Error().description, "");
}

TEST(DirectoryOfTheSystem, AQueryOfNothingIsAnError) {
    const auto service = platform::MakeDirectoryService(nullptr);
    service->Connect();
    service->Prepare();
    service->Execute();
    EXPECT_NE(service->Error().number, 0);
    EXPECT_NE(service->Error().description, "");
    EXPECT_EQ(service->RecordCount(), 0);
    EXPECT_TRUE(service->AtEnd());
}

// Its objects can be created, but answer no call by name.
TEST(DirectoryOfTheSystem, WineHasNoConnectionToADirectory) {
    if (!test::IsWine()) {
        GTEST_SKIP() << "not Wine";
    }
    const auto service = platform::MakeDirectoryService(nullptr);
    service->Connect();
    EXPECT_EQ(service->Error().number, TYPE_E_LIBNOTREGISTERED);
    EXPECT_NE(service->Error().description, "");
}

} // namespace
