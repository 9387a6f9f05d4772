// What screen readers and test tools are told of a control on Linux.

#include "platform/ui/command_name.h"
#include "platform/ui/control_name.h"

#include "tests/support/window/window_test.h"

#include <gtk/gtk.h>
#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/dialog.h>
#include <wx/html/htmlwin.h>
#include <wx/listbox.h>
#include <wx/menu.h>
#include <wx/odcombo.h>
#include <wx/textctrl.h>
#include <wx/toolbar.h>
#include <wx/treectrl.h>

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

AtkRole RoleOf(GtkWidget* widget) {
    return atk_object_get_role(gtk_widget_get_accessible(widget));
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
    EXPECT_EQ(RoleOf(combo->GetHandle()), ATK_ROLE_COMBO_BOX);
}

TEST_F(Accessible, ADialogIsADialogAndSaysItsTitle) {
    wxDialog dialog(frame, wxID_ANY, "About it");
    NameControl(dialog, "frmAbout");
    EXPECT_EQ(ToldOf(dialog.GetHandle()).id, "frmAbout");
    EXPECT_EQ(RoleOf(dialog.GetHandle()), ATK_ROLE_DIALOG);
}

TEST_F(Accessible, WhatTheToolkitDrawsByItselfIsMoreThanAPanel) {
    auto* const tree = new wxTreeCtrl(frame, wxID_ANY);
    NameControl(*tree, "tvwHelpContents", "Contents");
    EXPECT_EQ(RoleOf(InnerOf(*tree)), ATK_ROLE_TREE);
    auto* const page = new wxHtmlWindow(frame, wxID_ANY);
    NameControl(*page, "htmHelpTopic", "Words");
    EXPECT_EQ(ToldOf(InnerOf(*page)), (Told{"htmHelpTopic", "Words"}));
    EXPECT_EQ(RoleOf(InnerOf(*page)), ATK_ROLE_DOCUMENT_TEXT);
}

TEST_F(Accessible, TheCommandBarHasTheNamesOfItsTools) {
    auto* const bar = new wxMenuBar;
    auto* const menu = new wxMenu;
    wxMenuItem* const entry = menu->Append(wxID_ANY, "&New\tCtrl+N");
    bar->Append(menu, "&File");
    platform::ui::NameMenuEntry(*entry, "ID_BTN_NEW");
    platform::ui::NameMenuBar(*bar, "Commands", {"ID_MNU_FILE"});
    frame->SetMenuBar(bar);
    EXPECT_EQ(ToldOf(entry->GetMenuItem()), (Told{"ID_BTN_NEW", "New"}));
    EXPECT_EQ(ToldOf(menu->m_owner), (Told{"ID_MNU_FILE", "File"}));
    EXPECT_EQ(ToldOf(gtk_widget_get_parent(menu->m_owner)), (Told{"Commands", "Menu"}));

    wxToolBar* const tools = frame->CreateToolBar();
    tools->AddSeparator();
    tools->AddTool(wxID_ANY, "", wxArtProvider::GetBitmapBundle(wxART_GO_BACK), "Go back");
    tools->Realize();
    platform::ui::NameToolBar(*tools, "Tools", {"", "cmdHelpBack"});
    EXPECT_EQ(ToldOf(GTK_WIDGET(tools->GTKGetToolbar())), (Told{"Tools", "Toolbar"}));
    GtkToolItem* const item = gtk_toolbar_get_nth_item(tools->GTKGetToolbar(), 1);
    EXPECT_EQ(ToldOf(gtk_bin_get_child(GTK_BIN(item))), (Told{"cmdHelpBack", "Go back"}));
}

} // namespace
} // namespace window_test
