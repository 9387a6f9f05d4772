// What screen readers and test tools are told of a control on Linux.

#include "platform/ui/control_name.h"

#include "tests/support/window/window_test.h"

#include <gtk/gtk.h>
#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/odcombo.h>
#include <wx/textctrl.h>

namespace window_test {
namespace {

using platform::ui::NameControl;

struct Told {
    std::string id;
    std::string name;
    bool operator==(const Told&) const = default;
};

Told ToldOf(GtkWidget* widget) {
    AtkObject* const object = gtk_widget_get_accessible(widget);
    const char* const id = atk_object_get_accessible_id(object);
    const char* const name = atk_object_get_name(object);
    return {id == nullptr ? "" : id, name == nullptr ? "" : name};
}

GtkWidget* InnerOf(const wxWindow& control) {
    return gtk_bin_get_child(GTK_BIN(control.GetHandle()));
}

class Accessible : public testing::Test {
protected:
    HostFrame host;
    wxFrame* frame = &host.Frame();
};

TEST_F(Accessible, AnEntryHasIdAndLabelWithoutAccessKeyAndColon) {
    auto* const text = new wxTextCtrl(frame, wxID_ANY);
    NameControl(*text, "txtFromServer", "&From Print Server:");
    EXPECT_EQ(ToldOf(text->GetHandle()), (Told{"txtFromServer", "From Print Server"}));
}

TEST_F(Accessible, AControlWithATextOfItsOwnKeepsItAlsoWhenItChanges) {
    auto* const button = new wxButton(frame, wxID_ANY, "N&ew");
    NameControl(*button, "cmdNew");
    EXPECT_EQ(ToldOf(button->GetHandle()), (Told{"cmdNew", "New"}));
    button->SetLabel("&Other");
    EXPECT_EQ(ToldOf(button->GetHandle()), (Told{"cmdNew", "Other"}));
}

TEST_F(Accessible, AListIsNamedOnTheWidgetThatHoldsItsRows) {
    auto* const list = new wxListBox(frame, wxID_ANY);
    NameControl(*list, "lstServerPairs", "Server pairs");
    ASSERT_TRUE(GTK_IS_TREE_VIEW(InnerOf(*list)));
    EXPECT_EQ(ToldOf(InnerOf(*list)), (Told{"lstServerPairs", "Server pairs"}));
}

TEST_F(Accessible, ATextOfSeveralLinesIsNamedOnTheWidgetThatHoldsThem) {
    auto* const text =
        new wxTextCtrl(frame, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE);
    NameControl(*text, "txtFailureMessage", "Message");
    ASSERT_TRUE(GTK_IS_TEXT_VIEW(InnerOf(*text)));
    EXPECT_EQ(ToldOf(InnerOf(*text)), (Told{"txtFailureMessage", "Message"}));
}

TEST_F(Accessible, AComboBoxIsNamedTogetherWithItsEntry) {
    auto* const combo = new wxComboBox(frame, wxID_ANY);
    NameControl(*combo, "cboDomainName", "Domain:");
    EXPECT_EQ(ToldOf(combo->GetHandle()), (Told{"cboDomainName", "Domain"}));
    ASSERT_TRUE(GTK_IS_ENTRY(InnerOf(*combo)));
    EXPECT_EQ(ToldOf(InnerOf(*combo)), (Told{"cboDomainName", "Domain"}));
}

TEST_F(Accessible, ADrawnComboBoxIsNamedOnItsEntry) {
    auto* const combo = new wxOwnerDrawnComboBox(frame, wxID_ANY);
    NameControl(*combo, "cboADPrune", "Printers");
    EXPECT_EQ(ToldOf(combo->GetTextCtrl()->GetHandle()), (Told{"cboADPrune", "Printers"}));
}

} // namespace
} // namespace window_test
