// The way of the Tab key: every control of a page and of a dialog, in the order of the eye.
#include "files/about.h"
#include "files/new_ini.h"
#include "platform/ui/linux/network_folder_dialog.h"
#include "tests/support/window/window_test.h"
#include "tests/wizard/wizard_test.h"

#include <gtk/gtk.h>
#include <wx/button.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include <algorithm>
#include <functional>

namespace window_test {
namespace {

// What stops the Tab key: neither words nor lines, of a group of options the one that is selected.
bool IsStop(const wxWindow& control) {
    const auto* const option = dynamic_cast<const wxRadioButton*>(&control);
    return control.IsShown() && control.IsEnabled() &&
           dynamic_cast<const wxStaticText*>(&control) == nullptr &&
           dynamic_cast<const wxStaticLine*>(&control) == nullptr &&
           (option == nullptr || option->GetValue()) && !control.GetName().ends_with("(none)");
}

// Top to bottom, in a row from left to right. A row holds what stands beside its first control.
Texts InReadingOrder(std::vector<wxWindow*> controls) {
    std::ranges::sort(controls, {}, [](const wxWindow* one) { return one->GetRect().y; });
    Texts names;
    while (!controls.empty()) {
        const wxRect first = controls.front()->GetRect();
        const auto rest = std::ranges::find_if(controls, [first](const wxWindow* one) {
            return one->GetRect().y + one->GetRect().height / 2 > first.GetBottom();
        });
        std::sort(controls.begin(), rest, [](const wxWindow* one, const wxWindow* other) {
            return one->GetRect().x < other->GetRect().x;
        });
        std::for_each(controls.begin(), rest, [&names](const wxWindow* one) {
            names.push_back(one->GetName().utf8_string());
        });
        controls.erase(controls.begin(), rest);
    }
    return names;
}

// What the system says that the keys go to. The toolkit does not know it inside of a drop-down
// list.
GtkWidget* Focused(wxWindow& root) {
    return gtk_window_get_focus(GTK_WINDOW(wxGetTopLevelParent(&root)->GetHandle()));
}

// The innermost of these controls that holds the focus.
std::string FocusedOf(wxWindow& root, const Texts& names) {
    for (GtkWidget* widget = Focused(root); widget != nullptr;
         widget = gtk_widget_get_parent(widget)) {
        for (const std::string& name : names) {
            if (Find(&root, name)->GetHandle() == widget) {
                return name;
            }
        }
    }
    return "";
}

// One round from the first stop to itself, or backwards.
Texts Round(wxWindow& root, const Texts& stops, int modifiers) {
    Texts visited{stops.front()};
    for (std::size_t i = 0; i < stops.size(); ++i) {
        const GtkWidget* const before = Focused(root);
        Press(WXK_TAB, modifiers);
        ComesTrue([&root, before] { return Focused(root) != before; },
                  std::chrono::milliseconds(stops.size() == 1 ? 0 : 2000));
        visited.push_back(FocusedOf(root, stops));
    }
    return visited;
}

void ExpectRound(wxWindow& root, const Texts& stops) {
    FocusOn(Find(&root, stops.front()));
    Texts round = stops;
    round.push_back(stops.front());
    EXPECT_EQ(Round(root, stops, wxMOD_NONE), round);
}

void ExpectRoundBackwards(wxWindow& root, const Texts& stops) {
    FocusOn(Find(&root, stops.front()));
    Texts round = stops;
    round.push_back(stops.front());
    std::ranges::reverse(round);
    EXPECT_EQ(Round(root, stops, wxMOD_SHIFT), round);
}

// So that no control drops out of what is walked: all of them but words, lines and what is off.
constexpr std::size_t kStops = 129;
constexpr std::size_t kStopsWithAllOn = 146;

class TabOrder : public WizardTest {
protected:
    void SwitchAllOn() {
        for (const char* box : {"chkUseSMTP", "chkUseFileOutput", "chkUseNotifyUser",
                                "chkNotifyMessageOnFailure", "chkIncludeMDAC"}) {
            Tick(window, box);
        }
        Pick(window, "optDefault(2)");
    }

    // The stops of the page, and of the whole window: the option tree comes after the page.
    [[nodiscard]] Texts StopsOf(int position) const {
        const editors::Page* const page = window->pages.at(static_cast<std::size_t>(position));
        WaitFor([page] { return page->cmdNext->GetRect().y > page->lblGeneral->GetRect().y; },
                "the page to be laid out");
        std::vector<wxWindow*> controls;
        for (wxWindow* control : page->GetChildren()) {
            if (IsStop(*control)) {
                controls.push_back(control);
            }
        }
        return InReadingOrder(controls);
    }

