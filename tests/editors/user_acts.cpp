#include "tests/editors/user_acts.h"

#include "tests/support/window/find.h"
#include "tests/support/window/wait.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/combo.h>
#include <wx/ctrlsub.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>
#include <wx/textentry.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace window_test {

namespace {

wxString Wx(const std::string& text) {
    return wxString::FromUTF8(text);
}

template <class Part> Part* PartOf(wxWindow* root, const std::string& name) {
    auto* const part = dynamic_cast<Part*>(Find(root, Wx(name)));
    if (part == nullptr) {
        throw std::runtime_error(name + " is a control of another kind");
    }
    return part;
}

void Raise(wxWindow* control, wxEventType type, int number = 0, long extra = 0) {
    wxCommandEvent event(type, control->GetId());
    event.SetEventObject(control);
    event.SetInt(number);
    event.SetExtraLong(extra);
    control->ProcessWindowEvent(event);
}

// A disabled control takes no input, so a test that acts on one has lost its way.
template <class Control> Control* Usable(wxWindow* root, const std::string& name) {
    auto* const control = Find<Control>(root, Wx(name));
    if (!control->IsThisEnabled()) {
        throw std::runtime_error(name + " is disabled");
    }
    return control;
}

} // namespace

void Push(wxWindow* root, const std::string& name) {
    Raise(Usable<wxButton>(root, name), wxEVT_BUTTON);
}

void Enter(wxWindow* root, const std::string& name, const std::string& text) {
    if (!IsEnabled(root, name)) {
        throw std::runtime_error(name + " is disabled");
    }
    PartOf<wxTextEntry>(root, name)->SetValue(Wx(text));
}

void Tick(wxWindow* root, const std::string& name, bool on) {
    auto* const box = Usable<wxCheckBox>(root, name);
    if (box->GetValue() == on) {
        throw std::runtime_error(name + " is in that state already");
    }
    box->SetValue(on);
    Raise(box, wxEVT_CHECKBOX, on ? 1 : 0);
}

void Pick(wxWindow* root, const std::string& name) {
    auto* const button = Usable<wxRadioButton>(root, name);
    button->SetValue(true);
    Raise(button, wxEVT_RADIOBUTTON, 1);
}

void Choose(wxWindow* root, const std::string& name, int index) {
    auto* const choice = Usable<wxChoice>(root, name);
    choice->SetSelection(index);
    Raise(choice, wxEVT_CHOICE, index);
}

void ClickRow(wxWindow* root, const std::string& name, int row) {
    auto* const list = Usable<wxListBox>(root, name);
    list->SetSelection(row);
    Raise(list, wxEVT_LISTBOX, row, 1);
}

wxPoint RowPoint(const wxListBox& list, int row) {
    wxPoint found = wxDefaultPosition;
    const auto search = [&] {
        const wxSize size = list.GetClientSize();
        for (int y = 2; y < size.y && found == wxDefaultPosition; ++y) {
            if (list.HitTest(wxPoint(12, y)) == row && list.HitTest(wxPoint(12, y + 3)) == row) {
                found = wxPoint(12, y + 3);
            }
        }
        return found != wxDefaultPosition;
    };
    if (!WaitFor(search, "the row to be on the screen")) {
        throw std::runtime_error("the row is not on the screen");
    }
    return found;
}

void PutItems(wxWindow* root, const std::string& name, const Texts& items) {
    wxArrayString texts;
    std::ranges::transform(items, std::back_inserter(texts), Wx);
    PartOf<wxItemContainer>(root, name)->Set(texts);
}

void PutText(wxWindow* root, const std::string& name, const std::string& text) {
    PartOf<wxTextEntry>(root, name)->ChangeValue(Wx(text));
}

void SelectRow(wxWindow* root, const std::string& name, int row) {
    PartOf<wxItemContainer>(root, name)->SetSelection(row);
}

std::string TextIn(wxWindow* root, const std::string& name) {
    wxWindow* const control = Find(root, Wx(name));
    if (const auto* const entry = dynamic_cast<wxTextEntry*>(control)) {
        return entry->GetValue().utf8_string();
    }
    return PartOf<wxChoice>(root, name)->GetStringSelection().utf8_string();
}

Texts ItemsIn(wxWindow* root, const std::string& name) {
    Texts items;
    for (const wxString& text : PartOf<wxItemContainer>(root, name)->GetStrings()) {
        items.push_back(text.utf8_string());
    }
    return items;
}

int RowIn(wxWindow* root, const std::string& name) {
    return PartOf<wxItemContainer>(root, name)->GetSelection();
}

bool IsTicked(wxWindow* root, const std::string& name) {
    return Find<wxCheckBox>(root, Wx(name))->GetValue();
}

bool IsPicked(wxWindow* root, const std::string& name) {
    return Find<wxRadioButton>(root, Wx(name))->GetValue();
}

bool IsEnabled(wxWindow* root, const std::string& name) {
    return Find(root, Wx(name))->IsThisEnabled();
}

std::string ColourText(const wxColour& colour) {
    return colour.GetAsString(wxC2S_HTML_SYNTAX).utf8_string();
}

std::string ColourOf(wxWindow* root, const std::string& name) {
    const wxWindow* const control = Find(root, Wx(name));
    // A combined control keeps the colour of its text field apart from its own.
    if (const auto* const combo = dynamic_cast<const wxComboCtrl*>(control)) {
        return ColourText(combo->GetBackgroundColour());
    }
    return ColourText(control->GetBackgroundColour());
}

} // namespace window_test
