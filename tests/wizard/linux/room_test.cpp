// Whether every control has the room that it needs, also in a larger font.
#include "tests/wizard/wizard_test.h"

#include <gtk/gtk.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combo.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <map>

namespace window_test {
namespace {

// The desktop's text, so much larger, for as long as it lives.
class LargerText {
public:
    explicit LargerText(double factor) : settings_(gtk_settings_get_default()) {
        g_object_get(settings_, "gtk-xft-dpi", &before_, nullptr);
        constexpr int kUsual = 96 * 1024;
        const int usual = before_ > 0 ? before_ : kUsual;
        g_object_set(settings_, "gtk-xft-dpi", static_cast<int>(usual * factor), nullptr);
        Pump();
    }
    ~LargerText() {
        g_object_set(settings_, "gtk-xft-dpi", before_, nullptr);
        Pump();
    }
    LargerText(const LargerText&) = delete;
    LargerText& operator=(const LargerText&) = delete;

private:
    GtkSettings* settings_;
    int before_ = 0;
};

int HeightOf(const wxWindow& control) {
    int least = 0;
    gtk_widget_get_preferred_height(control.GetHandle(), &least, nullptr);
    return least;
}

// The height of a field's letters and of its border.
int LeastOfField(const wxWindow& control) {
    constexpr int kBorder = 4;
    const bool field = dynamic_cast<const wxTextCtrl*>(&control) != nullptr ||
                       dynamic_cast<const wxComboCtrl*>(&control) != nullptr ||
                       dynamic_cast<const wxComboBox*>(&control) != nullptr;
    return field ? control.GetCharHeight() + 2 * kBorder : 0;
}

class Room : public WizardTest {
protected:
    // What the least window leaves of a control: all of its words, and all of it on the page.
    static void ExpectRoom(wxWindow& control, const wxSize& page) {
        const wxRect place = control.GetRect();
        EXPECT_GE(place.x, 0) << control.GetName();
        EXPECT_GE(place.y, 0) << control.GetName();
        EXPECT_LE(place.GetRight(), page.x - 1) << control.GetName();
        EXPECT_LE(place.GetBottom(), page.y - 1) << control.GetName();
        const bool words = dynamic_cast<wxStaticText*>(&control) != nullptr ||
                           dynamic_cast<wxButton*>(&control) != nullptr ||
                           dynamic_cast<wxCheckBox*>(&control) != nullptr ||
                           dynamic_cast<wxChoice*>(&control) != nullptr;
        const bool wraps = dynamic_cast<editors::Paragraph*>(&control) != nullptr;
        int least = 0;
        int natural = 0;
        gtk_widget_get_preferred_width(control.GetHandle(), &least, &natural);
        EXPECT_GE(place.width, words && !wraps ? natural : 20) << control.GetName();
        if (words) {
            EXPECT_GE(place.height, HeightOf(control)) << control.GetName();
        }
        if (dynamic_cast<editors::LinkParagraph*>(&control) != nullptr) {
            EXPECT_GE(place.height, control.GetBestSize().y) << control.GetName();
        }
        // The toolkit has made its text boxes lower than the system's: their letters must fit.
        EXPECT_GE(place.height, LeastOfField(control)) << control.GetName();
    }

    // No two controls of a page stand on one another.
    static void ExpectApart(const std::vector<wxWindow*>& controls) {
        for (const wxWindow* one : controls) {
            for (const wxWindow* other : controls) {
                EXPECT_TRUE(one == other || !one->GetRect().Intersects(other->GetRect()))
                    << one->GetName() << " and " << other->GetName();
            }
        }
    }

    void ExpectRoomOnAllPages() {
        for (int position = 0; position < modWizard::kPageCount; ++position) {
            GoTo(position);
            const editors::Page* const page = window->pages.at(static_cast<std::size_t>(position));
            SCOPED_TRACE("page " + std::to_string(position));
            // The system hands out the places some time after the page is shown, all in one go.
            WaitFor([page] { return page->lblGeneral->GetSize().y >= HeightOf(*page->lblGeneral); },
                    "the page to be laid out");
            std::vector<wxWindow*> shown;
            for (wxWindow* control : page->GetChildren()) {
                if (control->IsShown()) {
                    ExpectRoom(*control, page->GetClientSize());
                    shown.push_back(control);
                }
            }
            EXPECT_GE(shown.size(), 5U);
            ExpectApart(shown);
        }
    }

