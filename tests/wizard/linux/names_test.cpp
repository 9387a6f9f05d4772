// The names by which a screen reader or a test tool finds the window and all
// its controls.
#include "tests/wizard/wizard_test.h"

#include <gtk/gtk.h>

namespace window_test {
namespace {

// Where a list scrolls, what the user works is inside.
GtkWidget* Operated(GtkWidget* widget) {
    if (GTK_IS_SCROLLED_WINDOW(widget) && gtk_bin_get_child(GTK_BIN(widget)) != nullptr) {
        return gtk_bin_get_child(GTK_BIN(widget));
    }
    return widget;
}

std::string IdOf(const wxWindow* control) {
    const char* const id =
        atk_object_get_accessible_id(gtk_widget_get_accessible(Operated(control->GetHandle())));
    return id == nullptr ? "" : id;
}

std::string SpokenNameOf(const wxWindow* control) {
    const char* const name =
        atk_object_get_name(gtk_widget_get_accessible(Operated(control->GetHandle())));
    return name == nullptr ? "" : name;
}

class AccessibleNames : public WizardTest {};

TEST_F(AccessibleNames, AreThoseOfTheControls) {
    Start(kActiveDirectory);
    EXPECT_EQ(IdOf(window), "frmWizard");
    EXPECT_EQ(IdOf(window->sstWizard), "sstWizard");
    EXPECT_EQ(IdOf(window->tvwWizardOptions->Control()), "tvwWizardOptions");
    for (const editors::Page* page : window->pages) {
        for (const wxWindow* control : page->GetChildren()) {
            const std::string name = control->GetName().utf8_string();
            // Nobody sees the button that stands for "none is selected", and a line
            // says nothing.
            if (!name.ends_with("(none)")) {
                EXPECT_EQ(IdOf(control), name);
                EXPECT_NE(SpokenNameOf(control).empty(), !name.starts_with("fraSeperator")) << name;
            }
        }
    }
}

} // namespace
} // namespace window_test
