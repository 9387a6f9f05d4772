#include "files/about.h"

#include "document/product.h"
#include "platform/ui/control_name.h"
#include "platform/ui/text.h"

#include "version.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/statline.h>
#include <wx/stattext.h>

using platform::ui::NameControl;
using platform::ui::ToWx;

namespace {

constexpr const char* kCopyright = "Copyright (C) 2026 Norvane, LLC. All rights reserved.";

} // namespace

ProductVersion CurrentVersion() {
    return {QUEUESHIFT_VERSION_MAJOR, QUEUESHIFT_VERSION_MINOR, QUEUESHIFT_VERSION_REVISION};
}

frmAbout::frmAbout(wxWindow* owner, const ProductVersion& version)
    : wxDialog(owner, wxID_ANY, wxString()), version_(version) {
    NameControl(*this, "frmAbout");
    lblTitle = new wxStaticText(this, wxID_ANY, wxString());
    NameControl(*lblTitle, "lblTitle");
    lblTitle->SetFont(lblTitle->GetFont().Bold().Larger());
    lblVersion = new wxStaticText(this, wxID_ANY, wxString());
    NameControl(*lblVersion, "lblVersion");
    lblDisclaimer = new wxStaticText(this, wxID_ANY, kCopyright);
    NameControl(*lblDisclaimer, "lblDisclaimer");
    cmdOK = new wxButton(this, wxID_OK, "OK");
    NameControl(*cmdOK, "cmdOK");
    cmdOK->SetDefault();
    cmdOK->SetFocus();
    cmdOK->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdOK_Click(); });
    Form_Load();

    const int border = FromDIP(16);
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(lblTitle, wxSizerFlags().Border(wxBOTTOM, border / 2));
    rows->Add(lblVersion, wxSizerFlags().Border(wxBOTTOM, border));
    rows->Add(new wxStaticLine(this), wxSizerFlags().Expand().Border(wxBOTTOM, border));
    rows->Add(lblDisclaimer, wxSizerFlags().Border(wxBOTTOM, border));
    rows->Add(cmdOK, wxSizerFlags().Right());
    auto* const frame = new wxBoxSizer(wxVERTICAL);
    frame->Add(rows, wxSizerFlags(1).Expand().Border(wxALL, border));
    // The caption is wider than all else, and is cut where it finds no room beside its buttons.
    constexpr int kBesideCaption = 190;
    frame->SetMinSize(GetTextExtent(GetTitle()).x + FromDIP(kBesideCaption), -1);
    SetSizerAndFit(frame);
    CentreOnParent();
}

void frmAbout::Form_Load() {
    SetTitle("About " + ToWx(product::kApplicationTitle));
    lblVersion->SetLabel(
        wxString::Format("Version %d.%d.%d", version_.Major, version_.Minor, version_.Revision));
    lblTitle->SetLabel(ToWx(product::kApplicationTitle));
}

void frmAbout::cmdOK_Click() {
    if (IsModal()) {
        EndModal(wxID_OK);
    } else {
        Hide();
    }
}
