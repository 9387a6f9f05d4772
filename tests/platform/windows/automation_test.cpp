#include "platform/windows/automation.h"

#include "tests/platform/windows/scripted_object.h"

#include <gtest/gtest.h>

namespace {

using platform::AutomationObject;
using platform::SystemError;
using platform::Variant;

class AutomationErrors : public testing::Test {
protected:
    // The error of a call that fails so.
    static SystemError ErrorOf(const test::Failure& failure) {
        test::Tape tape;
        const platform::ComPointer<test::ScriptedObject> object(
            new test::ScriptedObject(tape, "Object"));
        object->AddMethod("Act");
        tape.Fail("Object.Act", failure);
        return AutomationObject(test::ObjectValue(object.get())).Call(L"Act").error;
    }

    static void Expect(const SystemError& error, int number, const std::string& description) {
        EXPECT_EQ(error.number, number);
        EXPECT_EQ(error.description, description);
    }
};

TEST_F(AutomationErrors, TheObjectsWordsAndItsOwnResult) {
    Expect(ErrorOf({.scode = E_ACCESSDENIED, .description = L"Not for y\u00F6u."}), -2147024891,
           "Not for y\u00F6u.");
}

TEST_F(AutomationErrors, AScriptsNumberInTheResult) {
    constexpr auto kClosed = static_cast<HRESULT>(0x800A0E78);
    Expect(ErrorOf({.scode = kClosed, .description = L"Closed"}), 3704, "Closed");
    Expect(ErrorOf({.result = kClosed}), 3704, "Automation error");
}

TEST_F(AutomationErrors, AScriptsNumberApartFromTheResult) {
    Expect(ErrorOf({.code = 1004, .description = L"Own"}), 1004, "Own");
    Expect(ErrorOf({.code = 1004, .scode = E_FAIL, .description = L"Own"}), 1004, "Own");
}

TEST_F(AutomationErrors, WordsPutOffUntilTheyAreAskedFor) {
    Expect(ErrorOf({.scode = E_FAIL, .description = L"Later", .deferred = true}), E_FAIL, "Later");
}

TEST_F(AutomationErrors, LineEndsAreCutOff) {
    Expect(ErrorOf({.code = 7, .description = L"Two\r\nlines. \r\n"}), 7, "Two\r\nlines.");
}

TEST_F(AutomationErrors, TheSystemsWordsWhereTheObjectHasNone) {
    const std::string denied = platform::SystemErrorFromNumber(E_ACCESSDENIED).description;
    EXPECT_NE(denied, "");
    EXPECT_NE(denied, "Automation error");
    Expect(ErrorOf({.scode = E_ACCESSDENIED}), E_ACCESSDENIED, denied);
    Expect(ErrorOf({.result = E_ACCESSDENIED, .description = L"unheard"}), E_ACCESSDENIED, denied);
    EXPECT_EQ(ErrorOf({}).number, DISP_E_EXCEPTION);
}

TEST_F(AutomationErrors, AResultThatNobodyDescribesStillHasWords) {
    constexpr auto kBadPath = static_cast<HRESULT>(0x80005000);
    Expect(platform::AutomationError(kBadPath), -2147463168, "Automation error");
}

TEST_F(AutomationErrors, AMemberThatIsNotThere) {
    test::Tape tape;
    const platform::ComPointer<test::ScriptedObject> scripted(
        new test::ScriptedObject(tape, "Object"));
    const AutomationObject object(test::ObjectValue(scripted.get()));
    EXPECT_EQ(object.Get(L"Colour").error.number, DISP_E_UNKNOWNNAME);
    EXPECT_EQ(object.Put(L"Colour", Variant(1L)).number, DISP_E_UNKNOWNNAME);
    EXPECT_EQ(object.Children(), nullptr);
}

TEST_F(AutomationErrors, AnObjectThatIsNotThere) {
    const AutomationObject none;
    const std::string words = "Object variable not set";
    Expect(none.Get(L"Name").error, 91, words);
    Expect(none.Call(L"Act").error, 91, words);
    Expect(none.Put(L"Name", Variant(L"x")), 91, words);
    EXPECT_EQ(none.Children(), nullptr);
    test::Tape tape;
    const platform::ComPointer<test::ScriptedObject> scripted(
        new test::ScriptedObject(tape, "Object"));
    const AutomationObject object(test::ObjectValue(scripted.get()));
    Expect(object.PutReference(L"Partner", none), 91, words);
    EXPECT_TRUE(tape.Calls().empty());
}

TEST_F(AutomationErrors, AClassOrANameThatTheSystemDoesNotKnow) {
    const platform::ComApartment apartment;
    EXPECT_EQ(platform::CreateAutomationObject(L"Queueshift.NoSuchClass").error.number,
              CO_E_CLASSSTRING);
    const auto bound = platform::BindAutomationObject(L"NoSuchNamespace:");
    EXPECT_LT(bound.error.number, 0);
    EXPECT_NE(bound.error.description, "");
}

TEST(AutomationCalls, ArgumentsArriveInTheirOrder) {
    test::Tape tape;
    const platform::ComPointer<test::ScriptedObject> scripted(
        new test::ScriptedObject(tape, "Object"));
    scripted->AddMethod("Act");
    const AutomationObject object(test::ObjectValue(scripted.get()));
    EXPECT_FALSE(object.Call(L"Act", {Variant(L"one"), Variant(2L), Variant(L"three")}).error);
    ASSERT_EQ(tape.Calls().size(), 1u);
    EXPECT_EQ(tape.Calls()[0], "call Object.Act(\"one\", 2, \"three\")");
}

TEST(AutomationValues, AreReadAsWhatTheyAreWantedFor) {
    EXPECT_EQ(Variant(L"text").Text(), "text");
    EXPECT_EQ(Variant(12L).Text(), "12");
    EXPECT_EQ(Variant().Text(), std::nullopt);
    EXPECT_EQ(Variant(L"12").Number(), 12);
    EXPECT_EQ(Variant(L"text").Number(), std::nullopt);
    EXPECT_EQ(Variant().Number(), std::nullopt);
    EXPECT_EQ(Variant(0L).Truth(), false);
    EXPECT_EQ(Variant(-1L).Truth(), true);
    EXPECT_EQ(Variant(L"text").Truth(), std::nullopt);
    EXPECT_EQ(Variant().Truth(), std::nullopt);
}

TEST(AutomationValues, KeepTheirOwnWhenMoved) {
    Variant first(L"first");
    Variant second(std::move(first));
    EXPECT_EQ(second.Text(), "first");
    second = Variant(L"second");
    EXPECT_EQ(second.Text(), "second");
}

} // namespace
