// The shell's folder pickers, shown for real and worked from outside.

#include "files/browse.h"
#include "platform/ui/folder_picker.h"

#include "tests/support/window/window_test.h"

#include <wx/timer.h>

#include <string>

#include <windows.h>

namespace window_test {
namespace {

constexpr int kPollMilliseconds = 50;
constexpr int kPolls = 400;

struct ShownPicker {
    std::wstring title;    ///< the line that tells what to pick
    bool owned = false;    ///< by the window that asked
    bool newStyle = false; ///< can be resized
};

std::wstring TextOf(HWND window) {
    std::wstring text(512, L'\0');
    const int length = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

/// Another dialog of this process than the toolkit's windows.
BOOL CALLBACK TakePicker(HWND window, LPARAM found) {
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, 64);
    if (std::wstring(name) == L"#32770" && ::IsWindowVisible(window) != FALSE) {
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

HWND PickerOnScreen() {
    HWND found = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), TakePicker, reinterpret_cast<LPARAM>(&found));
    return found;
}

struct Search {
    std::wstring text;
    HWND found = nullptr;
};

BOOL CALLBACK TakeText(HWND child, LPARAM data) {
    auto& search = *reinterpret_cast<Search*>(data);
    if (TextOf(child) == search.text) {
        search.found = child;
        return FALSE;
    }
    return TRUE;
}

bool HasChild(HWND picker, const std::wstring& text) {
    Search search{text};
    ::EnumChildWindows(picker, TakeText, reinterpret_cast<LPARAM>(&search));
    return search.found != nullptr;
}

/// Waits for the picker inside its own modal loop, looks at it, and answers it.
class Answering : public wxTimer {
public:
    Answering(HWND owner, int button, std::wstring expectedTitle)
        : owner_(owner), button_(button), expectedTitle_(std::move(expectedTitle)) {
        Start(kPollMilliseconds);
    }

    ShownPicker seen;
    bool came = false;

    void Notify() override {
        const HWND picker = PickerOnScreen();
        if (picker == nullptr) {
            if (++polls_ > kPolls) {
                Stop();
            }
            return;
        }
        Stop();
        came = true;
        seen.title = HasChild(picker, expectedTitle_) ? expectedTitle_ : L"another";
        seen.owned = ::GetWindow(picker, GW_OWNER) == owner_;
        seen.newStyle = (::GetWindowLongW(picker, GWL_STYLE) & WS_THICKFRAME) != 0;
        ::PostMessageW(picker, WM_COMMAND, static_cast<WPARAM>(button_), 0);
    }

private:
    HWND owner_;
    int button_;
    int polls_ = 0;
    std::wstring expectedTitle_;
};

class ShellFolderPicker : public testing::Test {
protected:
    HWND Owner() const { return host.Frame().GetHandle(); }

    HostFrame host;
};

TEST_F(ShellFolderPicker, CancelGivesNothing) {
    Answering user(Owner(), IDCANCEL, L"Please select a folder.");
    EXPECT_EQ(modBrowseForFolder::BrowseForFolder(&host.Frame()), "");
    ASSERT_TRUE(user.came);
    EXPECT_EQ(user.seen.title, L"Please select a folder.");
    EXPECT_TRUE(user.seen.owned);
    EXPECT_TRUE(user.seen.newStyle);
}

TEST_F(ShellFolderPicker, OkGivesThePathOfTheDesktopWhereItBegins) {
    Answering user(Owner(), IDOK, L"Please select a folder.");
    const std::string picked = modBrowseForFolder::BrowseForFolder(&host.Frame());
    ASSERT_TRUE(user.came);
    EXPECT_TRUE(modBrowseForFolder::FolderExists(picked)) << picked;
    EXPECT_EQ(picked.find('\0'), std::string::npos);
}

TEST_F(ShellFolderPicker, TheNetworkPickerHasItsOwnTitle) {
    Answering user(Owner(), IDCANCEL, L"Select a network computer or share.");
    EXPECT_EQ(modBrowseForNetworkFolder::BrowseForNetworkFolder(&host.Frame()), "");
    ASSERT_TRUE(user.came);
    EXPECT_EQ(user.seen.title, L"Select a network computer or share.");
    EXPECT_TRUE(user.seen.owned);
    EXPECT_TRUE(user.seen.newStyle);
}

TEST_F(ShellFolderPicker, APickOutsideTheFileSystemIsNamedLikeAComputer) {
    // The network itself is the first row: like a computer it has no path.
    Answering user(Owner(), IDOK, L"Select a network computer or share.");
    const std::string picked = modBrowseForNetworkFolder::BrowseForNetworkFolder(&host.Frame());
    ASSERT_TRUE(user.came);
    EXPECT_EQ(picked.substr(0, 2), "\\\\");
    EXPECT_GT(picked.size(), 2U);
}

TEST_F(ShellFolderPicker, TheOldStyleIsThereWhenAskedFor) {
    Answering user(Owner(), IDCANCEL, L"Select a network computer or share.");
    EXPECT_EQ(platform::ui::PickNetworkFolder(&host.Frame(), false, false), "");
    ASSERT_TRUE(user.came);
    EXPECT_FALSE(user.seen.newStyle);
}

} // namespace
} // namespace window_test
