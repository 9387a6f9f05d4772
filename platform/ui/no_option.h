// "None is selected" among option buttons.
#pragma once

#include <wx/string.h>

class wxRadioButton;
class wxWindow;

namespace platform::ui {

/// The button that stands for "none" and heads the group of those that follow it, hidden, where a
/// system keeps one button of a group selected at all times. Null where the buttons of a group may
/// all be off; the first of them heads the group then.
wxRadioButton* MakeNoOption(wxWindow* parent, const wxString& name);

} // namespace platform::ui
