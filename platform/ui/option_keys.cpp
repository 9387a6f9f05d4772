#include "platform/ui/option_keys.h"

#include <wx/event.h>
#include <wx/radiobut.h>

#include <cstddef>

namespace platform::ui {

namespace {

// 0 for a key that is none of these.
int StepOf(const wxKeyEvent& event) {
    if (event.HasAnyModifiers()) {
        return 0;
    }
    switch (event.GetKeyCode()) {
    case WXK_DOWN:
    case WXK_RIGHT:
        return 1;
    case WXK_UP:
    case WXK_LEFT:
        return -1;
    default:
        return 0;
    }
}

void Select(wxRadioButton& button) {
    button.SetFocus();
    if (!button.GetValue()) {
        button.SetValue(true);
        wxCommandEvent event(wxEVT_RADIOBUTTON, button.GetId());
        event.SetEventObject(&button);
        event.SetInt(1);
        button.ProcessWindowEvent(event);
    }
}

} // namespace

void SelectByArrowKeys(const std::vector<wxRadioButton*>& buttons) {
    const std::size_t count = buttons.size();
    for (std::size_t i = 0; i < count; ++i) {
        wxRadioButton* const after = buttons[(i + 1) % count];
        wxRadioButton* const before = buttons[(i + count - 1) % count];
        buttons[i]->Bind(wxEVT_CHAR_HOOK, [after, before](wxKeyEvent& event) {
            if (const int step = StepOf(event); step != 0) {
                Select(step > 0 ? *after : *before);
            } else {
                event.Skip();
            }
        });
    }
}

} // namespace platform::ui
