// The program: one main window, no command line of its own.
#include "document/product.h"
#include "platform/ui/message_box.h"
#include "platform/ui/text.h"
#include "wizard/wizard.h"

#include <wx/app.h>
#include <wx/log.h>

namespace {

class Toolkit : public wxApp {
public:
    bool OnInit() override {
        // Whatever goes wrong is told by the program's own boxes; the toolkit keeps no log.
        wxLog::EnableLogging(false);
        SetAppName("queueshift-toolkit");
        SetAppDisplayName(platform::ui::ToWx(product::kApplicationTitle));
        platform::ui::InstallMessageBoxes();
        // Inside the event loop, so that cancelling the first dialog ends the program as closing
        // the window does.
        CallAfter([] { modWizard::Main(); });
        return true;
    }

    // No arguments are used, and none is refused.
    void OnInitCmdLine(wxCmdLineParser& /*parser*/) override {}
    bool OnCmdLineParsed(wxCmdLineParser& /*parser*/) override { return true; }
};

} // namespace

wxIMPLEMENT_APP(Toolkit);
