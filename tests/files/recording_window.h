// A main window that only writes down what the file commands ask of it.
#pragma once

#include "document/document.h"
#include "files/ini_file.h"

#include <functional>
#include <string>
#include <vector>

namespace window_test {

class RecordingWindow : public modINIFile::Window {
public:
    RecordingWindow() { modINIFile::SetWindow(this); }
    ~RecordingWindow() override { modINIFile::SetWindow(nullptr); }
    RecordingWindow(const RecordingWindow&) = delete;
    RecordingWindow& operator=(const RecordingWindow&) = delete;

    /// What the controls hold; stored by SaveFormToDocument, filled by LoadDocumentToForm.
    std::string domainOnForm;
    std::vector<std::string> calls;
    std::vector<int> helpContexts;
    std::function<void()> onSave = [] {};
    wxWindow* owner = nullptr;

    void SaveFormToDocument() override {
        calls.emplace_back("SaveFormToDocument");
        modINIDocument::g_Document.DomainName = domainOnForm;
        onSave();
    }
    void LoadDocumentToForm() override {
        calls.emplace_back("LoadDocumentToForm");
        domainOnForm = modINIDocument::g_Document.DomainName;
        // Controls that change run their handlers, and those mark the document.
        modINIDocument::g_bolDocumentChanged = true;
    }
    void InitializeTreeView() override { calls.emplace_back("InitializeTreeView"); }
    wxWindow* Owner() override { return owner; }
    void ShowHelpContext(int context) override { helpContexts.push_back(context); }
};

} // namespace window_test
