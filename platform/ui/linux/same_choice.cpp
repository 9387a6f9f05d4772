#include "platform/ui/same_choice.h"

#include <gtk/gtk.h>
#include <wx/choice.h>
#include <wx/combobox.h>

#include <memory>
#include <utility>

namespace platform::ui {

namespace {

struct Choosing {
    wxChoice& choice;
    wxEventType told;
    int before = wxNOT_FOUND; // what was selected when the menu opened
};

void OnPopup(GtkComboBox* combo, GParamSpec* /*property*/, Choosing* choosing) {
    gboolean shown = FALSE;
    g_object_get(combo, "popup-shown", &shown, nullptr);
    if (shown != FALSE) {
        choosing->before = gtk_combo_box_get_active(combo);
    }
}

// Runs after the drop-down itself has selected the item, and told of it if it was another one.
void OnItem(GtkWidget* /*menu*/, const char* /*path*/, Choosing* choosing) {
    wxChoice& choice = choosing->choice;
    const int selected = choice.GetSelection();
    if (std::exchange(choosing->before, wxNOT_FOUND) == selected && selected != wxNOT_FOUND) {
        wxCommandEvent event(choosing->told, choice.GetId());
        event.SetEventObject(&choice);
        event.SetInt(selected);
        event.SetString(choice.GetStringSelection());
        choice.HandleWindowEvent(event);
    }
}

// The free text is no list of its own: both drop-downs are the same widget.
void Watch(wxChoice& choice, wxEventType told) {
    auto* const combo = GTK_COMBO_BOX(choice.GetHandle());
    AtkObject* const popup = gtk_combo_box_get_popup_accessible(combo);
    GtkWidget* const menu =
        GTK_IS_ACCESSIBLE(popup) ? gtk_accessible_get_widget(GTK_ACCESSIBLE(popup)) : nullptr;
    // A theme may have the items in a list instead, which has no such signal.
    if (menu == nullptr || g_signal_lookup("menu-activate", G_OBJECT_TYPE(menu)) == 0) {
        return;
    }
    auto choosing = std::make_unique<Choosing>(Choosing{choice, told});
    g_signal_connect(combo, "notify::popup-shown", G_CALLBACK(OnPopup), choosing.get());
    g_signal_connect(menu, "menu-activate", G_CALLBACK(OnItem), choosing.get());
    g_object_set_data_full(G_OBJECT(combo), "every-choice", choosing.release(),
                           [](gpointer held) { delete static_cast<Choosing*>(held); });
}

} // namespace

void TellEveryChoice(wxChoice& choice) {
    Watch(choice, wxEVT_CHOICE);
}

void TellEveryChoice(wxComboBox& combo) {
    Watch(combo, wxEVT_COMBOBOX);
}

} // namespace platform::ui
