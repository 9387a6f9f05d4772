// Filling a picker from the directory: the steps, the boxes, the bar, and queries in one another.
#include "directory/ad_printers.h"
#include "tests/support/message_log.h"
#include "tests/wizard/scripted_directory.h"
#include "tests/wizard/wizard_test.h"

#include <gmock/gmock.h>
#include <wx/gauge.h>
#include <wx/odcombo.h>

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace window_test {
namespace {

using modADPrinters::FillADPrinterList;
using platform::Buttons;
using platform::Icon;
using platform::SystemError;

platform::Message CountBox(const std::string& count) {
    return {count, "Queueshift Deployment Toolkit", Buttons::Ok, Icon::None};
}

platform::Message ErrorBox(const std::string& doing, const std::string& number,
                           const std::string& description) {
    return {"Error " + doing +
                " Active Directory. Please check your domain name and network connection."
                "\r\n\r\nError Number: " +
                number + "\r\nError Descritpion: " + description,
            "Active Directory Error", Buttons::Ok, Icon::Critical};
}

class ADPrinters : public WizardTest {
protected:
    ADPrinters() {
        Start(kActiveDirectory);
        list = window->populate->cboAdPopulate;
        bar = window->populate->prbAdPopulateProgress;
        PutText(window, "cboDomainName", "corp.example");
        modADPrinters::SetServiceMaker([this](const platform::KeepWaiting& keepWaiting) {
            keepWaitings.push_back(keepWaiting);
            return std::make_unique<ScriptedDirectory>(*plays.at(next++));
        });
        plays.push_back(&play);
    }
    ~ADPrinters() override { modADPrinters::SetServiceMaker(nullptr); }

    void Fill() { FillADPrinterList(*list, *bar); }
    Texts Items() { return ItemsIn(window, "cboAdPopulate"); }

    DirectoryPlay play;
    std::vector<DirectoryPlay*> plays; ///< one for each query, in turn
    std::size_t next = 0;
    std::vector<platform::KeepWaiting> keepWaitings;
    wxOwnerDrawnComboBox* list = nullptr;
    wxGauge* bar = nullptr;
};

TEST_F(ADPrinters, TakesItsStepsInOrderAndAddsAnItemForEachRecord) {
    PutItems(window, "cboAdPopulate", {"old >> item"});
    play.names = {"SRV2-B", "SRV1-A-1", "SRV2-B"};
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("3"));
    Fill();
    EXPECT_EQ(Items(), (Texts{"SRV2 >> B", "SRV1 >> A-1", "SRV2 >> B"}));
    const Texts record{"Value name", "Value printShareName", "MoveNext"};
    Texts steps{"Bind corp.example", "Connect", "Prepare", "Execute", "RecordCount"};
    for (int index = 0; index < 3; ++index) {
        steps.insert(steps.end(), record.begin(), record.end());
    }
    EXPECT_EQ(play.steps, steps);
    EXPECT_FALSE(bar->IsShown());
    EXPECT_EQ(bar->GetValue(), 50);
    EXPECT_FALSE(Changed());
}

TEST_F(ADPrinters, MovesTheBarAtEachStepOfTheQuery) {
    std::vector<std::pair<std::string, int>> seen;
    play.during = [&](const std::string& step) { seen.emplace_back(step, bar->GetValue()); };
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("0"));
    Fill();
    EXPECT_EQ(
        seen,
        (std::vector<std::pair<std::string, int>>{
            {"Bind", 2}, {"Connect", 3}, {"Prepare", 4}, {"Execute", 5}, {"RecordCount", 5}}));
    EXPECT_EQ(bar->GetRange(), 50);
}

// Events are let in between slow records, and whoever looks then sees where the bar is.
TEST_F(ADPrinters, MovesTheBarWithTheRecordsAndWrapsIt) {
    play.names.assign(60, "S-P");
    int records = 0;
    std::vector<int> seen;
    std::vector<int> expected;
    bool shown = true;
    play.during = [&](const std::string& step) {
        if (step != "MoveNext") {
            return;
        }
        ++records;
        window->CallAfter([&] {
            if (records == 60) {
                return; // the query has ended
            }
            const int value = 6 + records + 1;
            expected.push_back(value <= 50 ? value : value - 50);
            seen.push_back(bar->GetValue());
            shown = shown && bar->IsShown();
            EXPECT_EQ(list->GetCount(), static_cast<unsigned>(records));
        });
        const auto slow = std::chrono::steady_clock::now() + std::chrono::milliseconds(3);
        while (std::chrono::steady_clock::now() < slow) {
        }
    };
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("60"));
    Fill();
    EXPECT_EQ(seen, expected);
    EXPECT_THAT(seen, testing::Contains(testing::Gt(40)));
    EXPECT_THAT(seen, testing::Contains(testing::Lt(20)));
    EXPECT_TRUE(shown);
}

TEST_F(ADPrinters, ADirectoryWithoutQueuesShowsItsCountOnly) {
    PutItems(window, "cboAdPopulate", {"old >> item"});
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("0"));
    Fill();
    EXPECT_EQ(Items(), Texts{});
    EXPECT_EQ(TextIn(window, "cboAdPopulate"), "");
}

