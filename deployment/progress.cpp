#include "deployment/progress.h"

#include "platform/ui/control_name.h"
#include "platform/ui/pump.h"
#include "platform/ui/text.h"

#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/toplevel.h>

#include <algorithm>

using platform::ui::NameControl;

namespace {

// In average characters: the longest label and some room.
constexpr int kWidth = 48;

} // namespace

frmProgress::frmProgress(wxWindow* owner)
    : wxDialog(owner, wxID_ANY, "Queueshift", wxDefaultPosition, wxDefaultSize, wxCAPTION) {
    NameControl(*this, "frmProgress");
    lblProgress = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                                   wxST_NO_AUTORESIZE);
    NameControl(*lblProgress, "lblProgress");
    prbProgress = new wxGauge(this, wxID_ANY, kMaximum, wxDefaultPosition, wxDefaultSize,
                              wxGA_HORIZONTAL | wxGA_SMOOTH);
    NameControl(*prbProgress, "prbProgress", "Progress");
    prbProgress->SetMinSize(wxSize(GetCharWidth() * kWidth, -1));

    const int gap = FromDIP(8);
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(lblProgress, wxSizerFlags().Expand().Border(wxBOTTOM, gap));
    rows->Add(prbProgress, wxSizerFlags().Expand());
    auto* const frame = new wxBoxSizer(wxVERTICAL);
    frame->Add(rows, wxSizerFlags(1).Expand().Border(wxALL, 2 * gap));
    SetSizerAndFit(frame);
    CentreOnParent();
    if (const auto* const program = wxDynamicCast(owner, wxTopLevelWindow)) {
        SetIcons(program->GetIcons());
    }
    // The desktop may offer to close any window, and Esc does without one.
    Bind(wxEVT_CLOSE_WINDOW, [](wxCloseEvent& event) { event.Veto(); });
    SetEscapeId(wxID_NONE);
}

void frmProgress::ShowStep(int value, std::string_view label) {
    prbProgress->SetValue(std::min(value, kMaximum));
    lblProgress->SetLabel(platform::ui::ToWx(label));
}

void frmProgress::Advance(std::string_view label) {
    ShowStep(prbProgress->GetValue() + 1, label);
    platform::ui::PumpEvents();
}

void frmProgress::SetToMaximum(std::string_view label) {
    ShowStep(kMaximum, label);
    Update();
}
