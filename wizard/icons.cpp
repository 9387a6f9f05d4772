#include "wizard/icons.h"

#include <wx/artprov.h>
#include <wx/icon.h>

#include <array>

namespace modWizard {

namespace {

// Drawn for this program; kept as text, so that they are sharp at every scale.
constexpr const char* kPageSvg = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M3 1h7l3 3v11H3z" fill="#fdfdfd" stroke="#5b6b7f"/>
<path d="M10 1v3h3" fill="#d7e3f1" stroke="#5b6b7f"/>
<path d="M5 7h6M5 9.5h6M5 12h4" stroke="#2f6fb2" stroke-width="1.2"/></svg>)";

constexpr const char* kBranchSvg = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M1 3h5l1.5 2H15v9H1z" fill="#f3c969" stroke="#9a7420"/>
<path d="M1 6.5h14" stroke="#fbe6b5" stroke-width="1.2"/></svg>)";

constexpr const char* kProgramSvg = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 64 64">
<rect x="2" y="2" width="60" height="60" rx="12" fill="#1f5fa8"/>
<path d="M18 12h28v14H18z" fill="#ffffff"/>
<rect x="10" y="24" width="44" height="20" rx="4" fill="#dfe9f5"/>
<circle cx="47" cy="30" r="2.5" fill="#3fae5a"/>
<path d="M16 38h32v14H16z" fill="#ffffff" stroke="#9fb6d0" stroke-width="1.5"/>
<path d="M22 45h14" stroke="#e07b24" stroke-width="4"/>
<path d="M34 39.5 43 45 34 50.5z" fill="#e07b24"/></svg>)";

} // namespace

wxIconBundle ProgramIcons() {
    wxIconBundle icons;
    const wxBitmapBundle picture = wxBitmapBundle::FromSVG(kProgramSvg, wxSize(32, 32));
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        wxIcon icon;
        icon.CopyFromBitmap(picture.GetBitmap(wxSize(size, size)));
        icons.AddIcon(icon);
    }
    return icons;
}

std::vector<wxBitmapBundle> TreeImages() {
    return {wxBitmapBundle::FromSVG(kPageSvg, wxSize(16, 16)),
            wxBitmapBundle::FromSVG(kBranchSvg, wxSize(16, 16))};
}

wxBitmapBundle ToolImage(std::string_view tool) {
    struct Art {
        std::string_view tool;
        const char* id;
    };
    static constexpr std::array<Art, 4> kArt{{{"ID_BTN_NEW", "wxART_NEW"},
                                              {"ID_BTN_OPEN", "wxART_FILE_OPEN"},
                                              {"ID_BTN_SAVE", "wxART_FILE_SAVE"},
                                              {"ID_BTN_CONTENTS", "wxART_HELP_BOOK"}}};
    for (const Art& art : kArt) {
        if (art.tool == tool) {
            return wxArtProvider::GetBitmapBundle(art.id, wxART_TOOLBAR);
        }
    }
    return {};
}

} // namespace modWizard
