// Checks that run when the user leaves a field.
//
// Leaving means that the focus goes to another control of the same window by Tab, mouse or access
// key; not to another program, to a menu or to a message box, nor because the program switched the
// page or the window closes. A check that refuses keeps the focus in the field and swallows the
// click or key that took it away.
//
// The focus moves inside the toolkit's own handling of a press, where no message box may run; so a
// check waits until that is over and the button is up again, or until the control that got the
// focus reports what the user did to it, whichever comes first.
#pragma once

#include <wx/eventfilter.h>
#include <wx/window.h>

#include <functional>
#include <map>

namespace editors {

class LeaveChecks : private wxEventFilter {
public:
    /// Watches the controls of this top-level window, which outlives the checks.
    explicit LeaveChecks(wxWindow& window);
    ~LeaveChecks() override;
    LeaveChecks(const LeaveChecks&) = delete;
    LeaveChecks& operator=(const LeaveChecks&) = delete;

    /// `mayLeave` answers false to keep the focus in `field`. Fields live as long as the checks.
    void Add(wxWindow& field, std::function<bool()> mayLeave);

    /// Events of this type are raised by users alone: one that comes from another control means
    /// that the field is being left, and is held back until the check has run.
    void AddAction(wxEventType type);

    /// Runs after a check has refused, to take back what the action changed.
    void OnRefused(std::function<void()> handler);

    /// The program itself takes the focus away: whatever field has it is not being left.
    void Forget();

private:
    /// Actions are held back while a check is pending; some of them are a leaving by themselves.
    enum class Meaning { Action, Leaving };

    int FilterEvent(wxEvent& event) override;
    void FocusMovedTo(wxWindow* control);
    [[nodiscard]] wxWindow* FieldOf(wxWindow* control) const;
    [[nodiscard]] bool IsAction(wxEventType type) const;
    [[nodiscard]] bool LeavesWithoutFocus(const wxEvent& event, wxWindow* control) const;
    bool RunPending();

    wxWindow& window_;
    std::map<wxWindow*, std::function<bool()>> checks_;
    std::map<wxEventType, Meaning> actions_;
    std::function<void()> refused_;
    wxWindow* current_ = nullptr;        // the checked field that has the focus
    wxWindow* pending_ = nullptr;        // the field that was left and not checked yet
    wxWindow* refusedControl_ = nullptr; // what was worked in vain without having the focus yet
    std::function<void()> takeBack_;     // restores the control that the focus went to
    bool running_ = false;
};

} // namespace editors
