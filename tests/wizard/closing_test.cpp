// Closing the main window with and without unsaved work.
#include "platform/program.h"
#include "tests/wizard/wizard_test.h"

namespace window_test {
namespace {

using platform::Answer;

const platform::Message kQuestion{"You have unsaved work, do you want to save before exiting?",
                                  "Save?", platform::Buttons::YesNoCancel,
                                  platform::Icon::Question};
const platform::Message kWriteError{"Unable to save INI file. Please check your permissions to the "
                                    "folder and file you are attempting to save.",
                                    "Write Error", platform::Buttons::Ok, platform::Icon::Critical};
const FileDialog kSaveDialog{true, "Save INI file As ...", "UNTITLED.INI",
                             "Queueshift (*.ini)|*.ini"};

class Closing : public WizardTest {
protected:
    void StartWithWork() {
        Start(kManual);
        Tick(window, "chkAlwaysRun");
        ASSERT_TRUE(Changed());
    }

    void ExpectGone() {
        EXPECT_TRUE(WaitFor([this] { return !window; }, "the window to go"));
    }

    void ExpectOpen() {
        Pump();
        ASSERT_TRUE(window);
        EXPECT_FALSE(window->IsBeingDeleted());
        EXPECT_TRUE(Changed());
    }
};

TEST_F(Closing, AsksNothingWithoutUnsavedWork) {
    Start(kManual);
    const ModalScript noDialogs;
    window->Close();
    ExpectGone();
}

TEST_F(Closing, ExitIsClosing) {
    StartWithWork();
    ModalScript dialogs;
    dialogs.ExpectMessage(kQuestion, Answer::Cancel);
    window->ssaQueueshift_ToolClick("ID_BTN_EXIT");
    ExpectOpen();
    dialogs.ExpectMessage(kQuestion, Answer::No);
    window->ssaQueueshift_ToolClick("ID_BTN_EXIT");
    ExpectGone();
}

TEST_F(Closing, CancelKeepsTheWindow) {
    StartWithWork();
    ModalScript dialogs;
    dialogs.ExpectMessage(kQuestion, Answer::Cancel);
    window->Close();
    ExpectOpen();
    EXPECT_TRUE(IsTicked(window, "chkAlwaysRun"));
}

TEST_F(Closing, NoDropsTheWork) {
    StartWithWork();
    const test::TemporaryFolder folder;
    modINIDocument::g_strINIFilePath = folder.File("kept.ini");
    ModalScript dialogs;
    dialogs.ExpectMessage(kQuestion, Answer::No);
    window->Close();
    ExpectGone();
    EXPECT_EQ(folder.EntryCount(), 0);
}

TEST_F(Closing, YesSavesWithoutTheSaveChecks) {
    StartWithWork();
    const test::TemporaryFolder folder;
    modINIDocument::g_strINIFilePath = folder.File("kept.ini");
    ModalScript dialogs;
    dialogs.ExpectMessage(kQuestion, Answer::Yes);
    window->Close();
    ExpectGone();
    EXPECT_NE(test::ReadBytes(folder.File("kept.ini")).find("AlwaysRun=True\r\n"),
              std::string::npos);
}

TEST_F(Closing, YesAsksForTheNameOfAnUntitledDocument) {
    StartWithWork();
    const test::TemporaryFolder folder;
    ModalScript dialogs;
    dialogs.ExpectMessage(kQuestion, Answer::Yes);
    dialogs.ExpectFileDialog(kSaveDialog, folder.File("new.ini"));
    window->Close();
    ExpectGone();
    EXPECT_NE(test::ReadBytes(folder.File("new.ini")).find("AlwaysRun=True\r\n"),
              std::string::npos);
}

TEST_F(Closing, ACancelledSaveDialogKeepsTheWindowAndTheWork) {
    StartWithWork();
    ModalScript dialogs;
    dialogs.ExpectMessage(kQuestion, Answer::Yes);
    dialogs.ExpectFileDialog(kSaveDialog, "");
    window->Close();
    ExpectOpen();
    EXPECT_EQ(modINIDocument::g_strINIFilePath, "");
}

TEST_F(Closing, AFailedWriteKeepsTheWindowAndTheWork) {
    StartWithWork();
    const test::TemporaryFolder folder;
    test::WriteBytes(folder.File("kept.ini"), "[OTHER]\r\n");
    test::Protect(folder.File("kept.ini"));
    modINIDocument::g_strINIFilePath = folder.File("kept.ini");
    ModalScript dialogs;
    dialogs.ExpectMessage(kQuestion, Answer::Yes);
    dialogs.ExpectMessage(kWriteError);
    window->Close();
    ExpectOpen();
    EXPECT_EQ(test::ReadBytes(folder.File("kept.ini")), "[OTHER]\r\n");
}

// The document is bound to the file from the moment its name is chosen: the next Save goes there
// without a question, so the window that stays open says so.
TEST_F(Closing, AFailedWriteUnderANewNameShowsThatNameInTheCaption) {
    StartWithWork();
    const test::TemporaryFolder folder;
    const std::string chosen = platform::JoinPath(folder.File("gone"), "kept.ini");
    ModalScript dialogs;
    dialogs.ExpectMessage(kQuestion, Answer::Yes);
    dialogs.ExpectFileDialog(kSaveDialog, chosen);
    dialogs.ExpectMessage(kWriteError);
    window->Close();
    ExpectOpen();
    EXPECT_EQ(modINIDocument::g_strINIFilePath, chosen);
    EXPECT_EQ(Caption(), "Queueshift - Deployment Toolkit [kept.ini]");
}

TEST_F(Closing, AWindowThatWorksDoesNotClose) {
    StartWithWork();
    window->Disable();
    const ModalScript noDialogs;
    window->Close();
    ExpectOpen();
}

} // namespace
} // namespace window_test
