// The plain peer of the program: the toolkit's own controls, as many of the same kinds in the same
// pages as the census has found, and nothing behind them. It shows the dialog, then the window.
//
//   queueshift-bare-window CENSUS
#include <wx/app.h>
#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/dataview.h>
#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/gauge.h>
#include <wx/hyperlink.h>
#include <wx/listbox.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/odcombo.h>
#include <wx/radiobut.h>
#include <wx/simplebook.h>
#include <wx/splitter.h>
#include <wx/statline.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toolbar.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace {

using Make = std::function<wxWindow*(wxWindow* parent, int size)>;

wxString Words(int length) {
    wxString words;
    while (static_cast<int>(words.length()) < length) {
        words << "plain ";
    }
    return words.Left(static_cast<std::size_t>(length));
}

template <class Control> wxWindow* Bare(wxWindow* parent, int /*size*/) {
    return new Control(parent, wxID_ANY);
}

template <class Control> wxWindow* Captioned(wxWindow* parent, int size) {
    return new Control(parent, wxID_ANY, Words(size));
}

template <class Control> wxWindow* WithRows(wxWindow* parent, int size) {
    auto* const control = new Control(parent, wxID_ANY);
    control->Append(wxArrayString(static_cast<std::size_t>(size), Words(12)));
    return control;
}

wxWindow* MakeTools(wxWindow* parent, int size) {
    wxToolBar* const tools = dynamic_cast<wxFrame&>(*parent).CreateToolBar();
    for (int i = 0; i < size; ++i) {
        tools->AddTool(wxID_ANY, "plain", wxArtProvider::GetBitmapBundle(wxART_NEW, wxART_TOOLBAR));
    }
    tools->Realize();
    return tools;
}

wxWindow* MakeTree(wxWindow* parent, int size) {
    auto* const tree = new wxDataViewTreeCtrl(parent, wxID_ANY);
    for (int i = 0; i < size; ++i) {
        tree->AppendItem(wxDataViewItem(), "plain");
    }
    return tree;
}

wxWindow* MakeLink(wxWindow* parent, int size) {
    return new wxHyperlinkCtrl(parent, wxID_ANY, Words(size), "http://plain.example");
}

wxWindow* MakeLines(wxWindow* parent, int /*size*/) {
    return new wxTextCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                          wxTE_MULTILINE);
}

wxWindow* MakeMenu(wxWindow* parent, int size) {
    auto& frame = dynamic_cast<wxFrame&>(*parent);
    if (frame.GetMenuBar() == nullptr) {
        frame.SetMenuBar(new wxMenuBar);
    }
    auto* const menu = new wxMenu;
    for (int i = 0; i < size; ++i) {
        menu->Append(wxID_ANY, "plain");
    }
    frame.GetMenuBar()->Append(menu, "plain");
    return frame.GetMenuBar();
}

const std::map<std::string, Make>& Makers() {
    static const std::map<std::string, Make> makers{
        {"frame",
         [](wxWindow*, int) {
             return new wxFrame(nullptr, wxID_ANY, "bare window", wxDefaultPosition,
                                wxSize(880, 700));
         }},
        {"dialog", [](wxWindow*, int) { return new wxDialog(nullptr, wxID_ANY, "bare dialog"); }},
        {"splitter", Bare<wxSplitterWindow>},
        {"simplebook", Bare<wxSimplebook>},
        {"notebook", Bare<wxNotebook>},
        {"panel", Bare<wxPanel>},
        {"toolbar", MakeTools},
        {"menu", MakeMenu},
        {"tree", MakeTree},
        {"link", MakeLink},
        {"label", Captioned<wxStaticText>},
        {"line", Bare<wxStaticLine>},
        {"button", Captioned<wxButton>},
        {"checkbox", Captioned<wxCheckBox>},
        {"option", Captioned<wxRadioButton>},
        {"lines", MakeLines},
        {"text", Bare<wxTextCtrl>},
        {"drawncombo", WithRows<wxOwnerDrawnComboBox>},
        {"combo", WithRows<wxComboBox>},
        {"choice", WithRows<wxChoice>},
        {"list", Bare<wxListBox>},
        {"gauge", [](wxWindow* parent, int) { return new wxGauge(parent, wxID_ANY, 100); }},
    };
    return makers;
}

/// What its parent has to know of a new control.
void Join(wxWindow& parent, wxWindow* child) {
    if (auto* const book = dynamic_cast<wxBookCtrlBase*>(&parent)) {
        book->AddPage(child, "plain");
    } else if (auto* const splitter = dynamic_cast<wxSplitterWindow*>(&parent)) {
        wxWindow* const first = splitter->GetWindow1();
        if (first == nullptr) {
            splitter->Initialize(child);
        } else {
            splitter->SplitVertically(first, child, 230);
        }
    } else if (dynamic_cast<wxFrame*>(&parent) == nullptr) {
        if (parent.GetSizer() == nullptr) {
            parent.SetSizer(new wxBoxSizer(wxVERTICAL));
        }
        const bool grows = dynamic_cast<wxBookCtrlBase*>(child) != nullptr;
        parent.GetSizer()->Add(child, wxSizerFlags(grows ? 1 : 0).Expand());
    }
}

struct Bond {
    std::size_t depth;
    wxWindow* parent;
    wxWindow* child;
};

/// The windows that the census tells of, with all that is in them.
std::vector<wxWindow*> Build(std::istream& census) {
    std::vector<wxWindow*> windows;
    std::vector<wxWindow*> way;
    std::vector<Bond> bonds;
    std::size_t depth = 0;
    std::string kind;
    int size = 0;
    while (census >> depth >> kind >> size) {
        way.resize(depth);
        wxWindow* const parent = way.empty() ? nullptr : way.back();
        way.push_back(Makers().at(kind)(parent, size));
        if (parent == nullptr) {
            windows.push_back(way.back());
        } else {
            bonds.push_back({depth, parent, way.back()});
        }
    }
    // From the inside out, so that a page has its size when its book asks.
    std::ranges::stable_sort(bonds, std::greater(), &Bond::depth);
    for (const Bond& bond : bonds) {
        Join(*bond.parent, bond.child);
    }
    return windows;
}

class BareApp : public wxApp {
public:
    bool OnInit() override {
        std::ifstream census(argv[1].utf8_string());
        const std::vector<wxWindow*> windows = Build(census);
        if (windows.size() != 2) {
            return false;
        }
        CallAfter([windows] {
            auto& dialog = dynamic_cast<wxDialog&>(*windows[1]);
            dialog.GetSizer()->SetSizeHints(&dialog);
            // Return ends it, as it does the program's.
            dialog.Bind(wxEVT_CHAR_HOOK, [&dialog](wxKeyEvent& event) {
                event.Skip();
                if (event.GetKeyCode() == WXK_RETURN) {
                    dialog.EndModal(wxID_OK);
                }
            });
            dialog.ShowModal();
            windows[0]->Show();
        });
        return true;
    }
    void OnInitCmdLine(wxCmdLineParser& /*parser*/) override {}
    bool OnCmdLineParsed(wxCmdLineParser& /*parser*/) override { return true; }
};

} // namespace

wxIMPLEMENT_APP(BareApp);
