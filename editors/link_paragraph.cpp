#include "editors/link_paragraph.h"

#include "editors/paragraph.h"
#include "platform/ui/link_role.h"

#include <wx/dcbuffer.h>
#include <wx/dcclient.h>
#include <wx/renderer.h>
#include <wx/settings.h>
#include <wx/tokenzr.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace editors {

wxDEFINE_EVENT(EVT_LINK_OPENED, wxCommandEvent);

namespace {

// Room for the focus rectangle around the text, in device-independent pixels. At the left there is
// none: the text stands in one line with the page's other texts.
constexpr int kMargin = 2;

// The system's colour of links, or one that stands out from the background where the system's does
// not.
wxColour LinkColour(const wxColour& background) {
    constexpr double kLeastDifference = 0.35;
    const wxColour colour = wxSystemSettings::GetColour(wxSYS_COLOUR_HOTLIGHT);
    const double ground = background.GetLuminance();
    if (std::abs(colour.GetLuminance() - ground) >= kLeastDifference) {
        return colour;
    }
    return ground < 0.5 ? wxColour(128, 190, 255) : wxColour(0, 102, 204);
}

} // namespace

LinkParagraph::LinkParagraph(wxWindow* parent, const wxString& text, const wxString& address)
    : text_(text), address_(address), lines_{text} {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE);
    SetMinSize(wxSize(1, -1));
    platform::ui::TellLink(*this);
    Bind(wxEVT_PAINT, &LinkParagraph::OnPaint, this);
    // Before a default button or the navigation between controls sees the key.
    Bind(wxEVT_CHAR_HOOK, &LinkParagraph::OnKey, this);
    Bind(wxEVT_KEY_UP, [this](wxKeyEvent& event) {
        keyIsDown_ = false;
        event.Skip();
    });
    Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent&) {
        pressed_ = true;
        SetFocus();
    });
    Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
        pressed_ = false;
        event.Skip();
    });
    Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& event) {
        if (std::exchange(pressed_, false) && GetClientRect().Contains(event.GetPosition())) {
            Open();
        }
    });
    const auto redraw = [this](wxFocusEvent& event) {
        keyIsDown_ = false;
        Refresh();
        event.Skip();
    };
    Bind(wxEVT_SET_FOCUS, redraw);
    Bind(wxEVT_KILL_FOCUS, redraw);
}

void LinkParagraph::WrapTo(int width) {
    if (width <= 0 || width == width_) {
        return;
    }
    width_ = width;
    lines_.clear();
    wxStringTokenizer lines(WrappedText(*this, text_, width - FromDIP(kMargin)), "\n",
                            wxTOKEN_RET_EMPTY_ALL);
    while (lines.HasMoreTokens()) {
        lines_.push_back(lines.GetNextToken());
    }
    InvalidateBestSize();
    SetMinSize(wxSize(1, GetBestSize().y));
    Refresh();
}

wxSize LinkParagraph::DoGetBestClientSize() const {
    wxClientDC dc(const_cast<LinkParagraph*>(this));
    dc.SetFont(GetFont());
    int width = 0;
    for (const wxString& line : lines_) {
        width = std::max(width, dc.GetTextExtent(line).x);
    }
    const int margin = FromDIP(kMargin);
    return {width + margin, dc.GetCharHeight() * static_cast<int>(lines_.size()) + 2 * margin};
}

void LinkParagraph::OnPaint(wxPaintEvent&) {
    wxAutoBufferedPaintDC dc(this);
    dc.SetBackground(wxBrush(GetParent()->GetBackgroundColour()));
    dc.Clear();
    dc.SetFont(GetFont());
    wxPoint at(0, FromDIP(kMargin));
    int width = 0;
    for (const wxString& line : lines_) {
        DrawLine(dc, line, at);
        width = std::max(width, dc.GetTextExtent(line).x);
        at.y += dc.GetCharHeight();
    }
    if (HasFocus()) {
        const wxRect around(0, 0, width + FromDIP(kMargin), at.y + FromDIP(kMargin));
        wxRendererNative::Get().DrawFocusRect(this, dc, around);
    }
}

void LinkParagraph::DrawLine(wxDC& dc, const wxString& line, wxPoint at) const {
    const auto draw = [&](const wxString& piece, const wxColour& colour, const wxFont& font) {
        dc.SetTextForeground(colour);
        dc.SetFont(font);
        dc.DrawText(piece, at);
        at.x += dc.GetTextExtent(piece).x;
    };
    const size_t found = line.find(address_);
    if (found == wxString::npos) {
        draw(line, GetForegroundColour(), GetFont());
        return;
    }
    draw(line.substr(0, found), GetForegroundColour(), GetFont());
    draw(address_, LinkColour(GetParent()->GetBackgroundColour()), GetFont().Underlined());
    draw(line.substr(found + address_.length()), GetForegroundColour(), GetFont());
}

void LinkParagraph::OnKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const bool opens = key == WXK_RETURN || key == WXK_NUMPAD_ENTER || key == WXK_SPACE;
    if (!opens || event.HasAnyModifiers()) {
        event.Skip();
    } else if (!std::exchange(keyIsDown_, true)) {
        Open();
    }
}

void LinkParagraph::Open() {
    wxCommandEvent event(EVT_LINK_OPENED, GetId());
    event.SetEventObject(this);
    ProcessWindowEvent(event);
}

} // namespace editors
