#include "wizard/help.h"

#include "document/product.h"
#include "platform/message.h"
#include "platform/program.h"
#include "platform/ui/text.h"
#include "wizard/help_book.h"
#include "wizard/help_viewer.h"

#include <type_traits> // the next header uses it unasked
#include <wx/app.h>

#include <wx/weakref.h>

#include <string>

namespace modWizard {

namespace {

// The two ways in which a help book is opened, under the numbers they have always had.
enum HelpCommand { kContextHelp = 1, kHelpContents = 3 };

struct HelpDialogSettings {
    std::string helpFile;
    HelpCommand command = kHelpContents;
    int context = 0;
};

HelpDialogSettings g_HelpDialog;
wxWeakRef<HelpFrame> g_frame;

void Complain(const std::string& what) {
    platform::ShowMessage(
        {what, "Queueshift Help", platform::Buttons::Ok, platform::Icon::Exclamation});
}

bool OpenBook(HelpPane& pane, const wxString& address) {
    if (!address.empty() && pane.Open(address)) {
        return true;
    }
    Complain("The help file " + g_HelpDialog.helpFile + " could not be opened.");
    return false;
}

bool ShowTopic(HelpPane& pane) {
    if (g_HelpDialog.command == kHelpContents) {
        pane.ShowFirstTopic();
        return true;
    }
    return pane.Display(g_HelpDialog.context);
}

void ShowTopicOrComplain(HelpPane& pane) {
    if (!ShowTopic(pane)) {
        Complain("The help file " + g_HelpDialog.helpFile + " has no topic " +
                 std::to_string(g_HelpDialog.context) + ".");
    }
    pane.GetHtmlWindow()->SetFocus();
}

// The dialog over all others, or null when none is open.
wxDialog* OpenDialog() {
    wxDialog* newest = nullptr;
    for (wxWindow* const window : wxTopLevelWindows) {
        auto* const dialog = dynamic_cast<wxDialog*>(window);
        if (dialog != nullptr && dialog->IsModal()) {
            newest = dialog;
        }
    }
    return newest;
}

void ShowOverDialog(wxDialog& owner, const wxString& book) {
    HelpDialog viewer(&owner);
    if (OpenBook(*viewer.pane, book)) {
        ShowTopicOrComplain(*viewer.pane);
        viewer.ShowModal();
    }
}

void ShowBesideMainWindow(const wxString& book) {
    if (g_frame == nullptr) {
        auto* const frame = new HelpFrame(wxTheApp->GetTopWindow());
        if (!OpenBook(*frame->pane, book)) {
            frame->Destroy();
            return;
        }
        // Closed is closed, though the window goes only when all is quiet.
        frame->Bind(wxEVT_CLOSE_WINDOW, [](wxCloseEvent& event) {
            g_frame = nullptr;
            event.Skip();
        });
        g_frame = frame;
    }
    g_frame->Iconize(false);
    g_frame->Show();
    g_frame->Raise();
    ShowTopicOrComplain(*g_frame->pane);
}

void ShowHelp() {
    static wxString book;
    g_HelpDialog.helpFile =
        platform::JoinPath(platform::ProgramFolder(), std::string(product::kHelpFileName));
    // A viewer that is open goes on showing the book it has.
    if (g_frame == nullptr) {
        if (!platform::PathExists(g_HelpDialog.helpFile)) {
            Complain("The help file " + g_HelpDialog.helpFile + " could not be found.");
            return;
        }
        book = OpenHelpBook(g_HelpDialog.helpFile);
    }
    if (wxDialog* const dialog = OpenDialog()) {
        ShowOverDialog(*dialog, book);
    } else {
        ShowBesideMainWindow(book);
    }
}

} // namespace

void ShowHelpContext(int context) {
    g_HelpDialog.command = kContextHelp;
    if (context >= 0) {
        g_HelpDialog.context = context;
    }
    ShowHelp();
}

void ShowHelpContents() {
    g_HelpDialog.command = kHelpContents;
    ShowHelp();
}

} // namespace modWizard
