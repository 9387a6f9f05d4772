#include "editors/paragraph.h"

#include "platform/ui/several_lines.h"

#include <wx/dcclient.h>
#include <wx/textwrapper.h>

#include <algorithm>

namespace editors {

namespace {

class LineCollector : public wxTextWrapper {
public:
    [[nodiscard]] const wxString& Text() const { return text_; }

private:
    void OnOutputLine(const wxString& line) override { text_ += line; }
    void OnNewLine() override { text_ += '\n'; }

    wxString text_;
};

// The toolkit measures GetLabel(), which has no line breaks.
int HeightOf(wxWindow& window, const wxString& lines) {
    wxClientDC dc(&window);
    dc.SetFont(window.GetFont());
    return dc.GetMultiLineTextExtent(lines).y;
}

} // namespace

wxString WrappedText(wxWindow& window, const wxString& text, int width) {
    LineCollector lines;
    lines.Wrap(&window, text, width);
    return lines.Text();
}

Paragraph::Paragraph(wxWindow* parent, const wxString& text)
    : wxStaticText(parent, wxID_ANY, wxControl::EscapeMnemonics(text)), text_(text) {
    SetMinSize(wxSize(1, -1));
}

void Paragraph::WrapTo(int width) {
    if (width > 0 && width != width_) {
        width_ = width;
        const wxString lines = WrappedText(*this, text_, width);
        SetLabel(wxControl::EscapeMnemonics(lines));
        SetMinSize(wxSize(1, HeightOf(*this, lines)));
    }
}

WrappingOption::WrappingOption(wxWindow* parent, const wxString& caption, long style)
    : wxRadioButton(parent, wxID_ANY, wxControl::EscapeMnemonics(caption), wxDefaultPosition,
                    wxDefaultSize, style),
      text_(caption), around_(std::max(GetBestSize().y - HeightOf(*this, caption), 0)) {
    platform::ui::AllowSeveralLines(*this);
    SetMinSize(wxSize(1, -1));
}

void WrappingOption::WrapTo(int width) {
    if (width > 0 && width != width_) {
        width_ = width;
        // Room for the button itself and the space behind it.
        const int textWidth = width - FromDIP(28);
        const wxString lines = WrappedText(*this, text_, textWidth);
        SetLabel(wxControl::EscapeMnemonics(lines));
        SetMinSize(wxSize(1, HeightOf(*this, lines) + around_));
    }
}

} // namespace editors
