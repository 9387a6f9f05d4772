// What a user does to the controls of a window, each found by its name.
//
// These raise the events of the action without the mouse or the keyboard, which makes them quick
// enough for tables of cases; tests of the interaction itself use real input instead.
#pragma once

#include <wx/checkbox.h>
#include <wx/listbox.h>
#include <wx/window.h>

#include <string>
#include <vector>

namespace window_test {

using Texts = std::vector<std::string>;

/// Presses a button.
void Push(wxWindow* root, const std::string& name);

/// Types a text in place of what a text box or a drop-down with free text holds.
void Enter(wxWindow* root, const std::string& name, const std::string& text);

/// Clicks a check box that is in the other state.
void Tick(wxWindow* root, const std::string& name, bool on = true);

/// Chooses an option button.
void Pick(wxWindow* root, const std::string& name);

/// Chooses an item of a drop-down list by its place.
void Choose(wxWindow* root, const std::string& name, int index);

/// Clicks a row of a list box.
void ClickRow(wxWindow* root, const std::string& name, int row);

/// A point on a row of a list box that is on the screen, for real clicks.
wxPoint RowPoint(const wxListBox& list, int row);

/// Puts texts there by program, without any event.
void PutItems(wxWindow* root, const std::string& name, const Texts& items);
void PutText(wxWindow* root, const std::string& name, const std::string& text);
void SelectRow(wxWindow* root, const std::string& name, int row);

std::string TextIn(wxWindow* root, const std::string& name);
Texts ItemsIn(wxWindow* root, const std::string& name);
int RowIn(wxWindow* root, const std::string& name);
bool IsTicked(wxWindow* root, const std::string& name);
bool IsPicked(wxWindow* root, const std::string& name);
bool IsEnabled(wxWindow* root, const std::string& name);
/// Colours as "#RRGGBB".
std::string ColourText(const wxColour& colour);
std::string ColourOf(wxWindow* root, const std::string& name);

} // namespace window_test
