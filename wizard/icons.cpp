#include "wizard/icons.h"

#include "icon_drawings.h"

#include <wx/artprov.h>
#include <wx/icon.h>

#include <array>

namespace modWizard {

wxIconBundle ProgramIcons() {
    wxIconBundle icons;
    const wxBitmapBundle drawing = wxBitmapBundle::FromSVG(kQueueshiftSvg, wxSize(32, 32));
    // The whole drawing would be a blur in a caption.
    const wxBitmapBundle smallDrawing =
        wxBitmapBundle::FromSVG(kQueueshiftSmallSvg, wxSize(16, 16));
    for (const int size : {16, 20, 24, 32, 48, 64, 128}) {
        wxIcon icon;
        icon.CopyFromBitmap((size < 32 ? smallDrawing : drawing).GetBitmap(wxSize(size, size)));
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
    static constexpr std::array<Art, 3> kArt{{{"ID_BTN_NEW", "wxART_NEW"},
                                              {"ID_BTN_OPEN", "wxART_FILE_OPEN"},
                                              {"ID_BTN_SAVE", "wxART_FILE_SAVE"}}};
    for (const Art& art : kArt) {
        if (art.tool == tool) {
            return wxArtProvider::GetBitmapBundle(art.id, wxART_TOOLBAR);
        }
    }
    // Neither system's art has a help book that goes with the rest.
    if (tool == "ID_BTN_CONTENTS") {
        return wxBitmapBundle::FromSVG(kHelpSvg, wxArtProvider::GetDIPSizeHint(wxART_TOOLBAR));
    }
    return {};
}

} // namespace modWizard
