// The drop-down of published queues.
#pragma once

#include <wx/odcombo.h>

namespace editors {

/// A field with a list of any number of items, which stand below the text of the field.
class QueueList : public wxOwnerDrawnComboBox {
public:
    explicit QueueList(wxWindow* parent) : wxOwnerDrawnComboBox(parent, wxID_ANY) {}

protected:
    void OnDrawItem(wxDC& dc, const wxRect& rect, int item, int flags) const override;
};

} // namespace editors
