// Save and Save As.

#include "tests/files/file_commands_test.h"

namespace window_test {
namespace {

using platform::PathExists;

class Save : public FileCommands {};

TEST_F(Save, DoesNothingForACleanDocumentThatWasNeverSaved) {
    modINIFile::SaveINIFile();
    EXPECT_EQ(window.calls, Calls());
    EXPECT_EQ(folder.EntryCount(), 0);
    EXPECT_EQ(g_strINIFileTitle, "UNTITLED");
}

TEST_F(Save, DoesNothingForACleanDocumentWithAFile) {
    BindTo(folder.File("Sites.ini"), "Sites.ini");
    modINIFile::SaveINIFile();
    EXPECT_EQ(window.calls, Calls());
    EXPECT_FALSE(PathExists(folder.File("Sites.ini")));
}

TEST_F(Save, TakesTheControlsThenWritesThenClearsTheMark) {
    BindTo(folder.File("Sites.ini"), "Sites.ini");
    Edit("corp.example");
    bool writtenBefore = true;
    bool markedBefore = false;
    window.onSave = [&] {
        writtenBefore = PathExists(folder.File("Sites.ini"));
        markedBefore = g_bolDocumentChanged;
    };
    modINIFile::SaveINIFile();
    EXPECT_EQ(window.calls, kSaved);
    EXPECT_FALSE(writtenBefore);
    EXPECT_TRUE(markedBefore);
    EXPECT_EQ(DomainIn(folder.File("Sites.ini")), "corp.example");
    EXPECT_FALSE(g_bolDocumentChanged);
}

TEST_F(Save, AsksForANameWhenThereIsNone) {
    Edit("corp.example");
    const std::string path = folder.File("Sites.ini");
    dialogs.ExpectFileDialog(SaveDialog(), path);
    modINIFile::SaveINIFile();
    EXPECT_EQ(g_strINIFilePath, path);
    EXPECT_EQ(g_strINIFileTitle, "Sites.ini");
    EXPECT_EQ(DomainIn(path), "corp.example");
    EXPECT_FALSE(g_bolDocumentChanged);
    EXPECT_EQ(modINIFile::g_CommonDialog.FileName, path);
    EXPECT_EQ(modINIFile::g_CommonDialog.FileTitle, "Sites.ini");
}

TEST_F(Save, ClearsTheMarkBeforeTheControlsAreTakenUnderANewName) {
    Edit("corp.example");
    bool marked = true;
    window.onSave = [&] { marked = g_bolDocumentChanged; };
    dialogs.ExpectFileDialog(SaveDialog(), folder.File("Sites.ini"));
    modINIFile::SaveINIFile();
    EXPECT_FALSE(marked);
}

TEST_F(Save, ACancelledDialogLeavesEverythingAsItWas) {
    Edit("corp.example");
    dialogs.ExpectFileDialog(SaveDialog(), "");
    modINIFile::SaveINIFile();
    EXPECT_TRUE(g_bolDocumentChanged);
    EXPECT_EQ(g_strINIFilePath, "");
    EXPECT_EQ(g_strINIFileTitle, "UNTITLED");
    EXPECT_EQ(window.calls, Calls());
    EXPECT_EQ(g_Document.DomainName, "");
    EXPECT_EQ(folder.EntryCount(), 0);
    EXPECT_EQ(modINIFile::g_CommonDialog.FileTitle, "");
    EXPECT_EQ(modINIFile::g_CommonDialog.FileName, "UNTITLED.INI");
}

TEST_F(Save, AFailedWriteReportsOnceAndIsNotTriedAgain) {
    BindTo(folder.File("missing/Sites.ini"), "Sites.ini");
    Edit("corp.example");
    dialogs.ExpectMessage({"Unable to save INI file. Please check your permissions to the folder "
                           "and file you are attempting to save.",
                           "Write Error", platform::Buttons::Ok, platform::Icon::Critical});
    modINIFile::SaveINIFile();
    EXPECT_TRUE(g_Document.WriteFailed);
    EXPECT_FALSE(g_bolDocumentChanged);
    EXPECT_EQ(folder.EntryCount(), 0);
}

using SaveAs = Save;

TEST_F(SaveAs, AlwaysAsksAndOffersUntitledAlsoForADocumentWithAFile) {
    const std::string old = Stored("Old.ini", "old.example");
    BindTo(old, "Old.ini");
    window.domainOnForm = "new.example";
    const std::string path = folder.File("New.ini");
    dialogs.ExpectFileDialog(SaveDialog(), path);
    modINIFile::SaveINIFileAs();
    EXPECT_EQ(g_strINIFilePath, path);
    EXPECT_EQ(g_strINIFileTitle, "New.ini");
    EXPECT_EQ(window.calls, kSaved);
    EXPECT_EQ(DomainIn(path), "new.example");
    EXPECT_EQ(DomainIn(old), "old.example");
}

TEST_F(SaveAs, CancelledKeepsFileAndMark) {
    const std::string old = Stored("Old.ini", "old.example");
    BindTo(old, "Old.ini");
    Edit("new.example");
    dialogs.ExpectFileDialog(SaveDialog(), "");
    modINIFile::SaveINIFileAs();
    EXPECT_EQ(g_strINIFilePath, old);
    EXPECT_EQ(g_strINIFileTitle, "Old.ini");
    EXPECT_TRUE(g_bolDocumentChanged);
    EXPECT_EQ(window.calls, Calls());
}

TEST_F(SaveAs, KeepsTheNameAsTyped) {
    const std::string path = folder.File("Größe 2.INI");
    dialogs.ExpectFileDialog(SaveDialog(), path);
    modINIFile::SaveINIFileAs();
    EXPECT_EQ(g_strINIFileTitle, "Größe 2.INI");
    EXPECT_TRUE(PathExists(path));
}

} // namespace
} // namespace window_test
