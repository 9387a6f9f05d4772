// What the tests of the file commands share: a document, a folder, a recording window.
#pragma once

#include "platform/program.h"
#include "platform/ui/message_box.h"
#include "tests/files/recording_window.h"
#include "tests/support/files.h"
#include "tests/support/window/window_test.h"

namespace window_test {

using modINIDocument::g_bolDocumentChanged;
using modINIDocument::g_Document;
using modINIDocument::g_strINIFilePath;
using modINIDocument::g_strINIFileTitle;

using Calls = std::vector<std::string>;

inline const Calls kSaved = {"SaveFormToDocument"};
inline const Calls kLoaded = {"LoadDocumentToForm", "InitializeTreeView"};

inline FileDialog SaveDialog() {
    return {true, "Save INI file As ...", "UNTITLED.INI", "Queueshift (*.ini)|*.ini"};
}

inline FileDialog OpenDialog(const std::string& initialName = {}) {
    return {false, "Open INI File ...", initialName, "Queueshift (*.ini)|*.ini"};
}

inline platform::Message SaveQuestion(const std::string& text) {
    return {text, "Save?", platform::Buttons::YesNo, platform::Icon::Question};
}

inline platform::Message OpenQuestion() {
    return SaveQuestion("Do you want to save your changes before opening a new INI file?");
}

inline platform::Message NewQuestion() {
    return SaveQuestion("Do you want to save your changes before creating a new INI file?");
}

inline platform::Message ReadFailure() {
    return {"Unable to read INI file. Please check your permissions to the folder and file you are "
            "attempting to read.",
            "Write Error", platform::Buttons::Ok, platform::Icon::Critical};
}

/// Starts with a clean, untitled manual document.
class FileCommands : public testing::Test {
protected:
    FileCommands() {
        platform::ui::InstallMessageBoxes();
        g_Document = {};
        modINIFile::g_CommonDialog = {};
        modINIFile::StartUntitledDocument();
        g_Document.UseManualDefinitions = modINIDocument::kTrue;
        window.calls.clear();
    }

    /// An edit that only the controls know of.
    void Edit(const std::string& domain) {
        window.domainOnForm = domain;
        g_bolDocumentChanged = true;
    }

    void BindTo(const std::string& path, const std::string& title) {
        g_strINIFilePath = path;
        g_strINIFileTitle = title;
    }

    /// A file of a document with this domain, written by the program itself.
    std::string Stored(const std::string& name, const std::string& domain) {
        const std::string path = folder.File(name);
        const auto document = g_Document;
        const auto currentPath = g_strINIFilePath;
        g_Document.DomainName = domain;
        g_strINIFilePath = path;
        modINIDocument::WriteDocument();
        g_Document = document;
        g_strINIFilePath = currentPath;
        return path;
    }

    test::TemporaryFolder folder;
    RecordingWindow window;
    ModalScript dialogs;
};

inline std::string DomainIn(const std::string& path) {
    const std::string bytes = test::ReadBytes(path);
    const std::string key = "DomainName=";
    const auto at = bytes.find(key);
    return at == std::string::npos
               ? "no " + key
               : bytes.substr(at + key.size(), bytes.find('\r', at) - at - key.size());
}

} // namespace window_test
