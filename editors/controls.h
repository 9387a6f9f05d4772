// What pages do with their controls, each with the events that it means to raise and no others.
//
// Two setters, used knowingly: a Put... sets a value as page code does and runs no handler; a
// Choose... or Enter... does what the user's own action would and runs the control's handler.
#pragma once

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combo.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/odcombo.h>
#include <wx/textctrl.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace editors {

/// The texts as the record holds them.
std::string TextOf(const wxTextEntry& entry);

/// Of several lines the first, as when they are pasted: a folder or a published queue may be named
/// with a line break, and what fields hold becomes lines of files.
void PutText(wxTextEntry& entry, const std::string& text);
/// Also runs the change handler, whether or not the text is another one.
void EnterText(wxTextCtrl& box, const std::string& text);
void EnterText(wxComboBox& box, const std::string& text);

/// Runs the click handler when the box's state changes.
void ChooseChecked(wxCheckBox& box, bool checked);
/// Selects an item and runs the click handler when another one was selected.
void ChooseItem(wxChoice& choice, int index);

std::vector<std::string> ItemsOf(const wxItemContainerImmutable& items);
void PutItems(wxItemContainer& container, const std::vector<std::string>& items);

/// The text of the selected item, or "" when none is selected.
std::string SelectedText(const wxItemContainerImmutable& items);

/// Gives the controls the background of an entry field that is on, or of one that is off.
void ColourForState(std::initializer_list<wxWindow*> controls, bool on);
void EnableAll(std::initializer_list<wxWindow*> controls, bool on);

/// Enables or disables a control and gives it this background.
void EnableWithColour(wxWindow& control, bool enable, const wxColour& background);

/// The colours of an entry field that is on, and of one that is off.
wxColour WindowColour();
wxColour FaceColour();

/// Runs `handler` when the user clicks a row or moves the selection by keyboard. A click on the row
/// that is selected already counts too, which the toolkit by itself does not tell.
void BindListClick(wxListBox& list, std::function<void()> handler);

/// Runs `handler` for a control's one event: a click of a button, check box or item of a choice, a
/// change of a text box by the user.
template <class Handler> void OnClick(wxButton* button, Handler handler) {
    button->Bind(wxEVT_BUTTON, [handler](wxCommandEvent&) { handler(); });
}
template <class Handler> void OnClick(wxCheckBox* box, Handler handler) {
    box->Bind(wxEVT_CHECKBOX, [handler](wxCommandEvent&) { handler(); });
}
template <class Handler> void OnClick(wxChoice* choice, Handler handler) {
    choice->Bind(wxEVT_CHOICE, [handler](wxCommandEvent&) { handler(); });
}
template <class Handler> void OnChange(wxTextCtrl* box, Handler handler) {
    box->Bind(wxEVT_TEXT, [handler](wxCommandEvent&) { handler(); });
}

/// The document has edits that no save has stored.
void MarkChanged();

} // namespace editors
