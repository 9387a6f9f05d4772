// Open, and reading a file that may be damaged.

#include "tests/files/file_commands_test.h"

namespace window_test {
namespace {

using platform::Answer;

// A later key of the list has more pieces than the first.
constexpr const char* kDamaged = "[MANUAL DEFINITIONS SERVERS]\r\n"
                                 "FromServers=A\r\n"
                                 "ToServers=B,C,D\r\n";

class Open : public FileCommands {
protected:
    void ExpectLoaded(const std::string& path, const std::string& title,
                      const std::string& domain) {
        EXPECT_EQ(g_strINIFilePath, path);
        EXPECT_EQ(g_strINIFileTitle, title);
        EXPECT_EQ(g_Document.DomainName, domain);
        EXPECT_EQ(window.domainOnForm, domain);
        EXPECT_FALSE(g_bolDocumentChanged);
    }
};

TEST_F(Open, LoadsTheChosenFileIntoRecordControlsAndTree) {
    const std::string path = Stored("Sites.ini", "corp.example");
    dialogs.ExpectFileDialog(OpenDialog(), path);
    modINIFile::OpenINIFile();
    ExpectLoaded(path, "Sites.ini", "corp.example");
    EXPECT_EQ(window.calls, kLoaded);
}

TEST_F(Open, OffersTheLastNameTheNextTime) {
    const std::string path = Stored("Sites.ini", "corp.example");
    dialogs.ExpectFileDialog(OpenDialog(), path);
    modINIFile::OpenINIFile();
    dialogs.ExpectFileDialog(OpenDialog("Sites.ini"), "");
    modINIFile::OpenINIFile();
    EXPECT_EQ(modINIFile::g_CommonDialog.FileName, path);
}

TEST_F(Open, CancelledChangesNothing) {
    const std::string path = Stored("Sites.ini", "corp.example");
    BindTo(path, "Sites.ini");
    dialogs.ExpectFileDialog(OpenDialog(), "");
    modINIFile::OpenINIFile();
    EXPECT_EQ(g_strINIFilePath, path);
    EXPECT_EQ(g_strINIFileTitle, "Sites.ini");
    EXPECT_EQ(window.calls, Calls());
    EXPECT_FALSE(g_bolDocumentChanged);
}

TEST_F(Open, NoDropsTheChangesWithoutASecondQuestion) {
    const std::string path = Stored("Sites.ini", "corp.example");
    Edit("unsaved.example");
    dialogs.ExpectMessage(OpenQuestion(), Answer::No);
    dialogs.ExpectFileDialog(OpenDialog(), path);
    modINIFile::OpenINIFile();
    ExpectLoaded(path, "Sites.ini", "corp.example");
    EXPECT_EQ(window.calls, kLoaded);
}

TEST_F(Open, NoAndThenCancelKeepsTheChanges) {
    Edit("unsaved.example");
    dialogs.ExpectMessage(OpenQuestion(), Answer::No);
    dialogs.ExpectFileDialog(OpenDialog(), "");
    modINIFile::OpenINIFile();
    EXPECT_TRUE(g_bolDocumentChanged);
    EXPECT_EQ(window.domainOnForm, "unsaved.example");
    EXPECT_EQ(window.calls, Calls());
}

TEST_F(Open, YesSavesToTheCurrentFileFirst) {
    const std::string current = Stored("Current.ini", "old.example");
    const std::string other = Stored("Other.ini", "other.example");
    BindTo(current, "Current.ini");
    Edit("edited.example");
    dialogs.ExpectMessage(OpenQuestion(), Answer::Yes);
    dialogs.ExpectFileDialog(OpenDialog(), other);
    modINIFile::OpenINIFile();
    EXPECT_EQ(DomainIn(current), "edited.example");
    ExpectLoaded(other, "Other.ini", "other.example");
    EXPECT_EQ(window.calls,
              (Calls{"SaveFormToDocument", "LoadDocumentToForm", "InitializeTreeView"}));
}

TEST_F(Open, YesOnAnUntitledDocumentAsksForItsName) {
    const std::string other = Stored("Other.ini", "other.example");
    const std::string saved = folder.File("Saved.ini");
    Edit("edited.example");
    dialogs.ExpectMessage(OpenQuestion(), Answer::Yes);
    dialogs.ExpectFileDialog(SaveDialog(), saved);
    dialogs.ExpectFileDialog(OpenDialog("Saved.ini"), other);
    modINIFile::OpenINIFile();
    EXPECT_EQ(DomainIn(saved), "edited.example");
    ExpectLoaded(other, "Other.ini", "other.example");
}

TEST_F(Open, YesAndACancelledSaveDialogEndTheCommand) {
    Edit("edited.example");
    dialogs.ExpectMessage(OpenQuestion(), Answer::Yes);
    dialogs.ExpectFileDialog(SaveDialog(), "");
    modINIFile::OpenINIFile();
    EXPECT_TRUE(g_bolDocumentChanged);
    EXPECT_EQ(g_strINIFilePath, "");
    EXPECT_EQ(g_strINIFileTitle, "UNTITLED");
    EXPECT_EQ(window.domainOnForm, "edited.example");
    EXPECT_EQ(window.calls, Calls());
}

TEST_F(Open, ADamagedListReportsOnceAndStartsAnUntitledDocument) {
    const std::string path = folder.File("Damaged.ini");
    test::WriteBytes(path, kDamaged);
    BindTo(folder.File("Before.ini"), "Before.ini");
    g_Document.DomainName = "before.example";
    dialogs.ExpectFileDialog(OpenDialog(), path);
    dialogs.ExpectMessage(ReadFailure());
    modINIFile::OpenINIFile();
    EXPECT_EQ(g_strINIFilePath, "");
    EXPECT_EQ(g_strINIFileTitle, "UNTITLED");
    EXPECT_EQ(g_Document.DomainName, "");
    EXPECT_EQ(g_Document.ServerPairs.size(), 1U);
    EXPECT_EQ(g_Document.ServerPairs.front(), modINIDocument::NamePair());
    EXPECT_EQ(window.domainOnForm, "");
    EXPECT_FALSE(g_bolDocumentChanged);
    EXPECT_EQ(window.calls.back(), "InitializeTreeView");
}

TEST_F(Open, ReadingTellsWhetherTheDocumentIsTheFiles) {
    g_strINIFilePath = Stored("Sites.ini", "corp.example");
    EXPECT_TRUE(modINIFile::ReadDocumentOrStartUntitled());
    EXPECT_EQ(g_Document.DomainName, "corp.example");

    g_strINIFilePath = folder.File("Damaged.ini");
    test::WriteBytes(g_strINIFilePath, kDamaged);
    dialogs.ExpectMessage(ReadFailure());
    EXPECT_FALSE(modINIFile::ReadDocumentOrStartUntitled());
    EXPECT_EQ(g_strINIFilePath, "");
}

TEST_F(Open, AnUnreadableFileIsReportedByTheReaderAlone) {
    const std::string path = folder.File("Vanished.ini");
    dialogs.ExpectFileDialog(OpenDialog(), path);
    dialogs.ExpectMessage(ReadFailure());
    modINIFile::OpenINIFile();
    EXPECT_EQ(g_strINIFilePath, path);
    EXPECT_TRUE(g_Document.ReadFailed);
    EXPECT_EQ(window.calls, kLoaded);
}

TEST_F(Open, AWriteProtectedFileIsRefusedAndTheDialogComesAgain) {
    const std::string guarded = Stored("Guarded.ini", "guarded.example");
    const std::string open = Stored("Open.ini", "open.example");
    test::Protect(guarded);
    dialogs.ExpectFileDialog(OpenDialog(), guarded);
    dialogs.ExpectMessage(
        {"The file \"Guarded.ini\" is write-protected and cannot be opened for "
         "editing.\r\nPlease choose another file, or remove the protection first.",
         "Open INI File ...", platform::Buttons::Ok, platform::Icon::Exclamation});
    dialogs.ExpectFileDialog(OpenDialog("Guarded.ini"), open);
    modINIFile::OpenINIFile();
    ExpectLoaded(open, "Open.ini", "open.example");
}

} // namespace
} // namespace window_test