    // Every page, and how many controls there were to stop at.
    std::size_t WalkAllPages(const std::function<void(wxWindow&, const Texts&)>& expect) {
        std::size_t count = 0;
        for (int position = 0; position < modWizard::kPageCount; ++position) {
            SCOPED_TRACE("page " + std::to_string(position));
            GoTo(position);
            Texts stops = StopsOf(position);
            count += stops.size();
            Texts last;
            for (const char* button : {"cmdHelp", "cmdBack", "cmdNext"}) {
                const std::string name = button + ("(" + std::to_string(position) + ")");
                if (IsEnabled(window, name)) {
                    last.push_back(name);
                }
            }
            EXPECT_TRUE(stops.size() >= last.size() &&
                        std::equal(last.rbegin(), last.rend(), stops.rbegin()));
            stops.emplace_back("tvwWizardOptions");
            expect(*window, stops);
        }
        return count;
    }
};

TEST_F(TabOrder, IsThatOfTheEyeOnAllPagesOfAManualDocument) {
    Start(kManual);
    Show();
    EXPECT_EQ(WalkAllPages(ExpectRound), kStops);
}

TEST_F(TabOrder, IsThatOfTheEyeOnAllPagesOfADirectoryDocument) {
    Start(kActiveDirectory);
    Show();
    EXPECT_EQ(WalkAllPages(ExpectRound), kStops);
}

TEST_F(TabOrder, IsThatOfTheEyeWithEverythingSwitchedOn) {
    Start(kManual);
    SwitchAllOn();
    Show();
    EXPECT_EQ(WalkAllPages(ExpectRoundBackwards), kStopsWithAllOn);
}

TEST_F(TabOrder, IsThatOfTheEyeWithEverythingSwitchedOnInADirectoryDocument) {
    Start(kActiveDirectory);
    SwitchAllOn();
    Show();
    EXPECT_EQ(WalkAllPages(ExpectRound), kStopsWithAllOn);
}

class DialogTabOrder : public testing::Test {
protected:
    // Shows the dialog, looks at the ways of the key in it, and cancels it.
    template <class Dialog> void Run(Dialog& dialog, std::function<void(Dialog&)> act) {
        ModalScript script;
        script.ExpectLive<Dialog>([act = std::move(act)](Dialog& shown) {
            BringToFront(&shown);
            act(shown);
            shown.EndModal(wxID_CANCEL);
        });
        dialog.ShowModal();
    }

    HostFrame host;
};

TEST_F(DialogTabOrder, OfANewDocument) {
    frmNewINI dialog(&host.Frame());
    Run<frmNewINI>(dialog, [](frmNewINI& shown) {
        shown.optUseActiveDirectory->SetValue(true);
        ExpectRound(shown,
                    {"optUseActiveDirectory", "cmdSelect", "cmdCancel", "cmdHelp", "sstNewINI"});
        shown.sstNewINI->SetSelection(1);
        ExpectRound(shown, {"drvExistingINI", "dirExistingINI", "filExistingINI", "cmdSelect",
                            "cmdCancel", "cmdHelp", "sstNewINI"});
    });
}

TEST_F(DialogTabOrder, OfAbout) {
    frmAbout dialog(&host.Frame());
    Run<frmAbout>(dialog, [](frmAbout& shown) {
        Texts stops;
        for (const wxWindow* control : shown.GetChildren()) {
            if (IsStop(*control)) {
                stops.push_back(control->GetName().utf8_string());
            }
        }
        EXPECT_EQ(stops, Texts{"cmdOK"});
        ExpectRound(shown, stops);
    });
}

TEST_F(DialogTabOrder, OfANetworkFolder) {
    platform::ui::NetworkFolderDialog dialog(
        &host.Frame(), [](const platform::NetworkPath&, const platform::KeepWaiting&) {
            return platform::NetworkListing{{}, {"Share"}};
        });
    Run<platform::ui::NetworkFolderDialog>(dialog, [](platform::ui::NetworkFolderDialog& shown) {
        shown.txtComputer->SetValue("NT1");
        Push(&shown, "cmdShow");
        WaitFor([&shown] { return !shown.Picked().empty() && shown.cmdShow->IsEnabled(); },
                "the computer to be shown");
        std::vector<wxWindow*> controls;
        for (wxWindow* control : shown.GetChildren()) {
            if (IsStop(*control)) {
                controls.push_back(control);
            }
        }
        EXPECT_EQ(controls.size(), 5U);
        ExpectRound(shown, InReadingOrder(controls));
    });
}

} // namespace
} // namespace window_test