    void ExpectRoomIn(DocumentType type) {
        Start(type);
        ASSERT_TRUE(window != nullptr);
        Show();
        window->SetSize(window->GetMinSize());
        const wxSize least = window->GetMinSize();
        WaitFor([&] { return window->GetSize() == least; }, "the least size");
        EXPECT_LE(least.x, 1024);
        EXPECT_LE(least.y, 768);
        ExpectRoomOnAllPages();
    }

    // What the list of a page, if there is one, gets of the room that the window grows by; all else
    // keeps its height and stands apart.
    void ExpectGrowth(int position, int growth) {
        SCOPED_TRACE("page " + std::to_string(position));
        GoTo(position);
        const editors::Page* const page = window->pages.at(static_cast<std::size_t>(position));
        const wxSize least = window->GetMinSize();
        const auto resize = [this, page](const wxSize& size) {
            const int wanted = page->GetSize().y + size.y - window->GetSize().y;
            window->SetSize(size);
            WaitFor([&] { return window->GetSize() == size && page->GetSize().y == wanted; },
                    "the page to have its new size");
        };
        WaitFor([page] { return page->lblGeneral->GetSize().y >= HeightOf(*page->lblGeneral); },
                "the page to be laid out");
        resize(least);
        std::map<const wxWindow*, int> before;
        for (const wxWindow* control : page->GetChildren()) {
            before[control] = control->GetSize().y;
        }
        resize({least.x, least.y + growth});
        std::vector<wxWindow*> shown;
        for (wxWindow* control : page->GetChildren()) {
            const int grown = control->GetSize().y - before[control];
            const bool list = dynamic_cast<const wxListBox*>(control) != nullptr;
            EXPECT_EQ(grown, list ? growth : 0) << control->GetName();
            lists += list ? 1 : 0;
            if (control->IsShown()) {
                ExpectRoom(*control, page->GetClientSize());
                shown.push_back(control);
            }
        }
        ExpectApart(shown);
        resize(least);
    }

    void ExpectGrowthOnAllPages(DocumentType type) {
        Start(type);
        Show();
        for (int position = 0; position < modWizard::kPageCount; ++position) {
            ExpectGrowth(position, 150);
        }
        EXPECT_EQ(lists, 7);
    }

    int lists = 0;

    // The rows of the option tree without scrolling to the side.
    void ExpectWholeTree() {
        auto* const view =
            gtk_bin_get_child(GTK_BIN(window->tvwWizardOptions->Control()->GetHandle()));
        GtkTreeViewColumn* const column = gtk_tree_view_get_column(GTK_TREE_VIEW(view), 0);
        int least = 0;
        gtk_widget_get_preferred_width(view, nullptr, &least);
        gtk_tree_view_column_get_width(column);
        EXPECT_GE(gtk_widget_get_allocated_width(gtk_widget_get_parent(view)), least);
    }
};

TEST_F(Room, IsThereInTheLeastWindow) {
    ExpectRoomIn(kActiveDirectory);
    ExpectWholeTree();
}

TEST_F(Room, IsThereInTheLeastWindowOfAManualDocument) {
    ExpectRoomIn(kManual);
    ExpectWholeTree();
}

TEST_F(Room, ThatAWindowGrowsByGoesToTheLists) {
    ExpectGrowthOnAllPages(kActiveDirectory);
}

TEST_F(Room, ThatAWindowGrowsByGoesToTheListsOfAManualDocument) {
    ExpectGrowthOnAllPages(kManual);
}

TEST_F(Room, IsThereInAFontThatIsThirtyPercentLarger) {
    const LargerText larger(1.3);
    ExpectRoomIn(kManual);
    ExpectWholeTree();
}

TEST_F(Room, IsThereInAFontThatIsThirtyPercentLargerForADirectory) {
    const LargerText larger(1.3);
    ExpectRoomIn(kActiveDirectory);
    ExpectWholeTree();
}

} // namespace
} // namespace window_test
