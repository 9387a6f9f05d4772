// A text of a page that opens an address.
//
// The whole text is the link: a click anywhere in it, or Enter or Space while it has the focus,
// opens the address. The address in it is drawn as links are, the rest as the texts around it.
#pragma once

#include <wx/control.h>

#include <vector>

namespace editors {

/// Sent when the user opens the link, by mouse or by keyboard.
wxDECLARE_EVENT(EVT_LINK_OPENED, wxCommandEvent);

class LinkParagraph : public wxControl {
public:
    /// `address` is the part of `text` that is drawn as a link.
    LinkParagraph(wxWindow* parent, const wxString& text, const wxString& address);

    /// Breaks the lines anew for this width, in pixels.
    void WrapTo(int width);

    /// The text as it was given.
    [[nodiscard]] wxString GetLabel() const override { return text_; }

    [[nodiscard]] bool AcceptsFocus() const override { return true; }

protected:
    [[nodiscard]] bool ShouldInheritColours() const override { return true; }
    [[nodiscard]] wxSize DoGetBestClientSize() const override;

private:
    void OnPaint(wxPaintEvent& event);
    void OnKey(wxKeyEvent& event);
    void Open();
    void DrawLine(wxDC& dc, const wxString& line, wxPoint at) const;

    wxString text_;
    wxString address_;
    std::vector<wxString> lines_;
    int width_ = 0;
    bool pressed_ = false;   // the mouse button went down in here
    bool keyIsDown_ = false; // a key that is held down opens once
};

} // namespace editors
