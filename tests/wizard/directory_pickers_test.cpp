// The pickers of published queues: what switches them on, and what Refresh and Select do.
#include "tests/wizard/wizard_test.h"

#include <wx/msgdlg.h>

namespace window_test {
namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

const platform::Message kRefreshQuestion{
    "Your domain name has changed, do you want to refresh your list of Active Directory printers?",
    "Refresh Printers", Buttons::YesNo, Icon::Question};
const platform::Message kNoDomain{
    "No domain name selected. Please select a domain name on the Active Directory step.",
    "Error, No Domain Name", Buttons::Ok, Icon::Exclamation};
const platform::Message kNothingPicked{
    "No Active Directory printer selected. Please choose a printer.", "Error selecting AD printer",
    Buttons::Ok, Icon::Critical};

struct PickerRow {
    const char* name;
    int page;
    const char* node;
    const char* combo;
    const char* list;
    Texts buttons;
    const char* refresh;
    const char* select;
    const char* progress;
    const char* server;
    const char* printer;
    const char* type;
    const char* typeAfter;
};

void PrintTo(const PickerRow& row, std::ostream* out) {
    *out << row.name;
}

class Pickers : public WizardTest, public testing::WithParamInterface<PickerRow> {
protected:
    void ExpectSwitched(bool on) {
        EXPECT_EQ(IsEnabled(window, row.combo), on);
        EXPECT_EQ(ColourOf(window, row.combo),
                  on ? ColourOf(window, row.list) : ColourText(window->GetBackgroundColour()));
        for (const std::string& button : row.buttons) {
            EXPECT_EQ(IsEnabled(window, button), on) << button;
        }
    }

    [[nodiscard]] bool& Flag() {
        return row.page == 17 ? window->m_bolDomainChangedPopulate
                              : window->m_bolDomainChangedPrune;
    }
    [[nodiscard]] bool& Adding() {
        return row.page == 17 ? window->populate->m_bolNewPopulate : window->prune->m_bolNewPrune;
    }
    void Prepare() { window->tvwWizardOptions->Click(row.node); }

