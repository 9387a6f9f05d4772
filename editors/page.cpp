#include "editors/page.h"

#include "platform/ui/control_name.h"
#include "platform/ui/line_room.h"
#include "platform/ui/list_box.h"
#include "platform/ui/one_line.h"

#include <wx/bookctrl.h>
#include <wx/statline.h>

#include <algorithm>

namespace editors {

using platform::ui::NameControl;

namespace {

wxString Indexed(const char* array, int index) {
    return wxString::Format("%s(%d)", array, index);
}

} // namespace

Page::Page(wxWindow* parent, int position, const wxString& title)
    : wxPanel(parent, wxID_ANY), position_(position), body_(new wxBoxSizer(wxVERTICAL)) {
    SetName(Indexed("page", position));
    lblGeneral = MakeLabel(position, title);
    wxFont font = lblGeneral->GetFont().Scaled(1.3F);
    font.MakeBold();
    lblGeneral->SetFont(font);
    // A label may tell the size of its former font until the system has styled it anew.
    lblGeneral->SetMinSize(wxSize(-1, lblGeneral->GetCharHeight()));
    auto* const separator = new wxStaticLine(this);
    NameControl(*separator, Indexed("fraSeperator", position));
    const int gap = FromDIP(kGap);

    auto* const outer = new wxBoxSizer(wxVERTICAL);
    outer->Add(lblGeneral, wxSizerFlags().Expand().Border(wxALL, 2 * gap));
    outer->Add(body_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, 2 * gap));
    outer->Add(separator, wxSizerFlags().Expand().Border(wxTOP, gap));

    auto* const buttons = new wxBoxSizer(wxHORIZONTAL);
    cmdHelp = new wxButton(this, wxID_ANY, "Help");
    cmdBack = new wxButton(this, wxID_ANY, "&Back");
    cmdNext = new wxButton(this, wxID_ANY, "&Next");
    NameControl(*cmdHelp, Indexed("cmdHelp", position));
    NameControl(*cmdBack, Indexed("cmdBack", position));
    NameControl(*cmdNext, Indexed("cmdNext", position));
    buttons->Add(cmdHelp);
    buttons->AddStretchSpacer();
    buttons->Add(cmdBack);
    buttons->Add(cmdNext, wxSizerFlags().Border(wxLEFT, gap));
    outer->Add(buttons, wxSizerFlags().Expand().Border(wxALL, 2 * gap));
    SetSizer(outer);
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        WrapTexts();
        event.Skip();
    });
}

void Page::Completed() {
    cmdHelp->MoveAfterInTabOrder(GetChildren().GetLast()->GetData());
    cmdBack->MoveAfterInTabOrder(cmdHelp);
    cmdNext->MoveAfterInTabOrder(cmdBack);
}

void Page::WrapTexts() {
    const int width = GetClientSize().x - 4 * FromDIP(kGap);
    for (const auto& wrap : wrapping_) {
        wrap(width);
    }
}

void Page::SetTitle(const wxString& title) {
    lblGeneral->SetLabel(title);
    NameControl(*lblGeneral, lblGeneral->GetName(), title);
    Layout();
}

void Page::FocusFirst() {
    for (wxWindow* child : GetChildren()) {
        const bool contents = child != cmdHelp && child != cmdBack && child != cmdNext;
        if (contents && child->IsFocusable() && child->IsThisEnabled()) {
            child->SetFocus();
            return;
        }
    }
    cmdNext->SetFocus();
}

Paragraph* Page::AddParagraph(const wxString& name, const wxString& text) {
    auto* const paragraph = new Paragraph(this, text);
    NameControl(*paragraph, name, text);
    body_->Add(paragraph, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(2 * kGap)));
    wrapping_.emplace_back([paragraph](int width) { paragraph->WrapTo(width); });
    return paragraph;
}

LinkParagraph* Page::AddLink(const wxString& name, const wxString& text, const wxString& address) {
    auto* const link = new LinkParagraph(this, text, address);
    NameControl(*link, name, text);
    body_->Add(link, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(2 * kGap)));
    wrapping_.emplace_back([link](int width) { link->WrapTo(width); });
    return link;
}

void Page::AddOptions(OptionGroup& options) {
    options.MoveLastInTabOrder();
    for (int i = 0; i < options.Count(); ++i) {
        WrappingOption* const option = options[i];
        body_->Add(option, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(kGap)));
        wrapping_.emplace_back([option](int width) { option->WrapTo(width); });
    }
}

wxCheckBox* Page::AddCheckBox(const wxString& name, const wxString& caption) {
    auto* const box = new wxCheckBox(this, wxID_ANY, caption);
    NameControl(*box, name);
    body_->Add(box, wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap)));
    return box;
}

