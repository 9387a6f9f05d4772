// The option tree's native control on GTK: what a key or a click can do to its selection.
#include "platform/ui/native_tree.h"

#include "tests/support/window/window_test.h"

#include <gtk/gtk.h>
#include <wx/dataview.h>
#include <wx/frame.h>
#include <wx/sizer.h>
#include <wx/uiaction.h>

#include <memory>
#include <string>
#include <vector>

namespace window_test {
namespace {

class NativeTreeKeys : public testing::Test {
protected:
    NativeTreeKeys()
        : frame(new wxFrame(nullptr, wxID_ANY, "Tree", wxPoint(40, 40), wxSize(300, 300))),
          tree(std::make_unique<platform::ui::NativeTree>(frame, "tree", "Tree",
                                                          std::vector(2, Square()))) {
        tree->Control()->Bind(platform::ui::EVT_TREE_NODE_CLICK, [this](wxCommandEvent& event) {
            clicks.push_back(event.GetString().utf8_string());
        });
        auto* const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(tree->Control(), wxSizerFlags(1).Expand());
        frame->SetSizer(sizer);
        tree->SetNodes({{.key = "A", .text = "Apples", .parentKey = ""},
                        {.key = "B", .text = "Bread", .parentKey = "", .expanded = true},
                        {.key = "B1", .text = "Crumbs", .parentKey = "B"},
                        {.key = "D", .text = "Dough", .parentKey = ""}});
        tree->Select("B1");
        frame->Show();
        frame->Layout();
        FocusOn(tree->Control());
        Pump();
    }

    static wxBitmapBundle Square() {
        return wxBitmapBundle::FromSVG(
            "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\">"
            "<path d=\"M2 2h12v12H2z\"/></svg>",
            wxSize(16, 16));
    }

    ~NativeTreeKeys() override {
        tree.reset();
        frame->Destroy();
        Pump();
    }

    wxFrame* frame;
    std::unique_ptr<platform::ui::NativeTree> tree;
    std::vector<std::string> clicks;
};

TEST_F(NativeTreeKeys, NoneOfThemLeavesNothingSelected) {
    Press(WXK_SPACE, wxMOD_CONTROL);
    EXPECT_EQ(tree->SelectedKey(), "B1");
    Press(WXK_SPACE);
    EXPECT_EQ(tree->SelectedKey(), "B1");
    clicks.clear(); // choosing the selected node once more is a choice
    Type("x-d");
    Press(WXK_ESCAPE);
    Pump();
    EXPECT_EQ(tree->SelectedKey(), "B1");
    EXPECT_TRUE(HasFocus(tree->Control()));
    EXPECT_EQ(clicks, std::vector<std::string>{});
    // The keyboard has not gone astray: the next node is one key away.
    Press(WXK_DOWN);
    EXPECT_TRUE(WaitFor([this] { return tree->SelectedKey() == "D"; }, "the next node"));
    EXPECT_EQ(clicks, std::vector<std::string>{"D"});
}

TEST_F(NativeTreeKeys, AClickWithControlKeepsTheSelectedNode) {
    const wxRect node = tree->ScreenRect("B1");
    wxUIActionSimulator keyboard;
    keyboard.KeyDown(WXK_CONTROL);
    ClickAt(tree->Control(), {node.x + node.width / 2, node.y + node.height / 2});
    keyboard.KeyUp(WXK_CONTROL);
    Pump();
    EXPECT_EQ(tree->SelectedKey(), "B1");
}

TEST_F(NativeTreeKeys, GoOnFromTheNodeThatTheProgramSelected) {
    tree->Select("A");
    tree->Select("B");
    EXPECT_EQ(clicks, std::vector<std::string>{});
    Press(WXK_DOWN);
    EXPECT_TRUE(WaitFor([this] { return tree->SelectedKey() == "B1"; }, "the node below"));
    tree->Select("D");
    Press(WXK_UP);
    EXPECT_TRUE(WaitFor([this] { return tree->SelectedKey() == "B1"; }, "the node above"));
    EXPECT_EQ(clicks, (std::vector<std::string>{"B1", "B1"}));
}

TEST_F(NativeTreeKeys, ANodeThatAScreenReaderActivatesIsChosen) {
    auto* const view =
        GTK_TREE_VIEW(dynamic_cast<wxDataViewTreeCtrl*>(tree->Control())->GtkGetTreeView());
    GtkTreePath* const first = gtk_tree_path_new_first();
    gtk_tree_view_row_activated(view, first, gtk_tree_view_get_column(view, 0));
    EXPECT_EQ(clicks, std::vector<std::string>{}) << "within the screen reader's call";
    EXPECT_TRUE(WaitFor([this] { return tree->SelectedKey() == "A"; }, "the node"));
    EXPECT_EQ(clicks, std::vector<std::string>{"A"});
    gtk_tree_view_row_activated(view, first, gtk_tree_view_get_column(view, 0));
    Pump();
    EXPECT_EQ(clicks, std::vector<std::string>{"A"}) << "a double click has chosen it already";
    gtk_tree_path_free(first);
}

TEST_F(NativeTreeKeys, NewNodesAreSelectedByNobody) {
    tree->SetNodes({{.key = "N", .text = "New", .parentKey = ""},
                    {.key = "O", .text = "Other", .parentKey = ""}});
    EXPECT_EQ(tree->SelectedKey(), "");
    EXPECT_EQ(clicks, std::vector<std::string>{});
    tree->Select("O");
    EXPECT_EQ(tree->SelectedKey(), "O");
    EXPECT_EQ(clicks, std::vector<std::string>{});
}

} // namespace
} // namespace window_test
