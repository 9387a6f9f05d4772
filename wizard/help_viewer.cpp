#include "wizard/help_viewer.h"

#include "platform/ui/control_name.h"
#include "wizard/icons.h"

#include <wx/accel.h>
#include <wx/button.h>
#include <wx/html/helpdata.h>
#include <wx/html/htmlwin.h>
#include <wx/listbox.h>
#include <wx/log.h>
#include <wx/notebook.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <array>

namespace modWizard {

namespace {

constexpr const char* kTitle = "Queueshift Help";

// The rest of what either window is: its one pane, its size, and Esc to close it.
HelpPane* Furnish(wxTopLevelWindow& window, const wxString& name) {
    window.SetName(name);
    window.SetIcons(ProgramIcons());
    auto* const pane = new HelpPane(&window);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(pane, wxSizerFlags(1).Expand());
    window.SetSizer(sizer);
    window.SetMinClientSize(window.FromDIP(wxSize(480, 320)));
    window.SetClientSize(window.FromDIP(wxSize(880, 640)));
    window.CentreOnParent();
    window.Bind(wxEVT_CHAR_HOOK, [&window](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE && !event.HasAnyModifiers()) {
            window.Close();
        } else {
            event.Skip();
        }
    });
    return pane;
}

} // namespace

HelpPane::HelpPane(wxWindow* parent) {
    m_Cfg.sashpos = parent->FromDIP(280);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxNO_BORDER,
           wxHF_TOOLBAR | wxHF_FLAT_TOOLBAR | wxHF_CONTENTS | wxHF_INDEX | wxHF_SEARCH |
               wxHF_MERGE_BOOKS | wxHF_ICONS_BOOK);
    std::array<wxAcceleratorEntry, 2> keys{
        wxAcceleratorEntry(wxACCEL_ALT, WXK_LEFT, wxID_HTML_BACK),
        wxAcceleratorEntry(wxACCEL_ALT, WXK_RIGHT, wxID_HTML_FORWARD)};
    SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(keys.size()), keys.data()));
    platform::ui::NameControl(*m_NavigNotebook, "sstHelp");
    platform::ui::NameControl(*GetTreeCtrl(), "tvwHelpContents", "Contents");
    platform::ui::NameControl(*m_IndexText, "txtHelpIndex", "Index word");
    platform::ui::NameControl(*m_IndexList, "lstHelpIndex", "Index");
    platform::ui::NameControl(*m_SearchText, "txtHelpSearch", "Search for");
    platform::ui::NameControl(*m_SearchButton, "cmdHelpSearch");
    platform::ui::NameControl(*m_SearchList, "lstHelpFound", "Topics found");
    platform::ui::NameControl(*GetHtmlWindow(), "htmHelpTopic");
    Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        DescribeTopic();
        event.Skip();
    });
    m_SearchButton->Bind(wxEVT_BUTTON, &HelpPane::Search, this);
    m_SearchText->Bind(wxEVT_TEXT_ENTER, &HelpPane::Search, this);
}

// The toolkit disables the window while it searches, and gives the focus back too early for GTK:
// no key would be heard afterwards.
void HelpPane::Search(wxCommandEvent& event) {
    OnSearch(event);
    m_SearchText->SetFocus();
}

bool HelpPane::Open(const wxString& book) {
    const wxLogNull quiet; // the caller tells the user
    if (!GetData()->AddBook(book) || GetData()->GetContentsArray().size() < 2) {
        return false;
    }
    RefreshLists();
    GetTreeCtrl()->ExpandAll();
    return true;
}

void HelpPane::ShowFirstTopic() {
    DisplayContents();
    // The first entry is the book itself; Open has seen to it that there are others.
    const wxHtmlHelpDataItems& contents = GetData()->GetContentsArray();
    GetHtmlWindow()->LoadPage(contents[1].GetFullPath());
    NotifyPageChanged();
}

wxString HelpPane::TopicTitle() const {
    return GetHtmlWindow()->GetOpenedPageTitle();
}

wxString HelpPane::TopicText() const {
    return GetHtmlWindow()->ToText();
}

// The toolkit draws a topic by itself: a screen reader learns its words as the name of the window.
void HelpPane::DescribeTopic() {
    const wxString page = GetHtmlWindow()->GetOpenedPage();
    if (page != described_) {
        described_ = page;
        platform::ui::NameControl(*GetHtmlWindow(), "htmHelpTopic", TopicText());
    }
}

HelpFrame::HelpFrame(wxWindow* parent)
    : wxFrame(parent, wxID_ANY, kTitle), pane(Furnish(*this, "frmHelp")) {}

HelpDialog::HelpDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, kTitle, wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX),
      pane(Furnish(*this, "dlgHelp")) {}

} // namespace modWizard
