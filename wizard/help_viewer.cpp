#include "wizard/help_viewer.h"

#include "platform/ui/command_name.h"
#include "platform/ui/control_name.h"
#include "platform/ui/text_scale.h"
#include "wizard/icons.h"

#include <wx/accel.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/html/helpdata.h>
#include <wx/html/htmlwin.h>
#include <wx/listbox.h>
#include <wx/log.h>
#include <wx/notebook.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toolbar.h>
#include <wx/treectrl.h>

#include <algorithm>
#include <array>
#include <map>
#include <vector>

namespace modWizard {

namespace {

constexpr const char* kTitle = "Queueshift Help";

// The rest of what either window is: its one pane, its size, and Esc to close it.
HelpPane* Furnish(wxTopLevelWindow& window, const wxString& name) {
    platform::ui::NameControl(window, name);
    window.SetIcons(ProgramIcons());
    auto* const pane = new HelpPane(&window);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(pane, wxSizerFlags(1).Expand());
    window.SetSizer(sizer);
    window.SetMinClientSize(platform::ui::ForFont(window, {480, 320}));
    window.SetClientSize(platform::ui::ForFont(window, {880, 640}));
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
    m_Cfg.sashpos = platform::ui::ForFont(*parent, {280, 0}).x;
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxNO_BORDER,
           wxHF_TOOLBAR | wxHF_FLAT_TOOLBAR | wxHF_CONTENTS | wxHF_INDEX | wxHF_SEARCH |
               wxHF_MERGE_BOOKS | wxHF_ICONS_BOOK);
    // The toolbar's own buttons do not take the focus.
    std::array<wxAcceleratorEntry, 7> keys{
        wxAcceleratorEntry(wxACCEL_NORMAL, WXK_F9, wxID_HTML_PANEL),
        wxAcceleratorEntry(wxACCEL_ALT, WXK_LEFT, wxID_HTML_BACK),
        wxAcceleratorEntry(wxACCEL_ALT, WXK_RIGHT, wxID_HTML_FORWARD),
        wxAcceleratorEntry(wxACCEL_ALT, WXK_UP, wxID_HTML_UPNODE),
        wxAcceleratorEntry(wxACCEL_ALT, WXK_PAGEUP, wxID_HTML_UP),
        wxAcceleratorEntry(wxACCEL_ALT, WXK_PAGEDOWN, wxID_HTML_DOWN),
        wxAcceleratorEntry(wxACCEL_ALT, 'O', wxID_HTML_OPTIONS)};
    SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(keys.size()), keys.data()));
    NameControls();
    Bind(wxEVT_CHAR_HOOK, &HelpPane::OnKey, this);
    Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        DescribeTopic();
        event.Skip();
    });
    m_SearchButton->Bind(wxEVT_BUTTON, &HelpPane::Search, this);
    m_SearchText->Bind(wxEVT_TEXT_ENTER, &HelpPane::Search, this);
}

void HelpPane::NameControls() {
    using platform::ui::NameControl;
    NameControl(*m_NavigNotebook, "sstHelp", "Ways to a topic");
    NameControl(*GetTreeCtrl(), "tvwHelpContents", "Contents");
    NameControl(*m_IndexText, "txtHelpIndex", "Index word");
    NameControl(*m_IndexButton, "cmdHelpIndex");
    NameControl(*m_IndexButtonAll, "cmdHelpIndexAll");
    NameControl(*m_IndexCountInfo, "lblHelpIndex");
    NameControl(*m_IndexList, "lstHelpIndex", "Index");
    NameControl(*m_SearchText, "txtHelpSearch", "Search for");
    NameControl(*m_SearchChoice, "cboHelpSearch", "Books to search");
    NameControl(*m_SearchCaseSensitive, "chkHelpCase");
    NameControl(*m_SearchWholeWords, "chkHelpWords");
    NameControl(*m_SearchButton, "cmdHelpSearch");
    NameControl(*m_SearchList, "lstHelpFound", "Topics found");
    NameControl(*GetHtmlWindow(), "htmHelpTopic");
    const std::map<int, wxString> tools{
        {wxID_HTML_PANEL, "cmdHelpPanel"},     {wxID_HTML_BACK, "cmdHelpBack"},
        {wxID_HTML_FORWARD, "cmdHelpForward"}, {wxID_HTML_UPNODE, "cmdHelpUpNode"},
        {wxID_HTML_UP, "cmdHelpUp"},           {wxID_HTML_DOWN, "cmdHelpDown"},
        {wxID_HTML_OPTIONS, "cmdHelpOptions"}};
    std::vector<wxString> names;
    for (std::size_t i = 0; i < GetToolBar()->GetToolsCount(); ++i) {
        const auto tool = tools.find(GetToolBar()->GetToolByPos(static_cast<int>(i))->GetId());
        names.push_back(tool == tools.end() ? wxString() : tool->second);
    }
    platform::ui::NameToolBar(*GetToolBar(), "tlbHelp", names);
}

