// The window that shows the help book: contents, index and search at the left, a topic at the
// right. A window of its own beside the main window, or a dialog over a dialog.
#pragma once

#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/html/helpwnd.h>
#include <wx/treebase.h>

#include <vector>

namespace modWizard {

/// What both windows hold.
class HelpPane : public wxHtmlHelpWindow {
public:
    explicit HelpPane(wxWindow* parent);

    /// False when the address leads to no book, or to one without topics.
    bool Open(const wxString& book);

    /// Shows the contents and the first topic in them.
    void ShowFirstTopic();

    /// The topic that is showing: its title and its text.
    [[nodiscard]] wxString TopicTitle() const;
    [[nodiscard]] wxString TopicText() const;

private:
    void NameControls();
    void OnKey(wxKeyEvent& event);
    [[nodiscard]] std::vector<wxWindow*> Stops();
    void MoveFocus(bool forward);
    void DescribeTopic();
    void Search(wxCommandEvent& event);

    wxString described_;
    wxTreeItemId marked_; ///< the entry of the contents that is told
};

class HelpFrame : public wxFrame {
public:
    explicit HelpFrame(wxWindow* parent);

    /// A program whose windows are closed ends, whether its help is open or not.
    [[nodiscard]] bool ShouldPreventAppExit() const override { return false; }

    HelpPane* pane;
};

class HelpDialog : public wxDialog {
public:
    explicit HelpDialog(wxWindow* parent);

    HelpPane* pane;
};

} // namespace modWizard
