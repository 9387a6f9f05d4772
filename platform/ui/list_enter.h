// Enter in a list box.
#pragma once

#include <functional>

class wxListBox;

namespace platform::ui {

/// Runs `handler` when Enter is pressed in the list, and keeps the key from the dialog's default
/// button, which the toolkit on GTK would work as well.
void OnListEnter(wxListBox& list, std::function<void()> handler);

} // namespace platform::ui