// The toolkit's viewer is no link in the chain that hands the Tab key on: the focus would be lost
// with the first press.
void HelpPane::OnKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const int modifiers = event.GetModifiers();
    if (key == WXK_TAB && (modifiers == wxMOD_NONE || modifiers == wxMOD_SHIFT)) {
        MoveFocus(modifiers == wxMOD_NONE);
    } else if ((key == WXK_LEFT || key == WXK_RIGHT) && modifiers == wxMOD_NONE &&
               FindFocus() == m_NavigNotebook) {
        // Left to GTK, the arrow would move the focus into the topic.
        m_NavigNotebook->AdvanceSelection(key == WXK_RIGHT);
        m_NavigNotebook->SetFocus();
    } else {
        event.Skip();
    }
}

// What the Tab key visits now, in the order of the eye.
std::vector<wxWindow*> HelpPane::Stops() {
    std::vector<wxWindow*> stops{
        m_NavigNotebook, GetTreeCtrl(), m_IndexText,    m_IndexButton,         m_IndexButtonAll,
        m_IndexList,     m_SearchText,  m_SearchChoice, m_SearchCaseSensitive, m_SearchWholeWords,
        m_SearchButton,  m_SearchList,  GetHtmlWindow()};
    std::erase_if(stops, [](const wxWindow* stop) {
        return !stop->IsShownOnScreen() || !stop->IsThisEnabled();
    });
    return stops;
}

void HelpPane::MoveFocus(bool forward) {
    const std::vector<wxWindow*> stops = Stops();
    const auto at = std::find(stops.begin(), stops.end(), FindFocus());
    std::size_t next = 0;
    if (at != stops.end()) {
        const std::size_t step = forward ? 1 : stops.size() - 1;
        next = (static_cast<std::size_t>(at - stops.begin()) + step) % stops.size();
    }
    stops[next]->SetFocusFromKbd();
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

// The toolkit draws the contents and the topic by itself: a screen reader learns the marked entry
// and the topic's words as the names of their windows.
void HelpPane::DescribeTopic() {
    const wxString page = GetHtmlWindow()->GetOpenedPage();
    if (page != described_) {
        described_ = page;
        platform::ui::NameControl(*GetHtmlWindow(), "htmHelpTopic", TopicText());
    }
    const wxTreeItemId entry = GetTreeCtrl()->GetSelection();
    if (entry != marked_) {
        marked_ = entry;
        platform::ui::NameControl(*GetTreeCtrl(), "tvwHelpContents",
                                  entry.IsOk() ? "Contents: " + GetTreeCtrl()->GetItemText(entry)
                                               : wxString("Contents"));
    }
}

HelpFrame::HelpFrame(wxWindow* parent)
    : wxFrame(parent, wxID_ANY, kTitle), pane(Furnish(*this, "frmHelp")) {}

HelpDialog::HelpDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, kTitle, wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX),
      pane(Furnish(*this, "dlgHelp")) {}

} // namespace modWizard
