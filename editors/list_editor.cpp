#include "editors/list_editor.h"

#include "document/item_text.h"
#include "editors/controls.h"
#include "platform/ui/text.h"

#include <algorithm>
#include <utility>

namespace editors {

using platform::ui::ToWx;

ListEditor::ListEditor(wxListBox& list, std::vector<wxTextCtrl*> boxes, bool& adding,
                       ListEditorTexts texts)
    : list_(list), boxes_(std::move(boxes)), adding_(adding), texts_(std::move(texts)) {}

ListEditor::Pieces ListEditor::BoxTexts() const {
    Pieces texts;
    for (const wxTextCtrl* box : boxes_) {
        texts.push_back(TextOf(*box));
    }
    return texts;
}

void ListEditor::EmptyBoxes() {
    PutBoxes({});
}

void ListEditor::PutBoxes(const Pieces& pieces) {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        PutText(*boxes_[i], modINIDocument::Piece(pieces, i));
    }
}

void ListEditor::New() {
    adding_ = true;
    EmptyBoxes();
}

void ListEditor::Append(const std::string& item) {
    list_.Append(ToWx(item));
    list_.SetSelection(static_cast<int>(list_.GetCount()) - 1);
    adding_ = false;
}

void ListEditor::Save() {
    const Pieces texts = BoxTexts();
    if (std::ranges::any_of(texts, [](const std::string& text) { return text.empty(); })) {
        platform::ShowMessage(texts_.required);
        return;
    }
    const int selected = list_.GetSelection();
    if (adding_) {
        Append(format(texts));
    } else if (selected != wxNOT_FOUND) {
        list_.SetString(static_cast<unsigned>(selected), ToWx(format(texts)));
        list_.SetSelection(selected);
    } else if (!list_.IsEmpty()) {
        platform::Message message = texts_.required;
        message.text = "Please select the entry to change, or press New.";
        platform::ShowMessage(message);
        return;
    }
    // An empty list counts as changed as well, although nothing in it was.
    MarkChanged();
}

void ListEditor::Delete() {
    if (adding_) {
        EmptyBoxes();
        if (emptied) {
            emptied();
        }
        return;
    }
    if (list_.IsEmpty()) {
        return;
    }
    const platform::Answer answer = platform::ShowMessage(
        {texts_.deleteQuestion, "Delete?", platform::Buttons::YesNo, platform::Icon::Question});
    const int selected = list_.GetSelection();
    if (answer != platform::Answer::Yes || selected == wxNOT_FOUND) {
        return;
    }
    list_.Delete(static_cast<unsigned>(selected));
    EmptyBoxes();
    if (emptied) {
        emptied();
    }
    adding_ = true;
    MarkChanged();
}

bool ListEditor::SelectedPieces(Pieces& pieces) const {
    if (list_.GetSelection() == wxNOT_FOUND) {
        return false;
    }
    pieces = split(SelectedText(list_));
    return true;
}

void ListEditor::Click() {
    Pieces pieces;
    if (SelectedPieces(pieces)) {
        PutBoxes(pieces);
        adding_ = false;
    }
}

} // namespace editors
