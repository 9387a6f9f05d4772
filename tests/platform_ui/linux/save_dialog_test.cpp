// The save dialog's extension and its question about replacing; on Windows both are the system's.

#include "platform/program.h"
#include "platform/ui/file_dialog.h"
#include "platform/ui/message_box.h"
#include "tests/support/files.h"
#include "tests/support/window/window_test.h"

#include <gtk/gtk.h>
#include <wx/filedlg.h>

namespace window_test {
namespace {

using platform::Answer;

const platform::ui::FileDialogRequest kRequest = {"Save INI file As ...", "UNTITLED.INI",
                                                  "Queueshift (*.ini)|*.ini", "ini"};

class SaveFileDialog : public testing::Test {
protected:
    SaveFileDialog() { platform::ui::InstallMessageBoxes(); }

    static FileDialog Offering(const std::string& name) {
        return {true, kRequest.title, name, kRequest.filter};
    }

    static platform::Message ReplaceQuestion(const std::string& name) {
        return {"A file named \"" + name + "\" already exists.\r\nDo you want to replace it?",
                kRequest.title, platform::Buttons::YesNo, platform::Icon::Exclamation};
    }

    /// The toolkit does not keep track of the system's own windows.
    static void WaitUntilActive(const wxFileDialog& dialog) {
        WaitFor([&] { return gtk_window_is_active(GTK_WINDOW(dialog.GetHandle())) != FALSE; },
                "the file dialog to be active");
    }

    static std::string Ask() { return platform::ui::AskSaveFile(nullptr, kRequest); }

    test::TemporaryFolder folder;
    ModalScript dialogs;
};

TEST_F(SaveFileDialog, ANameWithoutTheExtensionGetsIt) {
    dialogs.ExpectFileDialog(Offering("UNTITLED.INI"), folder.File("Sites"));
    EXPECT_EQ(Ask(), folder.File("Sites.ini"));
    dialogs.ExpectFileDialog(Offering("UNTITLED.INI"), folder.File("Office 2.0"));
    EXPECT_EQ(Ask(), folder.File("Office 2.0.ini"));
    dialogs.ExpectFileDialog(Offering("UNTITLED.INI"), folder.File("Sites."));
    EXPECT_EQ(Ask(), folder.File("Sites.ini"));
}

TEST_F(SaveFileDialog, TheExtensionStaysInAnyCase) {
    dialogs.ExpectFileDialog(Offering("UNTITLED.INI"), folder.File("Sites.INI"));
    EXPECT_EQ(Ask(), folder.File("Sites.INI"));
}

TEST_F(SaveFileDialog, AsksAboutReplacingTheFileThatWillBeWritten) {
    test::WriteBytes(folder.File("Sites.ini"), "old");
    dialogs.ExpectFileDialog(Offering("UNTITLED.INI"), folder.File("Sites"));
    dialogs.ExpectMessage(ReplaceQuestion("Sites.ini"), Answer::Yes);
    EXPECT_EQ(Ask(), folder.File("Sites.ini"));
}

TEST_F(SaveFileDialog, DoesNotAskAboutAFileThatStaysAsItIs) {
    test::WriteBytes(folder.File("Sites"), "another");
    dialogs.ExpectFileDialog(Offering("UNTITLED.INI"), folder.File("Sites"));
    EXPECT_EQ(Ask(), folder.File("Sites.ini"));
}

TEST_F(SaveFileDialog, NoOffersTheNameForAChange) {
    test::WriteBytes(folder.File("Sites.ini"), "old");
    dialogs.ExpectFileDialog(Offering("UNTITLED.INI"), folder.File("Sites.ini"));
    dialogs.ExpectMessage(ReplaceQuestion("Sites.ini"), Answer::No);
    dialogs.ExpectFileDialog(Offering("Sites.ini"), folder.File("Sites2"));
    EXPECT_EQ(Ask(), folder.File("Sites2.ini"));
}

TEST_F(SaveFileDialog, CancelAfterNoGivesNothing) {
    test::WriteBytes(folder.File("Sites.ini"), "old");
    dialogs.ExpectFileDialog(Offering("UNTITLED.INI"), folder.File("Sites.ini"));
    dialogs.ExpectMessage(ReplaceQuestion("Sites.ini"), Answer::No);
    dialogs.ExpectFileDialog(Offering("Sites.ini"), "");
    EXPECT_EQ(Ask(), "");
    EXPECT_EQ(test::ReadBytes(folder.File("Sites.ini")), "old");
}

TEST_F(SaveFileDialog, TheFilterTakesTheExtensionInAnyCase) {
    const auto shows = [](const wxFileDialog& dialog, const char* name) {
        GtkFileFilterInfo info{};
        info.contains = GTK_FILE_FILTER_DISPLAY_NAME;
        info.display_name = name;
        GtkFileFilter* const filter =
            gtk_file_chooser_get_filter(GTK_FILE_CHOOSER(dialog.GetHandle()));
        return gtk_file_filter_filter(filter, &info) != FALSE;
    };
    dialogs.ExpectDialog<wxFileDialog>([&shows](wxFileDialog& dialog) {
        EXPECT_TRUE(shows(dialog, "Sites.ini"));
        EXPECT_TRUE(shows(dialog, "UNTITLED.INI"));
        EXPECT_TRUE(shows(dialog, "Mixed.Ini"));
        EXPECT_FALSE(shows(dialog, "Sites.txt"));
        EXPECT_FALSE(shows(dialog, "Sitesini"));
        return wxID_CANCEL;
    });
    EXPECT_EQ(Ask(), "");
}

TEST_F(SaveFileDialog, TypingANameIntoTheRealDialogGivesItsPath) {
    HostFrame host;
    platform::ui::FileDialogRequest request = kRequest;
    request.initialName = folder.File("UNTITLED.INI");
    dialogs.ExpectLive<wxFileDialog>([](wxFileDialog& dialog) {
        WaitUntilActive(dialog);
        Screenshot("save-dialog");
        Press('A', wxMOD_CONTROL);
        Type("Live");
        Press(WXK_RETURN);
    });
    EXPECT_EQ(platform::ui::AskSaveFile(&host.Frame(), request), folder.File("Live.ini"));
}

TEST_F(SaveFileDialog, EscapeInTheRealDialogGivesNothing) {
    HostFrame host;
    dialogs.ExpectLive<wxFileDialog>([](wxFileDialog& dialog) {
        WaitUntilActive(dialog);
        Press(WXK_ESCAPE);
    });
    EXPECT_EQ(platform::ui::AskSaveFile(&host.Frame(), kRequest), "");
}

} // namespace
} // namespace window_test
