// The main window, as the program starts it.
#pragma once

#include "document/document.h"
#include "tests/editors/user_acts.h"
#include "tests/support/files.h"
#include "tests/support/window/window_test.h"
#include "wizard/wizard.h"

#include <wx/weakref.h>

#include <string>

namespace window_test {

/// Every test begins with a record as it is at the program's start, and no window.
class WizardTest : public testing::Test {
protected:
    WizardTest();
    ~WizardTest() override;

    enum DocumentType { kActiveDirectory, kManual };

    /// Makes the window and answers its start-up dialog with a new document of this type.
    void Start(DocumentType type);

    /// Shows the window and makes it the active one, for real input.
    void Show();

    /// Shows a page by program, as Next, tree and menu do.
    void GoTo(int page) { window->ShowPage(page); }

    /// Brings a document's window into the state of a document of this type, in the same window.
    void Become(DocumentType type);

    [[nodiscard]] int CurrentPage() const { return window->sstWizard->GetSelection(); }
    [[nodiscard]] std::string CurrentNode() const {
        return window->tvwWizardOptions->SelectedKey();
    }
    [[nodiscard]] std::string Caption() const { return window->GetTitle().utf8_string(); }

    /// Fills the controls from the record, and the record from the controls.
    void Load() { window->LoadDocumentToForm(); }
    void Store() { window->SaveFormToDocument(); }

    static bool Changed() { return modINIDocument::g_bolDocumentChanged; }
    static void ForgetChanges() { modINIDocument::g_bolDocumentChanged = false; }
    static modINIDocument::SettingsRecord& Record() { return modINIDocument::g_Document; }

    wxWeakRef<frmWizard> window; ///< null once it has closed
};

/// What the pages that prepare themselves show afterwards, so that a test can tell which of the
/// four preparations has run since Arm.
class PreparationProbe {
public:
    explicit PreparationProbe(frmWizard& window) : window_(window) {}
    void Arm();
    /// The names of those that ran: "Populate", "Prune", "DefaultPrinters", "Drivers".
    [[nodiscard]] Texts Ran() const;

private:
    frmWizard& window_;
};

} // namespace window_test
