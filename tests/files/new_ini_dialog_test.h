// What the tests of the new-document dialog share: the dialog, and a user who works it.
#pragma once

#include "files/new_ini.h"

#include "platform/ui/text.h"
#include "tests/files/recording_window.h"
#include "tests/support/window/window_test.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>

namespace window_test {

using platform::ui::FromWx;

class NewINIDialog : public testing::Test {
protected:
    NewINIDialog() { frmNewINI::g_bolCancelPressed = false; }

    /// Shows the dialog modally; `act` works it as a user would.
    void Run(const std::function<void(frmNewINI&)>& act) {
        ModalScript script;
        script.ExpectLive<frmNewINI>(act);
        dialog.ShowModal();
    }

    static std::vector<std::string> Rows(const wxItemContainerImmutable& items) {
        std::vector<std::string> rows;
        for (unsigned i = 0; i < items.GetCount(); ++i) {
            rows.push_back(FromWx(wxString(items.GetString(i)).Trim(false)));
        }
        return rows;
    }

    /// A point of the tab, in screen coordinates.
    static wxPoint TabOf(frmNewINI& shown, int tab) {
        // Once it is active the window manager has put it in its place.
        BringToFront(&shown);
        const wxNotebook& book = *shown.sstNewINI;
        const int middle = shown.GetCharHeight();
        int first = wxNOT_FOUND;
        for (int x = 0; x < book.GetSize().x; ++x) {
            const bool hit = book.HitTest(wxPoint(x, middle)) == tab;
            if (hit && first == wxNOT_FOUND) {
                first = x;
            } else if (!hit && first != wxNOT_FOUND) {
                return book.ClientToScreen(wxPoint((first + x) / 2, middle));
            }
        }
        throw std::runtime_error("the tab is not to be seen");
    }

    HostFrame host;
    RecordingWindow window;
    frmNewINI dialog{&host.Frame()};
};

} // namespace window_test
