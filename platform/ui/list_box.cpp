#include "platform/ui/list_box.h"

#include <optional>
#include <vector>

namespace platform::ui {

ListBox::ListBox(wxWindow* parent, const wxSize& size)
    : wxListBox(parent, wxID_ANY, wxDefaultPosition, size, 0, nullptr,
                wxLB_SINGLE | wxLB_HSCROLL | wxLB_NEEDED_SB) {}

void ListBox::Put(std::size_t count, const std::function<wxString(std::size_t row)>& text) {
    {
        const RowsUnseen unseen(*this);
        wxListBox::DoClear();
        // In pieces: texts that all wait to become rows cost more than the rows.
        constexpr std::size_t kPiece = 256;
        std::vector<wxString> piece;
        for (std::size_t row = 0; row < count; ++row) {
            piece.push_back(text(row));
            if (piece.size() == kPiece || row + 1 == count) {
                wxListBox::DoInsertItems(wxArrayStringsAdapter(piece), GetCount(), nullptr,
                                         wxClientData_None);
                piece.clear();
            }
        }
    }
    Follow(0);
}

void ListBox::DoClear() {
    {
        const RowsUnseen unseen(*this);
        wxListBox::DoClear();
    }
    Follow(0);
}

void ListBox::DoDeleteOneItem(unsigned int row) {
    wxListBox::DoDeleteOneItem(row);
    Follow(static_cast<int>(row));
}

void ListBox::DoSetSelection(int row, bool select) {
    wxListBox::DoSetSelection(row, select);
    Follow(row);
}

int ListBox::DoInsertItems(const wxArrayStringsAdapter& items, unsigned int row, void** clientData,
                           wxClientDataType type) {
    std::optional<RowsUnseen> unseen;
    if (IsEmpty()) {
        unseen.emplace(*this);
    }
    const int last = wxListBox::DoInsertItems(items, row, clientData, type);
    unseen.reset();
    Follow(0);
    return last;
}

RowsUnseen::~RowsUnseen() {
    end_();
}

// The toolkit keeps silent about the row that it told of last. Once the program has moved the
// selection, or put other texts into the rows, a choice of that row is news.
void ListBox::Follow(int row) {
    PlaceListCursor(*this, row);
    DoChangeSingleSelection(GetSelection());
}

} // namespace platform::ui