TEST_F(ADPrinters, ADomainThatCannotBeBoundIsTheAccessError) {
    PutItems(window, "cboAdPopulate", {"old >> item"});
    play.failures["Bind"] = {-1, "Can't contact LDAP server"};
    ModalScript dialogs;
    dialogs.ExpectMessage(ErrorBox("accessing", "-1", "Can't contact LDAP server"));
    Fill();
    EXPECT_EQ(Items(), Texts{});
    EXPECT_EQ(play.steps, Texts{"Bind corp.example"});
    EXPECT_FALSE(bar->IsShown());
    EXPECT_EQ(bar->GetValue(), 50);
}

TEST_F(ADPrinters, AnyLaterFailureIsTheQueryErrorAfterTheCount) {
    for (const char* step : {"Connect", "Prepare", "Execute", "RecordCount"}) {
        play = {};
        play.names = {"S-P", "S-Q"};
        play.failures[step] = {81, "Server down"};
        next = 0;
        ModalScript dialogs;
        dialogs.ExpectMessage(CountBox("2"));
        dialogs.ExpectMessage(ErrorBox("querying", "81", "Server down"));
        Fill();
        EXPECT_EQ(Items(), Texts{}) << step;
        EXPECT_EQ(play.steps,
                  (Texts{"Bind corp.example", "Connect", "Prepare", "Execute", "RecordCount"}))
            << step;
        EXPECT_FALSE(bar->IsShown()) << step;
    }
}

// A real box shows CR LF and LF alike, and so do the tests that look at one.
TEST_F(ADPrinters, TheErrorsAreToldInTheseBytes) {
    play.failures["Bind"] = {-2147016646, "Der Server ist nicht funktionst\u00FCchtig."};
    DirectoryPlay later;
    later.failures["Execute"] = {4, "Size limit exceeded"};
    plays.push_back(&later);
    const test::MessageLog log;
    Fill();
    Fill();
    ASSERT_EQ(log.Messages().size(), 3U);
    EXPECT_EQ(log.Messages()[0].text,
              "Error accessing Active Directory. Please check your domain name and network "
              "connection.\r\n\r\nError Number: -2147016646\r\nError Descritpion: "
              "Der Server ist nicht funktionst\u00FCchtig.");
    EXPECT_EQ(log.Messages()[1].text, "0");
    EXPECT_EQ(log.Messages()[2].text,
              "Error querying Active Directory. Please check your domain name and network "
              "connection.\r\n\r\nError Number: 4\r\nError Descritpion: Size limit exceeded");
}

TEST_F(ADPrinters, AnErrorAmongTheRecordsIsPassedOver) {
    play.names = {"S-P", std::nullopt, "T-Q"};
    play.failures["Value"] = {16, "No such attribute"};
    play.failures["MoveNext"] = {1, "Operations error"};
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("3"));
    Fill();
    EXPECT_EQ(Items(), (Texts{"S >> P", "S >> P", "T >> Q"}));
}

TEST_F(ADPrinters, TheDomainIsReadWhenItIsBound) {
    bool edited = false;
    play.during = [&](const std::string&) { edited = true; };
    PutText(window, "cboDomainName", "late.example");
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("0"));
    Fill();
    EXPECT_TRUE(edited);
    EXPECT_EQ(play.steps.front(), "Bind late.example");
}

TEST_F(ADPrinters, RefreshSelectsTheFirstItem) {
    window->PreparePopulatePage();
    play.names = {"SRV-B", "SRV-A"};
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("2"));
    window->m_bolDomainChangedPopulate = true;
    Push(window, "cmdAdPopulateRefresh");
    EXPECT_EQ(TextIn(window, "cboAdPopulate"), "SRV >> B");
    EXPECT_EQ(list->GetSelection(), 0);
    EXPECT_TRUE(window->m_bolDomainChangedPopulate);
    EXPECT_FALSE(Changed());
}

TEST_F(ADPrinters, RefreshWithoutItemsSelectsNothing) {
    window->PreparePopulatePage();
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("0"));
    Push(window, "cmdAdPopulateRefresh");
    EXPECT_EQ(list->GetSelection(), wxNOT_FOUND);
}

TEST_F(ADPrinters, TheAgreedRefreshFillsThePageThatAsked) {
    window->m_bolDomainChangedPrune = true;
    play.names = {"SRV-B"};
    ModalScript dialogs;
    dialogs.ExpectMessage({"Your domain name has changed, do you want to refresh your list of "
                           "Active Directory printers?",
                           "Refresh Printers", Buttons::YesNo, Icon::Question},
                          platform::Answer::Yes);
    dialogs.ExpectMessage(CountBox("1"));
    window->PreparePrunePage();
    EXPECT_EQ(ItemsIn(window, "cboADPrune"), Texts{"SRV >> B"});
    EXPECT_EQ(window->prune->cboADPrune->GetSelection(), wxNOT_FOUND);
    EXPECT_FALSE(window->m_bolDomainChangedPrune);
    EXPECT_FALSE(window->prune->prbADPrune->IsShown());
}

