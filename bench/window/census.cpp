// Counts what the program's first two windows are made of, for the bare window to be built from:
// one line a control, "DEPTH KIND SIZE", each below the one that holds it. SIZE is how long a
// caption is, or how many rows, entries or tools there are.
//
// Taken from the real windows whenever it is wanted, so that it cannot fall behind them.
#include "editors/link_paragraph.h"
#include "files/ini_file.h"
#include "files/new_ini.h"
#include "wizard/pages.h"
#include "wizard/wizard.h"

#include <wx/app.h>
#include <wx/dataview.h>
#include <wx/gauge.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/odcombo.h>
#include <wx/radiobut.h>
#include <wx/splitter.h>
#include <wx/statline.h>
#include <wx/stattext.h>
#include <wx/toolbar.h>

#include <array>
#include <cstdio>
#include <stdexcept>

namespace {

using Size = std::size_t (*)(const wxWindow&);

struct Kind {
    const char* name;
    bool (*is)(const wxWindow&);
    Size size;
    bool whole = true; ///< what it holds comes with it
};

template <class Control> bool Is(const wxWindow& window) {
    return dynamic_cast<const Control*>(&window) != nullptr;
}

std::size_t Caption(const wxWindow& window) {
    return window.GetLabel().length();
}

template <class Control> std::size_t Rows(const wxWindow& window) {
    return dynamic_cast<const Control&>(window).GetCount();
}

std::size_t None(const wxWindow& /*window*/) {
    return 0;
}

std::size_t Nodes(const wxWindow& /*window*/) {
    return modWizard::TreeNodes(true).size();
}

std::size_t Tools(const wxWindow& window) {
    return dynamic_cast<const wxToolBar&>(window).GetToolsCount();
}

bool IsSeveralLines(const wxWindow& window) {
    const auto* const box = dynamic_cast<const wxTextCtrl*>(&window);
    return box != nullptr && box->IsMultiLine();
}

// A kind stands before those that it is also one of.
constexpr std::array<Kind, 20> kKinds{{
    {"frame", Is<wxFrame>, None, false},
    {"dialog", Is<wxDialog>, None, false},
    {"splitter", Is<wxSplitterWindow>, None, false},
    {"simplebook", Is<wxSimplebook>, None, false},
    {"notebook", Is<wxNotebook>, None, false},
    {"toolbar", Is<wxToolBar>, Tools},
    {"tree", Is<wxDataViewTreeCtrl>, Nodes},
    {"link", Is<editors::LinkParagraph>, Caption},
    {"label", Is<wxStaticText>, Caption},
    {"line", Is<wxStaticLine>, None},
    {"button", Is<wxButton>, Caption},
    {"checkbox", Is<wxCheckBox>, Caption},
    {"option", Is<wxRadioButton>, Caption},
    {"lines", IsSeveralLines, None},
    {"text", Is<wxTextCtrl>, None},
    {"drawncombo", Is<wxOwnerDrawnComboBox>, Rows<wxOwnerDrawnComboBox>},
    {"combo", Is<wxComboBox>, Rows<wxComboBox>},
    {"choice", Is<wxChoice>, Rows<wxChoice>},
    {"list", Is<wxListBox>, None},
    {"gauge", Is<wxGauge>, None},
}};

void Print(int depth, const wxWindow& window) {
    for (const Kind& kind : kKinds) {
        if (kind.is(window)) {
            std::printf("%d %s %zu\n", depth, kind.name, kind.size(window));
            if (kind.whole) {
                return;
            }
            break;
        }
    }
    const bool known =
        std::ranges::any_of(kKinds, [&](const Kind& kind) { return kind.is(window); });
    if (!known) {
        if (!Is<wxPanel>(window)) {
            throw std::runtime_error("no kind for " + window.GetName().utf8_string());
        }
        std::printf("%d panel 0\n", depth);
    }
    for (const wxWindow* child : window.GetChildren()) {
        if (!child->IsTopLevel()) {
            Print(depth + 1, *child);
        }
    }
}

void PrintMenus(const wxFrame& frame) {
    const wxMenuBar& bar = *frame.GetMenuBar();
    for (std::size_t i = 0; i < bar.GetMenuCount(); ++i) {
        std::printf("1 menu %zu\n", bar.GetMenu(i)->GetMenuItemCount());
    }
}

class Census : public wxApp {
public:
    bool OnInit() override { return true; }
    int OnRun() override {
        try {
            auto* const window = new frmWizard;
            modINIFile::StartUntitledDocument();
            Print(0, *window);
            PrintMenus(*window);
            const frmNewINI dialog(nullptr);
            Print(0, dialog);
            window->Destroy();
            return 0;
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
            return 1;
        }
    }
};

} // namespace

wxIMPLEMENT_APP(Census);