    const PickerRow& row = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Pages, Pickers,
                         testing::Values(PickerRow{"Populate",
                                                   17,
                                                   "Key81",
                                                   "cboAdPopulate",
                                                   "lstPopulate",
                                                   {"cmdAdPopulateSelect", "cmdAdPopulateRefresh"},
                                                   "cmdAdPopulateRefresh",
                                                   "cmdAdPopulateSelect",
                                                   "prbAdPopulateProgress",
                                                   "txtPopulateServerName",
                                                   "txtPopulatePrinterName",
                                                   "cboPopulateType",
                                                   "Networked"},
                                         PickerRow{"Prune",
                                                   12,
                                                   "Key82",
                                                   "cboADPrune",
                                                   "lstManualPrune",
                                                   {"cmdPruneADSelect", "cmdAdPruneRefresh",
                                                    "chkADPruneAll"},
                                                   "cmdAdPruneRefresh",
                                                   "cmdPruneADSelect",
                                                   "prbADPrune",
                                                   "txtPruneServerName",
                                                   "txtPrunePrinterName",
                                                   "cboPruneType",
                                                   "Printer and Server"}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(Pickers, AreOnInAnActiveDirectoryDocumentOnly) {
    Start(kManual);
    for (const DocumentType type : {kManual, kActiveDirectory, kManual}) {
        Become(type);
        Prepare();
        ExpectSwitched(type == kActiveDirectory);
    }
}

// The question stands in front of a page that is ready, and decides nothing before it is answered.
TEST_P(Pickers, AreOnWhileTheQuestionIsAsked) {
    Start(kManual);
    Prepare();
    ExpectSwitched(false);
    PutItems(window, row.combo, {"SRV >> HP"});
    Become(kActiveDirectory);
    Enter(window, "cboDomainName", "corp.example");
    ModalScript dialogs;
    dialogs.ExpectDialog<wxMessageDialog>([this](wxMessageDialog& box) {
        EXPECT_EQ(box.GetCaption().utf8_string(), kRefreshQuestion.caption);
        EXPECT_EQ(CurrentPage(), row.page);
        ExpectSwitched(true);
        EXPECT_TRUE(Flag());
        EXPECT_EQ(ItemsIn(window, row.combo), Texts{"SRV >> HP"});
        EXPECT_FALSE(Find(window, row.progress)->IsShown());
        return static_cast<int>(wxID_NO);
    });
    Prepare();
    EXPECT_TRUE(dialogs.Done());
    EXPECT_FALSE(Flag());
    ExpectSwitched(true);
}

TEST_P(Pickers, AskOnceAfterAChangeOfTheDomain) {
    Start(kActiveDirectory);
    Enter(window, "cboDomainName", "corp.example");
    EXPECT_TRUE(Flag());
    EXPECT_TRUE(Changed());
    PutItems(window, row.combo, {"SRV >> HP"});
    ModalScript dialogs;
    dialogs.ExpectMessage(kRefreshQuestion, Answer::No);
    Prepare();
    EXPECT_TRUE(dialogs.Done());
    EXPECT_FALSE(Flag());
    EXPECT_EQ(ItemsIn(window, row.combo), Texts{"SRV >> HP"});
    Prepare();
    Enter(window, "cboDomainName", "other.example");
    dialogs.ExpectMessage(kRefreshQuestion, Answer::No);
    Prepare();
    EXPECT_TRUE(dialogs.Done());
}

TEST_P(Pickers, AskNothingWithoutADomain) {
    Start(kActiveDirectory);
    Enter(window, "cboDomainName", "corp.example");
    Enter(window, "cboDomainName", "");
    const ModalScript noDialogs;
    Prepare();
    EXPECT_TRUE(Flag());
}

TEST_P(Pickers, AskNothingInAManualDocumentAndRememberTheChange) {
    Start(kActiveDirectory);
    Enter(window, "cboDomainName", "corp.example");
    Become(kManual);
    {
        const ModalScript noDialogs;
        Prepare();
        EXPECT_TRUE(Flag());
    }
    Become(kActiveDirectory);
    ModalScript dialogs;
    dialogs.ExpectMessage(kRefreshQuestion, Answer::No);
    Prepare();
    EXPECT_FALSE(Flag());
}

TEST_P(Pickers, EachPageAsksForItself) {
    Start(kActiveDirectory);
    Enter(window, "cboDomainName", "corp.example");
    ModalScript dialogs;
    dialogs.ExpectMessage(kRefreshQuestion, Answer::No);
    Prepare();
    EXPECT_NE(window->m_bolDomainChangedPopulate, window->m_bolDomainChangedPrune);
}

TEST_P(Pickers, RefreshWantsADomain) {
    Start(kActiveDirectory);
    Prepare();
    PutItems(window, row.combo, {"SRV >> HP"});
    ModalScript dialogs;
    dialogs.ExpectMessage(kNoDomain);
    Push(window, row.refresh);
    EXPECT_EQ(ItemsIn(window, row.combo), Texts{"SRV >> HP"});
    EXPECT_FALSE(Changed());
}

TEST_P(Pickers, SelectWantsAPickedPrinter) {
    Start(kActiveDirectory);
    Prepare();
    PutText(window, row.server, "kept");
    PutText(window, row.printer, "also kept");
    Adding() = false;
    ModalScript dialogs;
    dialogs.ExpectMessage(kNothingPicked);
    Push(window, row.select);
    EXPECT_EQ(TextIn(window, row.server), "kept");
    EXPECT_EQ(TextIn(window, row.printer), "also kept");
    EXPECT_FALSE(Adding());
}

TEST_P(Pickers, SelectFillsTheBoxesAndAddsNext) {
    Start(kActiveDirectory);
    Prepare();
    PutItems(window, row.combo, {"SRV >> HP", "SRV 2 >> HP 2"});
    SelectRow(window, row.combo, 1);
    Adding() = false;
    Push(window, row.select);
    EXPECT_EQ(TextIn(window, row.server), "SRV 2");
    EXPECT_EQ(TextIn(window, row.printer), "HP 2");
    EXPECT_EQ(TextIn(window, row.type), row.typeAfter);
    EXPECT_TRUE(Adding());
    EXPECT_FALSE(Changed());
}

TEST_P(Pickers, ATypedPrinterWithoutAServerFillsTheServerBoxOnly) {
    Start(kActiveDirectory);
    Prepare();
    PutText(window, row.combo, "lonely");
    Push(window, row.select);
    EXPECT_EQ(TextIn(window, row.server), "lonely");
    EXPECT_EQ(TextIn(window, row.printer), "");
}

class PickedPrinter : public WizardTest {};

TEST_F(PickedPrinter, MeetsALocalPopulateTypeWhichEmptiesTheServerBox) {
    Start(kActiveDirectory);
    Choose(window, "cboPopulateType", 0);
    window->PreparePopulatePage();
    PutText(window, "cboAdPopulate", "SRV >> HP");
    Push(window, "cmdAdPopulateSelect");
    EXPECT_EQ(TextIn(window, "cboPopulateType"), "Networked");
    EXPECT_EQ(TextIn(window, "txtPopulateServerName"), "");
    EXPECT_EQ(TextIn(window, "txtPopulatePrinterName"), "HP");
    EXPECT_TRUE(IsEnabled(window, "txtPopulateServerName"));
}

TEST_F(PickedPrinter, OpensBothBoxesOfAnotherPruneType) {
    Start(kActiveDirectory);
    Choose(window, "cboPruneType", 0);
    window->PreparePrunePage();
    PutText(window, "cboADPrune", "SRV >> HP");
    Push(window, "cmdPruneADSelect");
    EXPECT_EQ(TextIn(window, "txtPruneServerName"), "SRV");
    EXPECT_EQ(TextIn(window, "txtPrunePrinterName"), "HP");
    EXPECT_TRUE(IsEnabled(window, "txtPruneServerName"));
    EXPECT_TRUE(IsEnabled(window, "txtPrunePrinterName"));
}

TEST_F(PickedPrinter, BackFromPopulatePreparesPruneAndMayAsk) {
    Start(kActiveDirectory);
    Enter(window, "cboDomainName", "corp.example");
    ModalScript dialogs;
    dialogs.ExpectMessage(kRefreshQuestion, Answer::No);
    Push(window, "cmdBack(17)");
    EXPECT_EQ(CurrentPage(), 8);
    EXPECT_TRUE(window->m_bolDomainChangedPopulate);
    EXPECT_FALSE(window->m_bolDomainChangedPrune);
}

} // namespace
} // namespace window_test
