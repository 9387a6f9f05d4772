// What every page of the wizard has: a heading, its contents, and Help, Back and Next.
#pragma once

#include "editors/controls.h"
#include "editors/leave_checks.h"
#include "editors/link_paragraph.h"
#include "editors/option_group.h"
#include "editors/paragraph.h"

#include <wx/button.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace editors {

/// A text box and the button that fills it.
struct TextAndButton {
    wxTextCtrl* text;
    wxButton* button;
};

class Page : public wxPanel {
public:
    /// A page of the book `parent`. `position` is its place there, which is also its index in the
    /// control arrays that have one element a page.
    Page(wxWindow* parent, int position, const wxString& title);

    [[nodiscard]] int Position() const { return position_; }

    /// The heading may change with the document's type.
    void SetTitle(const wxString& title);

    /// Puts the focus on the first control of the page's contents, or on Next where it has none.
    void FocusFirst();

    wxStaticText* lblGeneral; ///< the heading, element `position` of its array
    wxButton* cmdHelp;
    wxButton* cmdBack;
    wxButton* cmdNext;

protected:
    /// Each page calls this at the end of its construction: Tab reaches Help, Back and Next after
    /// the contents.
    void Completed();

    /// The place of the page's contents, filled from top to bottom.
    [[nodiscard]] wxBoxSizer& Body() { return *body_; }

    /// A text over the page's whole width.
    Paragraph* AddParagraph(const wxString& name, const wxString& text);
    /// The same, with a link to `address`, which is a part of the text.
    LinkParagraph* AddLink(const wxString& name, const wxString& text, const wxString& address);

    /// Option buttons, one below the other.
    void AddOptions(OptionGroup& options);

    /// A control of its own row.
    wxCheckBox* AddCheckBox(const wxString& name, const wxString& caption);

    /// Rows of a label, a field and room for a button; the labels form one column.
    wxFlexGridSizer* AddFields();
    /// Adds a text box to the rows; `label` is element `labelIndex` of lblGeneral.
    wxTextCtrl* AddTextRow(wxFlexGridSizer& rows, int labelIndex, const wxString& label,
                           const wxString& name);
    TextAndButton AddTextRowWithButton(wxFlexGridSizer& rows, int labelIndex, const wxString& label,
                                       const wxString& textName, const wxString& buttonName,
                                       const wxString& buttonCaption);
    /// Adds a field that exists already, and what stands behind it.
    void AddRow(wxFlexGridSizer& rows, int labelIndex, const wxString& label, wxWindow* field,
                wxWindow* behind = nullptr);

    /// Gives the labels of several groups of rows one width, so that their fields begin in one
    /// line.
    static void AlignLabels(std::initializer_list<wxFlexGridSizer*> groups);

    /// A list box that takes the room that is left.
    wxListBox* AddListBox(const wxString& name, const wxString& label);

    /// A row of buttons at the right.
    wxBoxSizer* AddButtonRow();
    wxButton* AddButton(wxBoxSizer& row, const wxString& name, const wxString& caption);

    /// A label of its own line, element `labelIndex` of lblGeneral.
    wxStaticText* AddLabel(int labelIndex, const wxString& text);

    wxStaticText* MakeLabel(int labelIndex, const wxString& text);

    static constexpr int kGap = 8; ///< between rows and groups, in device-independent pixels

private:
    void WrapTexts();

    int position_;
    wxBoxSizer* body_;
    std::vector<std::function<void(int width)>> wrapping_;
};

/// The page of the book that holds `parent` as the current one.
int CurrentTab(const wxWindow& page);

} // namespace editors
