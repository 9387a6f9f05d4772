#include "platform/ui/folder_picker.h"

#include "platform/ansi.h"

#include <wx/window.h>

#include <array>

#include <shlobj.h>
#include <windows.h>

namespace platform::ui {

namespace {

constexpr UINT kFileSystemFoldersOnly = 0x1;
constexpr UINT kNewDialogStyle = 0x40;
constexpr UINT kNoNewFolderButton = 0x200;
constexpr int kNetworkFolder = 18;

// 260 NUL characters, the size that the shell counts on.
using Buffer = std::array<char, 260>;

// A list of the shell, released with the shell's own function.
class ItemList {
public:
    explicit ItemList(PIDLIST_ABSOLUTE list) : list_(list) {}
    ~ItemList() { ::CoTaskMemFree(list_); }
    ItemList(const ItemList&) = delete;
    ItemList& operator=(const ItemList&) = delete;

    [[nodiscard]] PIDLIST_ABSOLUTE Get() const { return list_; }
    [[nodiscard]] bool IsEmpty() const { return list_ == nullptr; }

    /// The path up to the first NUL; "" for what is not in the file system, which some shells
    /// spell as "::" and the number of its class.
    [[nodiscard]] std::string Path() const {
        Buffer path{};
        if (::SHGetPathFromIDListA(list_, path.data()) == FALSE) {
            return {};
        }
        const std::string text = Utf8FromAnsi(path.data());
        return text.starts_with("::") ? std::string() : text;
    }

private:
    PIDLIST_ABSOLUTE list_;
};

HWND HandleOf(const wxWindow* owner) {
    return owner == nullptr ? nullptr : owner->GetHandle();
}

PIDLIST_ABSOLUTE NetworkRoot(HWND owner) {
    PIDLIST_ABSOLUTE root = nullptr;
    return SUCCEEDED(::SHGetSpecialFolderLocation(owner, kNetworkFolder, &root)) ? root : nullptr;
}

} // namespace

std::string PickFolder(wxWindow* owner) {
    Buffer displayName{};
    BROWSEINFOA browse{};
    browse.hwndOwner = HandleOf(owner);
    browse.pszDisplayName = displayName.data();
    browse.lpszTitle = "Please select a folder.";
    browse.ulFlags = kFileSystemFoldersOnly | kNewDialogStyle;
    const ItemList picked(::SHBrowseForFolderA(&browse));
    return picked.IsEmpty() ? std::string() : picked.Path();
}

std::string PickNetworkFolder(wxWindow* owner, bool newDialogStyle, bool noNewFolderButton) {
    const ItemList root(NetworkRoot(HandleOf(owner)));
    Buffer displayName{};
    BROWSEINFOA browse{};
    browse.hwndOwner = HandleOf(owner);
    browse.pidlRoot = root.Get();
    browse.pszDisplayName = displayName.data();
    browse.lpszTitle = "Select a network computer or share.";
    browse.ulFlags = kFileSystemFoldersOnly | (newDialogStyle ? kNewDialogStyle : 0U) |
                     (noNewFolderButton ? kNoNewFolderButton : 0U);
    const ItemList picked(::SHBrowseForFolderA(&browse));
    if (picked.IsEmpty()) {
        return {};
    }
    const std::string path = picked.Path();
    // A computer as a whole is no place in the file system.
    return path.empty() ? "\\\\" + Utf8FromAnsi(displayName.data()) : path;
}

} // namespace platform::ui
