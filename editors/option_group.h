// A group of option buttons in which "none is selected" is a real state.
//
// A document with an out-of-range choice shows none; see platform/ui/no_option.h.
#pragma once

#include "editors/paragraph.h"

#include <functional>
#include <string>
#include <vector>

namespace editors {

class OptionGroup {
public:
    /// Creates the buttons as children of `parent`, named `name`(0), `name`(1), ...; none selected.
    /// The caller lays them out.
    OptionGroup(wxWindow* parent, const wxString& name, const std::vector<wxString>& captions);

    [[nodiscard]] WrappingOption* operator[](int index) const;
    [[nodiscard]] int Count() const;

    /// The selected button's index, or -1.
    [[nodiscard]] int Selected() const;

    /// Selects a button as the user would: the click handler runs when another one was selected.
    /// An index outside the group selects none and runs nothing.
    void Choose(int index);

    /// Enables or disables all buttons.
    void Enable(bool enable);

    /// Puts the whole group behind the controls that its parent has so far.
    void MoveLastInTabOrder();

    void OnClick(std::function<void(int index)> handler);

private:
    void SelectNone();

    wxRadioButton* none_; // null where the system needs no such button
    std::vector<WrappingOption*> buttons_;
    std::function<void(int)> handler_;
};

} // namespace editors
