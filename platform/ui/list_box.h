// A list box whose user is always heard.
#pragma once

#include <wx/listbox.h>

#include <functional>

namespace platform::ui {

/// One row at most is selected. wxEVT_LISTBOX tells of each row that the user selects, whatever the
/// program did to the rows and to the selection before, and of nothing else: a list that gets the
/// focus selects nothing by itself.
class ListBox : public wxListBox {
public:
    ListBox(wxWindow* parent, const wxSize& size);

    /// Puts `count` rows in the place of all there were.
    void Put(std::size_t count, const std::function<wxString(std::size_t row)>& text);

protected:
    void DoClear() override;
    void DoDeleteOneItem(unsigned int row) override;
    void DoSetSelection(int row, bool select) override;
    int DoInsertItems(const wxArrayStringsAdapter& items, unsigned int row, void** clientData,
                      wxClientDataType type) override;

private:
    void Follow(int row);
};

/// While it lives, a list loses and gets its rows unseen: what shows them, on the screen and to a
/// screen reader, learns of all of them at once at the end. For a list whose rows are all new,
/// since none is selected afterwards.
class RowsUnseen {
public:
    explicit RowsUnseen(wxListBox& list);
    ~RowsUnseen();
    RowsUnseen(const RowsUnseen&) = delete;
    RowsUnseen& operator=(const RowsUnseen&) = delete;

private:
    std::function<void()> end_;
};

/// Puts the place from which the keyboard moves on the row that is selected. Where none is, and the
/// list has no such place, it goes to `row` or the last one, and no row is selected.
void PlaceListCursor(wxListBox& list, int row);

} // namespace platform::ui