wxStaticText* Page::MakeLabel(int labelIndex, const wxString& text) {
    auto* const label = new wxStaticText(this, wxID_ANY, text);
    NameControl(*label, Indexed("lblGeneral", labelIndex), text);
    return label;
}

wxStaticText* Page::AddLabel(int labelIndex, const wxString& text) {
    wxStaticText* const label = MakeLabel(labelIndex, text);
    body_->Add(label, wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap) / 2));
    return label;
}

wxFlexGridSizer* Page::AddFields() {
    const int gap = FromDIP(kGap);
    // The fields bring their own gaps, so that a column without buttons takes no room at all.
    auto* const rows = new wxFlexGridSizer(3, gap, 0);
    rows->AddGrowableCol(1);
    body_->Add(rows, wxSizerFlags().Expand().Border(wxBOTTOM, gap));
    return rows;
}

wxTextCtrl* Page::AddTextRow(wxFlexGridSizer& rows, int labelIndex, const wxString& label,
                             const wxString& name) {
    wxStaticText* const text = MakeLabel(labelIndex, label);
    auto* const box = new wxTextCtrl(this, wxID_ANY);
    platform::ui::TakeOneLine(*box);
    platform::ui::RoomForLine(*box);
    NameControl(*box, name, label);
    rows.Add(text, wxSizerFlags().CentreVertical());
    rows.Add(box, wxSizerFlags(1).Expand().CentreVertical().Border(wxLEFT, FromDIP(kGap)));
    rows.AddSpacer(0);
    return box;
}

TextAndButton Page::AddTextRowWithButton(wxFlexGridSizer& rows, int labelIndex,
                                         const wxString& label, const wxString& textName,
                                         const wxString& buttonName,
                                         const wxString& buttonCaption) {
    wxTextCtrl* const box = AddTextRow(rows, labelIndex, label, textName);
    rows.Remove(static_cast<int>(rows.GetItemCount()) - 1);
    auto* const button = new wxButton(this, wxID_ANY, buttonCaption);
    NameControl(*button, buttonName, buttonCaption + " " + label);
    rows.Add(button, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(kGap)));
    return {box, button};
}

void Page::AddRow(wxFlexGridSizer& rows, int labelIndex, const wxString& label, wxWindow* field,
                  wxWindow* behind) {
    wxStaticText* const text = MakeLabel(labelIndex, label);
    text->MoveBeforeInTabOrder(field);
    rows.Add(text, wxSizerFlags().CentreVertical());
    rows.Add(field, wxSizerFlags(1).Expand().CentreVertical().Border(wxLEFT, FromDIP(kGap)));
    if (behind != nullptr) {
        rows.Add(behind, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(kGap)));
    } else {
        rows.AddSpacer(0);
    }
}

void Page::AlignLabels(std::initializer_list<wxFlexGridSizer*> groups) {
    int width = 0;
    const auto eachLabel = [&groups](const auto& act) {
        for (wxFlexGridSizer* rows : groups) {
            const auto count = static_cast<int>(rows->GetItemCount());
            for (int i = 0; i < count; i += rows->GetCols()) {
                act(*rows->GetItem(static_cast<size_t>(i))->GetWindow());
            }
        }
    };
    eachLabel([&width](wxWindow& label) { width = std::max(width, label.GetBestSize().x); });
    eachLabel([&width](wxWindow& label) { label.SetMinSize(wxSize(width, -1)); });
}

wxListBox* Page::AddListBox(const wxString& name, const wxString& label) {
    auto* const list = new platform::ui::ListBox(this, FromDIP(wxSize(200, 60)));
    // Said aloud, because pages give their boxes the colour of their list and a toolkit may not
    // tell the one that it draws by itself.
    list->SetBackgroundColour(WindowColour());
    NameControl(*list, name, label);
    body_->Add(list, wxSizerFlags(1).Expand().Border(wxBOTTOM, FromDIP(kGap)));
    return list;
}

wxBoxSizer* Page::AddButtonRow() {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->AddStretchSpacer();
    body_->Add(row, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(kGap)));
    return row;
}

wxButton* Page::AddButton(wxBoxSizer& row, const wxString& name, const wxString& caption) {
    auto* const button = new wxButton(this, wxID_ANY, caption);
    NameControl(*button, name);
    row.Add(button, wxSizerFlags().Border(wxLEFT, FromDIP(kGap)));
    return button;
}

int CurrentTab(const wxWindow& page) {
    const auto* const book = dynamic_cast<const wxBookCtrlBase*>(page.GetParent());
    return book == nullptr ? wxNOT_FOUND : book->GetSelection();
}

} // namespace editors
