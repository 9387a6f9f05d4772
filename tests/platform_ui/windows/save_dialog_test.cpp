// The system's save dialog, shown for real: it adds the extension before it asks about replacing.

#include "platform/ui/file_dialog.h"

#include "tests/support/files.h"
#include "tests/support/window/window_test.h"

#include <wx/filedlg.h>
#include <wx/timer.h>

#include <dlgs.h>
#include <windows.h>

namespace window_test {
namespace {

constexpr int kPollMilliseconds = 50;
constexpr int kPolls = 400;

std::vector<HWND> DialogsOnScreen() {
    std::vector<HWND> found;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM data) -> BOOL {
            wchar_t name[64] = {};
            ::GetClassNameW(window, name, 64);
            if (std::wstring(name) == L"#32770" && ::IsWindowVisible(window) != FALSE) {
                reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND NameField(HWND dialog) {
    const HWND edit = ::GetDlgItem(dialog, edt1);
    return edit != nullptr ? edit : ::GetDlgItem(dialog, cmb13);
}

/// Types a name into the dialog, presses Save, and answers the question that may follow.
class Typing : public wxTimer {
public:
    Typing(const std::string& name, int answer) : name_(wxString::FromUTF8(name)), answer_(answer) {
        Start(kPollMilliseconds);
    }

    int questions = 0;
    bool typed = false;

    void Notify() override {
        if (++polls_ > kPolls) {
            Stop();
        }
        for (const HWND dialog : DialogsOnScreen()) {
            const HWND field = NameField(dialog);
            if (field != nullptr && !typed) {
                typed = true;
                ::SetWindowTextW(field, name_.wc_str());
                ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
            } else if (field == nullptr && answered_ != dialog) {
                answered_ = dialog;
                ++questions;
                ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(answer_), 0);
                Give(answer_);
            }
        }
    }

private:
    // After No the dialog is there again; the user gives up.
    void Give(int answer) {
        if (answer != IDNO) {
            return;
        }
        for (const HWND dialog : DialogsOnScreen()) {
            if (NameField(dialog) != nullptr) {
                ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            }
        }
    }

    wxString name_;
    int answer_;
    int polls_ = 0;
    HWND answered_ = nullptr;
};

class NativeSaveDialog : public testing::Test {
protected:
    std::string Ask(Typing& user) {
        ModalScript dialogs;
        dialogs.ExpectDialog<wxFileDialog>([](wxFileDialog&) { return wxID_NONE; });
        const std::string path =
            platform::ui::AskSaveFile(&host.Frame(), {"Save INI file As ...", "UNTITLED.INI",
                                                      "Queueshift (*.ini)|*.ini", "ini"});
        EXPECT_TRUE(user.typed);
        return path;
    }

    /// In the system's spelling, whatever separators it was put together with.
    static std::string Native(const std::string& path) {
        wxString text = wxString::FromUTF8(path);
        text.Replace("/", "\\");
        return text.utf8_string();
    }

    HostFrame host;
    test::TemporaryFolder folder;
};

TEST_F(NativeSaveDialog, AddsTheExtensionToANewName) {
    Typing user(Native(folder.File("Sites")), IDYES);
    EXPECT_EQ(Native(Ask(user)), Native(folder.File("Sites.ini")));
    EXPECT_EQ(user.questions, 0);
}

TEST_F(NativeSaveDialog, AsksAboutReplacingTheNameWithTheExtension) {
    test::WriteBytes(folder.File("Sites.ini"), "old");
    Typing user(Native(folder.File("Sites")), IDYES);
    EXPECT_EQ(Native(Ask(user)), Native(folder.File("Sites.ini")));
    EXPECT_EQ(user.questions, 1);
}

TEST_F(NativeSaveDialog, NoGivesNothingWhenTheUserThenGivesUp) {
    test::WriteBytes(folder.File("Sites.ini"), "old");
    Typing user(Native(folder.File("Sites")), IDNO);
    EXPECT_EQ(Ask(user), "");
    EXPECT_EQ(user.questions, 1);
    EXPECT_EQ(test::ReadBytes(folder.File("Sites.ini")), "old");
}

} // namespace
} // namespace window_test