TEST_F(ADPrinters, ALaterQueryOfTheListEndsTheEarlierOneWithoutABox) {
    DirectoryPlay later;
    later.names = {"NEW-P"};
    plays.push_back(&later);
    play.names = {"OLD-A", "OLD-B"};
    play.during = [&](const std::string& step) {
        if (step == "Execute") {
            Fill();
            EXPECT_FALSE(keepWaitings.front()());
        }
    };
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("1"));
    Fill();
    EXPECT_EQ(Items(), Texts{"NEW >> P"});
    EXPECT_EQ(play.steps.back(), "Execute");
    EXPECT_FALSE(bar->IsShown());
}

TEST_F(ADPrinters, AQueryOfTheOtherListLeavesTheEarlierOneRunning) {
    DirectoryPlay other;
    other.names = {"NEW-P"};
    plays.push_back(&other);
    play.names = {"OLD-A"};
    play.during = [&](const std::string& step) {
        if (step == "Execute") {
            FillADPrinterList(*window->prune->cboADPrune, *window->prune->prbADPrune);
        }
    };
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("1"));
    dialogs.ExpectMessage(CountBox("1"));
    Fill();
    EXPECT_EQ(Items(), Texts{"OLD >> A"});
    EXPECT_EQ(ItemsIn(window, "cboADPrune"), Texts{"NEW >> P"});
}

TEST_F(ADPrinters, AFileCommandEndsAQueryInAnyStepWithoutABox) {
    for (const char* during : {"Bind", "Connect", "Prepare", "Execute", "Value"}) {
        play = {};
        play.names = {"OLD-A", "OLD-B"};
        play.during = [&](const std::string& step) {
            if (step == during) {
                modADPrinters::AbandonQueries();
            }
        };
        next = 0;
        ModalScript dialogs;
        if (std::string_view(during) == "Value") {
            dialogs.ExpectMessage(CountBox("2"));
        }
        Fill();
        EXPECT_EQ(Items(), Texts{}) << during;
        EXPECT_FALSE(bar->IsShown()) << during;
    }
}

TEST_F(ADPrinters, NewOpenAndSaveAbandonTheQuery) {
    for (const char* tool : {"ID_BTN_NEW", "ID_BTN_OPEN", "ID_BTN_SAVE", "ID_BTN_SAVE_AS"}) {
        play = {};
        play.names = {"OLD-A"};
        next = 0;
        ModalScript dialogs;
        play.during = [&](const std::string& step) {
            if (step == "Execute") {
                ModalScript inner;
                inner.ExpectDialog<wxDialog>([](wxDialog&) { return wxID_CANCEL; });
                window->ssaQueueshift_ToolClick(tool);
                EXPECT_FALSE(keepWaitings.back()()) << tool;
            }
        };
        Fill();
        EXPECT_EQ(Items(), Texts{}) << tool;
    }
}

TEST_F(ADPrinters, TheWindowClosesUnderAQueryAndGoesWhenItHasReturned) {
    play.names = {"OLD-A"};
    bool alive = false;
    play.during = [&](const std::string& step) {
        if (step == "Execute") {
            ForgetChanges();
            window->Close();
            Pump();
            alive = window.get() != nullptr && !window->IsShown();
        }
    };
    const ModalScript noDialogs;
    window->cmdAdPopulateRefresh_Click();
    EXPECT_TRUE(alive);
    EXPECT_TRUE(WaitFor([this] { return window.get() == nullptr; }, "the window to go"));
}

TEST_F(ADPrinters, PendingEventsRunWhileAServerIsSlow) {
    bool ran = false;
    play.during = [&](const std::string& step) {
        if (step == "Execute") {
            window->CallAfter([&ran] { ran = true; });
            WaitFor([&] { return keepWaitings.front()() && ran; }, "the event to run");
        }
    };
    ModalScript dialogs;
    dialogs.ExpectMessage(CountBox("0"));
    Fill();
    EXPECT_TRUE(ran);
}

class DomainList : public WizardTest {
protected:
    DomainList() {
        modADPrinters::SetDomainLister([] { return std::vector<std::string>{"SALES", "corp"}; });
    }
};

TEST_F(DomainList, OffersWhatTheNetworkTellsInItsOrderAndChangesNothing) {
    Start(kActiveDirectory);
    EXPECT_EQ(ItemsIn(window, "cboDomainName"), (Texts{"SALES", "corp"}));
    EXPECT_EQ(TextIn(window, "cboDomainName"), "");
    EXPECT_FALSE(Changed());
    EXPECT_FALSE(window->m_bolDomainChangedPopulate);
    EXPECT_FALSE(window->m_bolDomainChangedPrune);
}

TEST_F(DomainList, IsNotClearedFirst) {
    Start(kManual);
    window->FillDomainList();
    EXPECT_EQ(ItemsIn(window, "cboDomainName"), (Texts{"SALES", "corp", "SALES", "corp"}));
}

} // namespace
} // namespace window_test
