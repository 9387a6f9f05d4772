// The controls of the new-document dialog and their places.
#include "files/new_ini.h"

#include "editors/paragraph.h"
#include "platform/ui/control_name.h"
#include "platform/ui/line_room.h"
#include "platform/ui/list_box.h"
#include "platform/ui/option_keys.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/dcclient.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

using platform::ui::NameControl;

namespace {

// Widths in average characters of the dialog's font, so that a larger font finds its room.
constexpr int kTextWidth = 62;
constexpr int kListWidth = 30;
constexpr int kListHeight = 10;
constexpr int kFirstLabel = 20;

constexpr const char* kActiveDirectoryText =
    "If all of your printers are published within Active Directory, you can select the Active "
    "Directory option to automatically maintain correct printer mappings using the automatic "
    "search and replace feature of Queueshift.";
constexpr const char* kManualText =
    "If you would like more control over which printers get moved to which servers, please select "
    "this option.";

editors::Paragraph* Label(wxWindow* parent, int index, const wxString& text, int widthInPixels) {
    auto* const label = new editors::Paragraph(parent, text);
    NameControl(*label, wxString::Format("lblGeneral(%d)", kFirstLabel + index));
    label->WrapTo(widthInPixels);
    // The height of the lines as they are broken: the label itself answers for its unbroken text.
    const wxClientDC drawing(label);
    const wxString lines = editors::WrappedText(*label, text, widthInPixels);
    label->SetMinSize(wxSize(widthInPixels, drawing.GetMultiLineTextExtent(lines).y));
    return label;
}

wxSize ListSize(const wxWindow& window) {
    return {window.GetCharWidth() * kListWidth, window.GetCharHeight() * kListHeight};
}

} // namespace

wxWindow* frmNewINI::CreateNewPage() {
    auto* const page = new wxPanel(sstNewINI);
    const int width = GetCharWidth() * kTextWidth;
    // Descriptions stand under their option's words, not under its button.
    const int indent = FromDIP(22);
    auto* const heading = Label(page, 0, "Please select the type of Queueshift INI file:", width);
    optUseActiveDirectory = new wxRadioButton(page, wxID_ANY, "&Active Directory",
                                              wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
    NameControl(*optUseActiveDirectory, "optUseActiveDirectory");
    auto* const directoryText = Label(page, 1, kActiveDirectoryText, width - indent);
    optUseManualConfiguration = new wxRadioButton(page, wxID_ANY, "&Manual Configuration");
    NameControl(*optUseManualConfiguration, "optUseManualConfiguration");
    platform::ui::SelectByArrowKeys({optUseActiveDirectory, optUseManualConfiguration});
    auto* const manualText = Label(page, 2, kManualText, width - indent);

    const int gap = FromDIP(6);
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(heading, wxSizerFlags().Border(wxBOTTOM, 2 * gap));
    rows->Add(optUseActiveDirectory, wxSizerFlags().Border(wxBOTTOM, gap / 2));
    rows->Add(directoryText, wxSizerFlags().Border(wxLEFT, indent));
    rows->AddSpacer(3 * gap);
    rows->Add(optUseManualConfiguration, wxSizerFlags().Border(wxBOTTOM, gap / 2));
    rows->Add(manualText, wxSizerFlags().Border(wxLEFT, indent));
    auto* const frame = new wxBoxSizer(wxVERTICAL);
    frame->Add(rows, wxSizerFlags(1).Expand().Border(wxALL, 2 * gap));
    page->SetSizer(frame);
    return page;
}

wxWindow* frmNewINI::CreateExistingPage() {
    auto* const page = new wxPanel(sstNewINI);
    const wxString text = "Please navigate to and select an existing INI file:";
    auto* const lblExisting = new wxStaticText(page, wxID_ANY, text);
    NameControl(*lblExisting, "lblExisting");
    drvExistingINI = new wxChoice(page, wxID_ANY);
    platform::ui::RoomForLine(*drvExistingINI);
    NameControl(*drvExistingINI, "drvExistingINI", "Drive");
    dirExistingINI = new platform::ui::ListBox(page, ListSize(*this));
    NameControl(*dirExistingINI, "dirExistingINI", "Folders");
    filExistingINI = new platform::ui::ListBox(page, ListSize(*this));
    NameControl(*filExistingINI, "filExistingINI", "INI files");

    const int gap = FromDIP(6);
    auto* const places = new wxBoxSizer(wxVERTICAL);
    places->Add(drvExistingINI, wxSizerFlags().Expand().Border(wxBOTTOM, gap));
    places->Add(dirExistingINI, wxSizerFlags(1).Expand());
    auto* const lists = new wxBoxSizer(wxHORIZONTAL);
    lists->Add(places, wxSizerFlags(1).Expand().Border(wxRIGHT, 2 * gap));
    lists->Add(filExistingINI, wxSizerFlags(1).Expand());
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(lblExisting, wxSizerFlags().Border(wxBOTTOM, gap));
    rows->Add(lists, wxSizerFlags(1).Expand());
    auto* const frame = new wxBoxSizer(wxVERTICAL);
    frame->Add(rows, wxSizerFlags(1).Expand().Border(wxALL, 2 * gap));
    page->SetSizer(frame);
    return page;
}

wxSizer* frmNewINI::CreateButtons() {
    cmdSelect = new wxButton(this, wxID_ANY, "&Select");
    NameControl(*cmdSelect, "cmdSelect");
    // The identifier is what Esc and the close box look for.
    cmdCancel = new wxButton(this, wxID_CANCEL, "&Cancel");
    NameControl(*cmdCancel, "cmdCancel");
    cmdHelp = new wxButton(this, wxID_ANY, "&Help");
    NameControl(*cmdHelp, "cmdHelp");
    cmdSelect->SetDefault();
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->AddStretchSpacer();
    for (wxButton* button : {cmdSelect, cmdCancel, cmdHelp}) {
        row->Add(button, wxSizerFlags().Border(wxLEFT, FromDIP(8)));
    }
    return row;
}

frmNewINI::frmNewINI(wxWindow* owner)
    : wxDialog(owner, wxID_ANY, "New INI", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    NameControl(*this, "frmNewINI");
    sstNewINI = new wxNotebook(this, wxID_ANY);
    NameControl(*sstNewINI, "sstNewINI", "New INI");
    sstNewINI->AddPage(CreateNewPage(), "New");
    sstNewINI->AddPage(CreateExistingPage(), "Existing");
    sstNewINI->AddPage(new wxPanel(sstNewINI), "&Recent");

    const int border = FromDIP(10);
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(sstNewINI, wxSizerFlags(1).Expand().Border(wxALL, border));
    rows->Add(CreateButtons(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, border));
    SetSizerAndFit(rows);
    SetMinSize(GetSize());
    CentreOnParent();
    BindEvents();
    Form_Load();
}
