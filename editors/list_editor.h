// The one mechanism behind New, Save, Delete and the list of every list page.
//
// A page is in one of two states, held in its adding flag: editing the selected item, or adding a
// new one, which the next Save appends. New and a confirmed Delete lead to adding; a Save that
// appends and a click on the list lead to editing.
#pragma once

#include "platform/message.h"

#include <wx/listbox.h>
#include <wx/textctrl.h>

#include <functional>
#include <string>
#include <vector>

namespace editors {

/// What differs from page to page.
struct ListEditorTexts {
    platform::Message required; ///< the box for a missing name
    std::string deleteQuestion; ///< asked under "Delete?"
};

class ListEditor {
public:
    using Pieces = std::vector<std::string>;

    /// The page owns the controls and the flag, and keeps them as long as this object.
    ListEditor(wxListBox& list, std::vector<wxTextCtrl*> boxes, bool& adding,
               ListEditorTexts texts);

    /// How the boxes' texts become an item, and an item the boxes' texts again.
    std::function<std::string(const Pieces&)> format;
    std::function<Pieces(const std::string&)> split;
    /// Runs after Delete has emptied the boxes.
    std::function<void()> emptied;

    void New();
    void Save();
    void Delete();

    /// The pieces of the selected item, or nothing when the list is empty or none is selected.
    [[nodiscard]] bool SelectedPieces(Pieces& pieces) const;
    /// Fills the boxes from the selected item and enters the editing state.
    void Click();

    void EmptyBoxes();
    void PutBoxes(const Pieces& pieces);

private:
    [[nodiscard]] Pieces BoxTexts() const;
    void Append(const std::string& item);

    wxListBox& list_;
    std::vector<wxTextCtrl*> boxes_;
    bool& adding_;
    ListEditorTexts texts_;
};

} // namespace editors
