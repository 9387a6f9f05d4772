#include "editors/leave_checks.h"

#include <type_traits> // the next header uses it unasked
#include <wx/app.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/radiobut.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include <wx/weakref.h>

#include <utility>
#include <vector>

namespace editors {

namespace {

// What the control shows before the action that a refusal takes back.
std::function<void()> Snapshot(wxWindow* control) {
    if (auto* const list = dynamic_cast<wxListBox*>(control)) {
        return [list, selection = list->GetSelection()] { list->SetSelection(selection); };
    }
    if (auto* const box = dynamic_cast<wxCheckBox*>(control)) {
        return [box, value = box->GetValue()] { box->SetValue(value); };
    }
    if (auto* const choice = dynamic_cast<wxChoice*>(control)) {
        return [choice, selection = choice->GetSelection()] { choice->SetSelection(selection); };
    }
    if (dynamic_cast<wxRadioButton*>(control) != nullptr) {
        for (wxWindow* sibling : control->GetParent()->GetChildren()) {
            auto* const button = dynamic_cast<wxRadioButton*>(sibling);
            if (button != nullptr && button->GetValue()) {
                return [button] { button->SetValue(true); };
            }
        }
    }
    return [] {};
}

} // namespace

LeaveChecks::LeaveChecks(wxWindow& window) : window_(window) {
    for (const wxEventType type :
         {wxEventType(wxEVT_CHECKBOX), wxEventType(wxEVT_RADIOBUTTON), wxEventType(wxEVT_LISTBOX),
          wxEventType(wxEVT_LISTBOX_DCLICK), wxEventType(wxEVT_CHOICE), wxEventType(wxEVT_COMBOBOX),
          wxEventType(wxEVT_MENU), wxEventType(wxEVT_TOOL), wxEventType(wxEVT_CHAR_HOOK),
          wxEventType(wxEVT_KEY_DOWN)}) {
        actions_[type] = Meaning::Action;
    }
    AddAction(wxEVT_BUTTON);
    wxEvtHandler::AddFilter(this);
    // Not while the button is down: a check makes the window deaf for a moment, and the release
    // that completes the user's click would be lost.
    window_.Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        if (!running_) {
            refusedControl_ = nullptr;
            if (!wxGetMouseState().LeftIsDown()) {
                RunPending();
            }
        }
    });
}

LeaveChecks::~LeaveChecks() {
    wxEvtHandler::RemoveFilter(this);
}

void LeaveChecks::Add(wxWindow& field, std::function<bool()> mayLeave) {
    checks_[&field] = std::move(mayLeave);
}

void LeaveChecks::AddAction(wxEventType type) {
    actions_[type] = Meaning::Leaving;
}

void LeaveChecks::OnRefused(std::function<void()> handler) {
    refused_ = std::move(handler);
}

void LeaveChecks::Forget() {
    current_ = nullptr;
    pending_ = nullptr;
}

wxWindow* LeaveChecks::FieldOf(wxWindow* control) const {
    for (wxWindow* window = control; window != nullptr && !window->IsTopLevel();
         window = window->GetParent()) {
        if (checks_.contains(window)) {
            return window;
        }
    }
    return nullptr;
}

bool LeaveChecks::IsAction(wxEventType type) const {
    return actions_.contains(type);
}

// On GTK an access key works its button, and a press the tree, while the focus stays where it is.
bool LeaveChecks::LeavesWithoutFocus(const wxEvent& event, wxWindow* control) const {
    const auto meaning = actions_.find(event.GetEventType());
    return current_ != nullptr && control != nullptr && meaning != actions_.end() &&
           meaning->second == Meaning::Leaving && FieldOf(control) != current_ &&
           wxGetTopLevelParent(control) == &window_;
}

int LeaveChecks::FilterEvent(wxEvent& event) {
    if (running_) {
        return Event_Skip;
    }
    auto* const control = dynamic_cast<wxWindow*>(event.GetEventObject());
    if (event.GetEventType() == wxEVT_SET_FOCUS) {
        if (control != nullptr && wxGetTopLevelParent(control) == &window_) {
            FocusMovedTo(control);
        }
        return Event_Skip;
    }
    if (pending_ == nullptr && LeavesWithoutFocus(event, control)) {
        pending_ = std::exchange(current_, nullptr);
        takeBack_ = [] {};
        if (!RunPending()) {
            refusedControl_ = control;
            return Event_Processed;
        }
        return Event_Skip;
    }
    if (pending_ != nullptr && IsAction(event.GetEventType()) &&
        (control == nullptr || wxGetTopLevelParent(control) == &window_)) {
        if (RunPending()) {
            return Event_Skip;
        }
        refusedControl_ = control;
        return Event_Processed;
    }
    return Event_Skip;
}

void LeaveChecks::FocusMovedTo(wxWindow* control) {
    wxWindow* const field = FieldOf(control);
    if (field == current_ || control == &window_) {
        return;
    }
    // The press that was refused may take the focus only now.
    if (current_ != nullptr && refusedControl_ != nullptr &&
        (control == refusedControl_ || refusedControl_->IsDescendant(control))) {
        window_.CallAfter([stay = current_] { stay->SetFocus(); });
        return;
    }
    if (current_ != nullptr && pending_ == nullptr) {
        pending_ = current_;
        takeBack_ = Snapshot(control);
        wxWakeUpIdle();
    }
    // Back in the field before its check has run: it was not left after all.
    if (field != nullptr && field == pending_) {
        pending_ = nullptr;
    }
    current_ = field;
}

bool LeaveChecks::RunPending() {
    wxWindow* const field = std::exchange(pending_, nullptr);
    if (field == nullptr) {
        return true;
    }
    running_ = true;
    const bool mayLeave = checks_.at(field)();
    if (!mayLeave) {
        takeBack_();
        field->SetFocus();
        current_ = field;
        if (refused_) {
            refused_();
        }
    }
    running_ = false;
    return mayLeave;
}

} // namespace editors
