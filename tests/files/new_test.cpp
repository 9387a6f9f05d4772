// Starting documents: the untitled one, and New.

#include "tests/files/file_commands_test.h"

#include <wx/notebook.h>
#include <wx/radiobut.h>

namespace window_test {
namespace {

using modINIDocument::kFalse;
using modINIDocument::kTrue;
using platform::Answer;

class New : public FileCommands {
protected:
    void ExpectChoice(bool activeDirectory) {
        dialogs.ExpectDialog<frmNewINI>([activeDirectory](frmNewINI& dialog) {
            (activeDirectory ? dialog.optUseActiveDirectory : dialog.optUseManualConfiguration)
                ->SetValue(true);
            dialog.cmdSelect_Click();
            return wxID_OK;
        });
    }

    void ExpectCancel() {
        dialogs.ExpectDialog<frmNewINI>([](frmNewINI& dialog) {
            dialog.cmdCancel_Click();
            return wxID_CANCEL;
        });
    }
};

TEST_F(New, AnUntitledDocumentHasDefaultsNoFileAndNoMark) {
    BindTo("somewhere", "Sites.ini");
    g_Document.DomainName = "corp.example";
    g_Document.ServerPairs = {{"A", "B"}};
    g_bolDocumentChanged = true;
    modINIFile::StartUntitledDocument();
    EXPECT_EQ(g_strINIFilePath, "");
    EXPECT_EQ(g_strINIFileTitle, "UNTITLED");
    EXPECT_EQ(g_Document.DomainName, "");
    EXPECT_EQ(g_Document.ServerPairs, std::vector<modINIDocument::NamePair>(1));
    EXPECT_EQ(window.calls, Calls{"LoadDocumentToForm"});
    EXPECT_EQ(window.domainOnForm, "");
    EXPECT_FALSE(g_bolDocumentChanged);
}

TEST_F(New, BeginsWithActiveDirectoryExistingAvailableAndRecentNot) {
    dialogs.ExpectDialog<frmNewINI>([](frmNewINI& dialog) {
        EXPECT_TRUE(dialog.optUseActiveDirectory->GetValue());
        EXPECT_FALSE(dialog.optUseManualConfiguration->GetValue());
        EXPECT_EQ(dialog.CurrentTab(), frmNewINI::kNewTab);
        EXPECT_TRUE(dialog.sstNewINI->GetPage(1)->IsEnabled());
        EXPECT_FALSE(dialog.sstNewINI->GetPage(2)->IsEnabled());
        dialog.cmdCancel_Click();
        return wxID_CANCEL;
    });
    modINIFile::NewINIFile();
}

TEST_F(New, SelectStartsAnUntitledActiveDirectoryDocument) {
    BindTo("somewhere", "Sites.ini");
    g_Document.DomainName = "old.example";
    ExpectChoice(true);
    modINIFile::NewINIFile();
    EXPECT_EQ(g_Document.UseActiveDirectory, kTrue);
    EXPECT_EQ(g_Document.UseManualDefinitions, kFalse);
    EXPECT_EQ(g_strINIFilePath, "");
    EXPECT_EQ(g_strINIFileTitle, "UNTITLED");
    EXPECT_EQ(g_Document.DomainName, "");
    EXPECT_FALSE(g_bolDocumentChanged);
    EXPECT_EQ(window.calls,
              (Calls{"LoadDocumentToForm", "LoadDocumentToForm", "InitializeTreeView"}));
}

TEST_F(New, SelectStartsAManualDocument) {
    ExpectChoice(false);
    modINIFile::NewINIFile();
    EXPECT_EQ(g_Document.UseActiveDirectory, kFalse);
    EXPECT_EQ(g_Document.UseManualDefinitions, kTrue);
    EXPECT_FALSE(g_bolDocumentChanged);
}

TEST_F(New, CancelKeepsTheRecordRefillsTheControlsAndClearsTheMark) {
    BindTo("somewhere", "Sites.ini");
    g_Document.DomainName = "kept.example";
    Edit("lost.example");
    dialogs.ExpectMessage(NewQuestion(), Answer::No);
    ExpectCancel();
    modINIFile::NewINIFile();
    EXPECT_EQ(g_Document.DomainName, "kept.example");
    EXPECT_EQ(window.domainOnForm, "kept.example");
    EXPECT_EQ(g_strINIFilePath, "somewhere");
    EXPECT_EQ(g_strINIFileTitle, "Sites.ini");
    EXPECT_FALSE(g_bolDocumentChanged);
    EXPECT_EQ(window.calls, kLoaded);
}

TEST_F(New, NoDropsTheChanges) {
    Edit("lost.example");
    dialogs.ExpectMessage(NewQuestion(), Answer::No);
    ExpectChoice(true);
    modINIFile::NewINIFile();
    EXPECT_EQ(window.domainOnForm, "");
    EXPECT_EQ(window.calls.front(), "LoadDocumentToForm");
}

TEST_F(New, YesSavesToTheCurrentFileFirst) {
    const std::string current = Stored("Current.ini", "old.example");
    BindTo(current, "Current.ini");
    Edit("edited.example");
    dialogs.ExpectMessage(NewQuestion(), Answer::Yes);
    ExpectChoice(true);
    modINIFile::NewINIFile();
    EXPECT_EQ(DomainIn(current), "edited.example");
    EXPECT_EQ(g_strINIFilePath, "");
}

TEST_F(New, YesOnAnUntitledDocumentAsksForItsName) {
    const std::string saved = folder.File("Saved.ini");
    Edit("edited.example");
    dialogs.ExpectMessage(NewQuestion(), Answer::Yes);
    dialogs.ExpectFileDialog(SaveDialog(), saved);
    ExpectChoice(false);
    modINIFile::NewINIFile();
    EXPECT_EQ(DomainIn(saved), "edited.example");
    EXPECT_EQ(g_strINIFileTitle, "UNTITLED");
}

TEST_F(New, YesAndACancelledSaveDialogEndTheCommand) {
    Edit("edited.example");
    dialogs.ExpectMessage(NewQuestion(), Answer::Yes);
    dialogs.ExpectFileDialog(SaveDialog(), "");
    modINIFile::NewINIFile();
    EXPECT_TRUE(g_bolDocumentChanged);
    EXPECT_EQ(g_strINIFileTitle, "UNTITLED");
    EXPECT_EQ(window.domainOnForm, "edited.example");
    EXPECT_EQ(window.calls, Calls());
}

TEST_F(New, CancelAfterASaveKeepsTheSavedDocument) {
    const std::string current = Stored("Current.ini", "old.example");
    BindTo(current, "Current.ini");
    Edit("edited.example");
    dialogs.ExpectMessage(NewQuestion(), Answer::Yes);
    ExpectCancel();
    modINIFile::NewINIFile();
    EXPECT_EQ(g_strINIFilePath, current);
    EXPECT_EQ(window.domainOnForm, "edited.example");
}

} // namespace
} // namespace window_test
