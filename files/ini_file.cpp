#include "files/ini_file.h"

#include "document/document.h"
#include "platform/message.h"
#include "platform/ui/file_dialog.h"
#include "platform/volumes.h"

#include <wx/radiobut.h>

namespace modINIFile {

namespace {

using modINIDocument::g_bolDocumentChanged;
using modINIDocument::g_Document;
using modINIDocument::g_strINIFilePath;
using modINIDocument::g_strINIFileTitle;

constexpr const char* kFilter = "Queueshift (*.ini)|*.ini";
constexpr const char* kExtension = "ini";
constexpr const char* kUntitled = "UNTITLED";
constexpr const char* kOfferedName = "UNTITLED.INI";

Window* g_window = nullptr;

// A cancelled dialog leaves the name that it began with and clears the title: the title tells.
void KeepAnswer(const std::string& path) {
    if (!path.empty()) {
        g_CommonDialog.FileName = path;
    }
    g_CommonDialog.FileTitle = path.empty() ? std::string() : platform::LastName(path);
}

bool ShowSave() {
    g_CommonDialog.FileName = kOfferedName;
    KeepAnswer(platform::ui::AskSaveFile(
        g_window->Owner(), {"Save INI file As ...", g_CommonDialog.FileName, kFilter, kExtension}));
    return !g_CommonDialog.FileTitle.empty();
}

bool ShowOpen() {
    KeepAnswer(platform::ui::AskOpenFile(
        g_window->Owner(), {"Open INI File ...", g_CommonDialog.FileName, kFilter, kExtension}));
    return !g_CommonDialog.FileTitle.empty();
}

void TakeChosenFile() {
    g_strINIFilePath = g_CommonDialog.FileName;
    g_strINIFileTitle = g_CommonDialog.FileTitle;
    g_bolDocumentChanged = false;
}

void SaveToCurrentFile() {
    g_window->SaveFormToDocument();
    modINIDocument::WriteDocument();
    g_bolDocumentChanged = false;
}

/// False when the dialog was cancelled, and nothing happened.
bool SaveToNewFile() {
    if (!ShowSave()) {
        return false;
    }
    TakeChosenFile();
    SaveToCurrentFile();
    return true;
}

/// False when the command that asks must end here: a file name was wanted and not given.
bool OfferToSave(const std::string& question) {
    const platform::Answer answer = platform::ShowMessage(
        {question, "Save?", platform::Buttons::YesNo, platform::Icon::Question});
    if (answer != platform::Answer::Yes) {
        return true;
    }
    if (g_strINIFilePath.empty()) {
        return SaveToNewFile();
    }
    SaveToCurrentFile();
    return true;
}

void StartNewDocument(bool usesActiveDirectory) {
    StartUntitledDocument();
    if (usesActiveDirectory) {
        g_Document.UseActiveDirectory = modINIDocument::kTrue;
    } else {
        g_Document.UseManualDefinitions = modINIDocument::kTrue;
    }
}

} // namespace

void SetWindow(Window* window) {
    g_window = window;
}

Window* CurrentWindow() {
    return g_window;
}

void StartUntitledDocument() {
    modINIDocument::ResetDocument();
    g_strINIFilePath.clear();
    g_strINIFileTitle = kUntitled;
    g_window->LoadDocumentToForm();
    g_bolDocumentChanged = false;
}

void NewINIFile() {
    if (g_bolDocumentChanged &&
        !OfferToSave("Do you want to save your changes before creating a new INI file?")) {
        return;
    }
    frmNewINI dialog(g_window->Owner());
    dialog.optUseActiveDirectory->SetValue(true);
    dialog.SetTabAvailable(frmNewINI::kExistingTab, true);
    dialog.SetTabAvailable(frmNewINI::kRecentTab, false);
    dialog.ShowModal();
    if (!frmNewINI::g_bolCancelPressed) {
        StartNewDocument(dialog.optUseActiveDirectory->GetValue());
    }
    // Also after Cancel: the record stands, and the controls show it again.
    g_window->LoadDocumentToForm();
    g_window->InitializeTreeView();
    g_bolDocumentChanged = false;
}

void OpenINIFile() {
    if (g_bolDocumentChanged &&
        !OfferToSave("Do you want to save your changes before opening a new INI file?")) {
        return;
    }
    if (!ShowOpen()) {
        return;
    }
    TakeChosenFile();
    ReadDocumentOrStartUntitled();
    g_window->LoadDocumentToForm();
    g_window->InitializeTreeView();
    // Filling the controls runs handlers that mark the document.
    g_bolDocumentChanged = false;
}

void SaveINIFile() {
    if (!g_bolDocumentChanged) {
        return;
    }
    if (g_strINIFilePath.empty()) {
        SaveToNewFile();
    } else {
        SaveToCurrentFile();
    }
}

void SaveINIFileAs() {
    SaveToNewFile();
}

bool ReadDocumentOrStartUntitled() {
    try {
        modINIDocument::ReadDocument();
        return true;
    } catch (const modINIDocument::DamagedList&) {
        modINIDocument::ShowReadFailure();
        StartUntitledDocument();
        return false;
    }
}

} // namespace modINIFile
