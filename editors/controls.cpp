#include "editors/controls.h"

#include "document/document.h"
#include "platform/ui/list_box.h"
#include "platform/ui/text.h"

#include <wx/settings.h>

#include <memory>
#include <utility>

namespace editors {

using platform::ui::FromWx;
using platform::ui::ToWx;

namespace {

void RaiseCommand(wxWindow& control, wxEventType type, int number, const wxString& text) {
    wxCommandEvent event(type, control.GetId());
    event.SetEventObject(&control);
    event.SetInt(number);
    event.SetString(text);
    control.ProcessWindowEvent(event);
}

} // namespace

std::string TextOf(const wxTextEntry& entry) {
    return FromWx(entry.GetValue());
}

void PutText(wxTextEntry& entry, const std::string& text) {
    entry.ChangeValue(ToWx(text.substr(0, text.find_first_of("\r\n"))));
}

void EnterText(wxTextCtrl& box, const std::string& text) {
    PutText(box, text);
    RaiseCommand(box, wxEVT_TEXT, 0, box.GetValue());
}

void EnterText(wxComboBox& box, const std::string& text) {
    PutText(box, text);
    RaiseCommand(box, wxEVT_TEXT, 0, box.GetValue());
}

void ChooseChecked(wxCheckBox& box, bool checked) {
    if (box.GetValue() != checked) {
        box.SetValue(checked);
        RaiseCommand(box, wxEVT_CHECKBOX, checked ? 1 : 0, wxString());
    }
}

void ChooseItem(wxChoice& choice, int index) {
    if (choice.GetSelection() != index) {
        choice.SetSelection(index);
        RaiseCommand(choice, wxEVT_CHOICE, index, choice.GetStringSelection());
    }
}

std::vector<std::string> ItemsOf(const wxItemContainerImmutable& items) {
    std::vector<std::string> texts;
    const unsigned count = items.GetCount();
    texts.reserve(count);
    for (unsigned i = 0; i < count; ++i) {
        texts.push_back(FromWx(items.GetString(i)));
    }
    return texts;
}

void PutItems(wxItemContainer& container, const std::vector<std::string>& items) {
    if (auto* const list = dynamic_cast<platform::ui::ListBox*>(&container)) {
        list->Put(items.size(), [&items](std::size_t row) { return ToWx(items[row]); });
        return;
    }
    std::vector<wxString> texts;
    texts.reserve(items.size());
    for (const std::string& item : items) {
        texts.push_back(ToWx(item));
    }
    container.Set(texts);
}

std::string SelectedText(const wxItemContainerImmutable& items) {
    const int index = items.GetSelection();
    return index == wxNOT_FOUND ? std::string()
                                : FromWx(items.GetString(static_cast<unsigned>(index)));
}

void ColourForState(std::initializer_list<wxWindow*> controls, bool on) {
    for (wxWindow* control : controls) {
        control->SetBackgroundColour(on ? WindowColour() : FaceColour());
        control->Refresh();
    }
}

void EnableAll(std::initializer_list<wxWindow*> controls, bool on) {
    for (wxWindow* control : controls) {
        control->Enable(on);
    }
}

void EnableWithColour(wxWindow& control, bool enable, const wxColour& background) {
    control.Enable(enable);
    control.SetBackgroundColour(background);
    control.Refresh();
}

wxColour WindowColour() {
    return wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW);
}

wxColour FaceColour() {
    return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
}

void BindListClick(wxListBox& list, std::function<void()> handler) {
    struct Press {
        bool onSelected = false;
    };
    const auto press = std::make_shared<Press>();
    const auto run = std::make_shared<std::function<void()>>(std::move(handler));
    list.Bind(wxEVT_LISTBOX, [press, run](wxCommandEvent& event) {
        press->onSelected = false;
        if (event.IsSelection()) {
            (*run)();
        }
    });
    list.Bind(wxEVT_LEFT_DOWN, [press, &list](wxMouseEvent& event) {
        const int row = list.HitTest(event.GetPosition());
        press->onSelected = row != wxNOT_FOUND && row == list.GetSelection();
        event.Skip();
    });
    list.Bind(wxEVT_LEFT_UP, [press, run, &list](wxMouseEvent& event) {
        event.Skip();
        const int row = list.HitTest(event.GetPosition());
        if (std::exchange(press->onSelected, false) && row == list.GetSelection() &&
            row != wxNOT_FOUND) {
            (*run)();
        }
    });
}

void MarkChanged() {
    modINIDocument::g_bolDocumentChanged = true;
}

} // namespace editors
