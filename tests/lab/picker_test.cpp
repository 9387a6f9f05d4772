// From a real directory into a document: Refresh, Select, Save on the page, save, open again.
#include "platform/directory_service.h"
#include "tests/wizard/wizard_test.h"

#include <algorithm>
#include <cstdlib>

#include <gmock/gmock.h>
#include <wx/odcombo.h>

namespace window_test {
namespace {

using platform::Buttons;
using platform::Icon;

class LabPickers : public WizardTest {
protected:
    LabPickers() { Start(kActiveDirectory); }

    int Count() {
        if (std::system((std::string(std::getenv("LAB_CONTROL")) + " queues 5000").c_str()) != 0) {
            ADD_FAILURE() << "the lab cannot be prepared";
        }
        auto directory = platform::MakeDirectoryService([] { return true; });
        directory->Bind("corp.example");
        directory->Execute();
        return static_cast<int>(directory->RecordCount());
    }
};

TEST_F(LabPickers, APickedQueueReachesTheSavedDocumentAndComesBack) {
    const int count = Count();
    ASSERT_GE(count, 5000);
    Enter(window, "cboDomainName", "corp.example");
    window->m_bolDomainChangedPopulate = false;
    GoTo(modWizard::kPopulatePage);
    window->PreparePopulatePage();
    {
        ModalScript dialogs;
        dialogs.ExpectMessage(
            {std::to_string(count), "Queueshift Deployment Toolkit", Buttons::Ok, Icon::None});
        Push(window, "cmdAdPopulateRefresh");
        ASSERT_TRUE(dialogs.Done());
    }
    const Texts items = ItemsIn(window, "cboAdPopulate");
    ASSERT_EQ(items.size(), static_cast<std::size_t>(count));
    EXPECT_THAT(items, testing::Contains("SRV49 >> Printer-04999"));
    EXPECT_EQ(TextIn(window, "cboAdPopulate"), items.front());

    const auto row = std::ranges::find(items, "SRV07 >> Printer-00007") - items.begin();
    ASSERT_LT(row, count);
    SelectRow(window, "cboAdPopulate", static_cast<int>(row));
    Push(window, "cmdAdPopulateSelect");
    Push(window, "cmdPopulateSave");
    EXPECT_EQ(ItemsIn(window, "lstPopulate"), Texts{"SRV07 >> Printer-00007"});

    const test::TemporaryFolder folder;
    const std::string file = folder.File("picked.ini");
    modINIDocument::g_strINIFilePath = file;
    modINIDocument::g_strINIFileTitle = "picked.ini";
    window->ssaQueueshift_ToolClick("ID_BTN_SAVE");
    EXPECT_FALSE(Changed());

    PutItems(window, "lstPopulate", {});
    modINIDocument::ReadDocument();
    Load();
    EXPECT_EQ(ItemsIn(window, "lstPopulate"), Texts{"SRV07 >> Printer-00007"});
    EXPECT_EQ(TextIn(window, "cboDomainName"), "corp.example");
}

TEST_F(LabPickers, ADomainOutOfReachIsTheAccessErrorWithTheLibrarysWords) {
    Enter(window, "cboDomainName", "dc1.corp.example:1");
    window->m_bolDomainChangedPrune = false;
    GoTo(modWizard::kPrunePage);
    window->PreparePrunePage();
    PutItems(window, "cboADPrune", {"old >> item"});
    ModalScript dialogs;
    dialogs.ExpectMessage(
        {"Error accessing Active Directory. Please check your domain name and "
         "network connection.\r\n\r\nError Number: -1\r\nError Descritpion: Can't "
         "contact LDAP server: Connection refused",
         "Active Directory Error", Buttons::Ok, Icon::Critical});
    Push(window, "cmdAdPruneRefresh");
    EXPECT_EQ(ItemsIn(window, "cboADPrune"), Texts{});
}

} // namespace
} // namespace window_test
