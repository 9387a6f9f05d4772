// The Existing tab of the new-document dialog: drives, folders and INI files.

#include "tests/files/new_ini_dialog_test.h"

#include "platform/program.h"
#include "platform/volumes.h"
#include "tests/support/files.h"

#include <algorithm>

namespace window_test {
namespace {

class ExistingTab : public NewINIDialog {
protected:
    ExistingTab() {
        sites = folder.Subfolder("sites");
        test::WriteBytes(platform::JoinPath(sites, "Alpha.ini"), "");
        test::WriteBytes(platform::JoinPath(sites, "beta.INI"), "");
        test::WriteBytes(platform::JoinPath(sites, "notes.txt"), "");
        dialog.ShowTab(frmNewINI::kExistingTab);
    }

    [[nodiscard]] int RowOf(const std::string& name) const {
        const auto rows = Rows(*dialog.dirExistingINI);
        return static_cast<int>(std::ranges::find(rows, name) - rows.begin());
    }

    test::TemporaryFolder folder;
    std::string sites;
};

TEST_F(ExistingTab, BeginsInTheStartFolder) {
    EXPECT_EQ(dialog.ExistingFolder(), platform::StartFolder());
    EXPECT_NE(dialog.drvExistingINI->GetSelection(), wxNOT_FOUND);
}

TEST_F(ExistingTab, OffersTheVolumesOfTheComputer) {
    std::vector<std::string> labels;
    for (const platform::Volume& volume : platform::Volumes()) {
        labels.push_back(volume.label);
    }
    EXPECT_EQ(Rows(*dialog.drvExistingINI), labels);
}

TEST_F(ExistingTab, ShowsTheWayFromTheRootThenTheFoldersOneLevelDeeper) {
    dialog.OpenFolder(folder.Path());
    const auto chain = platform::FolderChain(folder.Path());
    std::vector<std::string> expected;
    for (const std::string& step : chain) {
        expected.push_back(platform::LastName(step));
    }
    expected.push_back("sites");
    EXPECT_EQ(Rows(*dialog.dirExistingINI), expected);
    EXPECT_EQ(dialog.dirExistingINI->GetSelection(), static_cast<int>(chain.size()) - 1);
    std::size_t last = 0;
    for (unsigned row = 1; row < dialog.dirExistingINI->GetCount(); ++row) {
        const std::size_t indent = dialog.dirExistingINI->GetString(row).find_first_not_of(' ');
        EXPECT_GT(indent, last) << "row " << row;
        last = indent;
    }
}

TEST_F(ExistingTab, ListsIniFilesInAnyCaseAndNothingElse) {
    dialog.OpenFolder(sites);
    EXPECT_EQ(Rows(*dialog.filExistingINI), (std::vector<std::string>{"Alpha.ini", "beta.INI"}));
    EXPECT_EQ(dialog.ExistingFolder(), sites);
    EXPECT_EQ(dialog.ExistingFileName(), "");
    dialog.filExistingINI->SetStringSelection("beta.INI");
    EXPECT_EQ(dialog.ExistingFileName(), "beta.INI");
}

TEST_F(ExistingTab, ADriveOpensItsRoot) {
    dialog.OpenFolder(sites);
    dialog.drvExistingINI->SetSelection(0);
    dialog.drvExistingINI_Change();
    EXPECT_EQ(dialog.ExistingFolder(), platform::VolumePath(platform::Volumes().front()));
}

TEST_F(ExistingTab, ASingleClickOnAFolderOnlySelectsIt) {
    dialog.OpenFolder(folder.Path());
    dialog.dirExistingINI->SetSelection(RowOf("sites"));
    EXPECT_EQ(dialog.ExistingFolder(), folder.Path());
}

TEST_F(ExistingTab, EnterOpensTheSelectedFolder) {
    dialog.OpenFolder(folder.Path());
    Run([this](frmNewINI& shown) {
        FocusOn(shown.dirExistingINI);
        shown.dirExistingINI->SetSelection(RowOf("sites"));
        Press(WXK_RETURN);
        EXPECT_EQ(shown.ExistingFolder(), sites);
        EXPECT_TRUE(shown.IsShown());
        shown.dirExistingINI->SetSelection(0);
        Press(WXK_RETURN);
        EXPECT_EQ(shown.ExistingFolder(), platform::FolderChain(sites).front());
        ClickOn(shown.cmdCancel);
    });
    EXPECT_TRUE(frmNewINI::g_bolCancelPressed) << "Enter was Select as well";
}

TEST_F(ExistingTab, EnterOnAFileIsSelect) {
    frmNewINI::g_bolCancelPressed = true;
    dialog.OpenFolder(sites);
    int selects = 0;
    dialog.cmdSelect->Bind(wxEVT_BUTTON, [&selects](wxCommandEvent&) { ++selects; });
    Run([](frmNewINI& shown) {
        FocusOn(shown.filExistingINI);
        shown.filExistingINI->SetSelection(1);
        Press(WXK_RETURN);
    });
    EXPECT_FALSE(frmNewINI::g_bolCancelPressed);
    EXPECT_EQ(dialog.ExistingFileName(), "beta.INI");
    EXPECT_EQ(selects, 0) << "the default button was worked as well";
}

TEST_F(ExistingTab, ADoubleClickOnAFolderOpensIt) {
    // A folder at the top of the list is on the screen whatever the depth of the test's own folder.
    dialog.OpenFolder(sites);
    const std::string root = platform::FolderChain(sites).front();
    Run([&](frmNewINI& shown) {
        shown.dirExistingINI->SetFirstItem(0);
        Pump();
        DoubleClickOn(shown.dirExistingINI, wxPoint(20, shown.GetCharHeight() / 2 + 2));
        WaitFor([&] { return shown.ExistingFolder() == root; }, "the root to be opened");
        ClickOn(shown.cmdCancel);
    });
}

TEST_F(ExistingTab, ADoubleClickOnAFileIsSelect) {
    frmNewINI::g_bolCancelPressed = true;
    dialog.OpenFolder(sites);
    Run([](frmNewINI& shown) {
        DoubleClickOn(shown.filExistingINI, wxPoint(20, shown.GetCharHeight() / 2 + 2));
    });
    EXPECT_FALSE(frmNewINI::g_bolCancelPressed);
    EXPECT_EQ(dialog.ExistingFileName(), "Alpha.ini");
    EXPECT_FALSE(dialog.IsShown());
}

TEST_F(ExistingTab, TheFocusAloneChoosesNoFile) {
    Run([this](frmNewINI& shown) {
        shown.OpenFolder(sites);
        FocusOn(shown.filExistingINI);
        Pump();
        EXPECT_EQ(shown.filExistingINI->GetSelection(), wxNOT_FOUND);
        Press(WXK_ESCAPE);
    });
    EXPECT_EQ(dialog.ExistingFileName(), "");
}

TEST_F(ExistingTab, SelectDoesNotAskForAFile) {
    dialog.OpenFolder(sites);
    Run([](frmNewINI& shown) { ClickOn(shown.cmdSelect); });
    EXPECT_FALSE(frmNewINI::g_bolCancelPressed);
    EXPECT_EQ(dialog.ExistingFileName(), "");
}

TEST_F(ExistingTab, CanBeShownAgainAsItWasLeft) {
    dialog.OpenFolder(sites);
    Run([](frmNewINI& shown) { ClickOn(shown.cmdSelect); });
    Run([](frmNewINI& shown) {
        EXPECT_EQ(shown.CurrentTab(), frmNewINI::kExistingTab);
        shown.filExistingINI->SetSelection(0);
        ClickOn(shown.cmdSelect);
    });
    EXPECT_EQ(dialog.ExistingFolder(), sites);
    EXPECT_EQ(dialog.ExistingFileName(), "Alpha.ini");
}

} // namespace
} // namespace window_test
