// Texts that wrap at the width of their page and keep the words they were given.
#pragma once

#include <wx/radiobut.h>
#include <wx/stattext.h>

namespace editors {

/// `text` with line breaks, so that no line is wider than `width` pixels in the window's font.
wxString WrappedText(wxWindow& window, const wxString& text, int width);

class Paragraph : public wxStaticText {
public:
    Paragraph(wxWindow* parent, const wxString& text);

    /// Breaks the lines anew for this width, in pixels.
    void WrapTo(int width);

    /// The text as it was given, without the line breaks that the page put in.
    [[nodiscard]] wxString GetLabel() const override { return text_; }

private:
    wxString text_;
    int width_ = 0;
};

/// An option button whose caption may take several lines.
class WrappingOption : public wxRadioButton {
public:
    /// `style` is wxRB_GROUP for the first of a group.
    WrappingOption(wxWindow* parent, const wxString& caption, long style = 0);

    void WrapTo(int width);

    [[nodiscard]] wxString GetLabel() const override { return text_; }

private:
    wxString text_;
    int around_; // what the button is higher than its text
    int width_ = 0;
};

} // namespace editors
