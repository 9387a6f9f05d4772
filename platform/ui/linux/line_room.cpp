#include "platform/ui/line_room.h"

#include <wx/choice.h>

#include <algorithm>

namespace platform::ui {

// The toolkit takes twice for the text what a larger font needs once, so that its text boxes become
// lower where the letters become higher; and a drop-down list that shows nothing yet answers for
// an empty one.
void RoomForLine(wxWindow& field) {
    // Border and space above and below the text, which are the same in every size.
    const int around = dynamic_cast<wxChoice*>(&field) != nullptr ? 14 : 10;
    const int line = field.GetCharHeight() + field.FromDIP(around);
    field.SetMinSize(wxSize(field.GetMinSize().x, std::max(field.GetBestSize().y, line)));
}

} // namespace platform::ui
