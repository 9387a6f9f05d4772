#include "editors/queue_list.h"

#include "platform/ui/text_inset.h"

#include <algorithm>

#include <wx/dc.h>
#include <wx/textctrl.h>

namespace editors {

// The toolkit's own items begin at the edge of the list, whatever the field leaves free.
void QueueList::OnDrawItem(wxDC& dc, const wxRect& rect, int item, int flags) const {
    const wxTextCtrl* const field = GetTextCtrl();
    if ((flags & wxODCB_PAINTING_CONTROL) != 0 || field == nullptr) {
        wxOwnerDrawnComboBox::OnDrawItem(dc, rect, item, flags);
        return;
    }
    const int text = field->ClientToScreen(wxPoint()).x + platform::ui::TextInset(*field);
    const int list = GetVListBoxComboPopup()->ClientToScreen(wxPoint()).x;
    dc.DrawText(GetString(static_cast<unsigned>(item)), std::max(text - list, rect.x), rect.y);
}

} // namespace editors
