// What the fields take of a text of several lines.
#include "editors/active_directory_page.h"
#include "editors/client_popup_page.h"
#include "editors/controls.h"
#include "editors/folder_field.h"
#include "editors/maintenance_pages.h"
#include "editors/pair_pages.h"

#include "tests/editors/page_test.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

namespace window_test {
namespace {

class OneLine : public PageTest {
protected:
    // Pastes three lines into an empty field, as the keyboard does.
    void ExpectFirstLine(wxWindow* field, const wxTextEntry& entry) {
        Show();
        FocusOn(field);
        const wxString lines = "first\nsecond\r\nthird";
        ASSERT_TRUE(wxTheClipboard->Open());
        wxTheClipboard->SetData(new wxTextDataObject(lines));
        wxTheClipboard->Close();
        Press('V', wxMOD_CONTROL);
        WaitFor([&] { return !entry.IsEmpty(); }, "the text");
        EXPECT_EQ(entry.GetValue(), "first") << field->GetName();
    }
};

TEST_F(OneLine, ATextBoxTakesTheFirst) {
    auto& servers = Make<editors::ServersPage>(2);
    ExpectFirstLine(servers.txtFromServer, *servers.txtFromServer);
}

TEST_F(OneLine, AMessageTakesTheFirst) {
    auto& popup = Make<editors::ClientPopupPage>(6);
    ExpectFirstLine(popup.txtFailureMessage, *popup.txtFailureMessage);
}

TEST_F(OneLine, TheDomainTakesTheFirst) {
    auto& directory = Make<editors::ActiveDirectoryPage>(1);
    ExpectFirstLine(directory.cboDomainName, *directory.cboDomainName);
}

TEST_F(OneLine, APickerTakesTheFirst) {
    auto& prune = Make<editors::PrunePage>(12);
    ExpectFirstLine(prune.cboADPrune, *prune.cboADPrune);
}

TEST_F(OneLine, AFieldThatTheProgramFillsTakesTheFirst) {
    auto& servers = Make<editors::ServersPage>(2);
    editors::PutText(*servers.txtFromServer, "first\nsecond");
    EXPECT_EQ(editors::TextOf(*servers.txtFromServer), "first");
}

TEST_F(OneLine, AFolderWithALineBreakInItsNameIsTakenUpToIt) {
    const editors::FolderServices folders{
        .browse = [](wxWindow*) { return std::string("/srv/first\nsecond"); },
        .exists = [](const std::string&) { return true; },
    };
    auto& servers = Make<editors::ServersPage>(2);
    editors::BrowseInto(*servers.txtFromServer, folders);
    EXPECT_EQ(editors::TextOf(*servers.txtFromServer), "/srv/first");
}

} // namespace
} // namespace window_test
