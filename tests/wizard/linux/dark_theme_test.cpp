// Whether everything can be read in a dark theme, measured on the screen.
#include "files/about.h"
#include "files/new_ini.h"
#include "tests/support/window/screen_copy.h"
#include "tests/wizard/help_fixture.h"

#include <gtk/gtk.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combo.h>
#include <wx/combobox.h>
#include <wx/html/htmlwin.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace window_test {
namespace {

constexpr double kReadable = 4.5;
constexpr double kReadableThoughOff = 3.0; // what is off is meant to stand back

// The desktop's dark theme, for as long as it lives.
class DarkTheme {
public:
    DarkTheme() { Prefer(TRUE); }
    ~DarkTheme() { Prefer(FALSE); }
    DarkTheme(const DarkTheme&) = delete;
    DarkTheme& operator=(const DarkTheme&) = delete;

private:
    static void Prefer(gboolean dark) {
        GtkSettings* const settings = gtk_settings_get_default();
        g_object_set(settings, "gtk-application-prefer-dark-theme", dark, nullptr);
        // The toolkit remembers the colours of a theme until it hears of another.
        g_object_notify(G_OBJECT(settings), "gtk-theme-name");
        Pump();
    }
};

struct Colour {
    unsigned char red, green, blue;
    auto operator<=>(const Colour&) const = default;

    // How much light the eye gets of it, from 0 to 1.
    [[nodiscard]] double Light() const {
        const auto linear = [](unsigned char part) {
            const double value = part / 255.0;
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(red) + 0.7152 * linear(green) + 0.0722 * linear(blue);
    }
    [[nodiscard]] bool IsBluish() const { return blue > red + 40; }
};

double Contrast(const Colour& one, const Colour& other) {
    const double first = one.Light() + 0.05;
    const double second = other.Light() + 0.05;
    return std::max(first, second) / std::min(first, second);
}

struct Sample {
    double ground = 1;   // the light of the colour that covers the most
    double contrast = 1; // of what stands out from it the most
};

Sample SampleOf(const wxRect& screen, bool onlyBluish = false) {
    const wxImage picture = CopyOfScreen(screen);
    std::map<Colour, int> counts;
    for (int y = 0; y < picture.GetHeight(); ++y) {
        for (int x = 0; x < picture.GetWidth(); ++x) {
            ++counts[{picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)}];
        }
    }
    const Colour ground =
        std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })->first;
    Sample sample{ground.Light(), 1};
    for (const auto& [colour, count] : counts) {
        if (!onlyBluish || colour.IsBluish()) {
            sample.contrast = std::max(sample.contrast, Contrast(ground, colour));
        }
    }
    return sample;
}

// Where the control shows its text, without its border and what it draws beside the text.
std::optional<wxRect> TextRect(const wxWindow& control) {
    const auto is = [&control]<class... Kind>(std::type_identity<Kind>...) {
        return ((dynamic_cast<const Kind*>(&control) != nullptr) || ...);
    };
    wxRect rect = control.GetScreenRect();
    if (is(std::type_identity<wxStaticText>{}, std::type_identity<editors::LinkParagraph>{})) {
        return rect;
    }
    if (is(std::type_identity<wxCheckBox>{}, std::type_identity<wxRadioButton>{})) {
        constexpr int kMark = 24;
        return wxRect(rect.x + kMark, rect.y, rect.width - kMark, rect.height);
    }
    if (is(std::type_identity<wxTextCtrl>{}, std::type_identity<wxListBox>{},
           std::type_identity<wxButton>{})) {
        return rect.Deflate(5);
    }
    if (is(std::type_identity<wxChoice>{}, std::type_identity<wxComboBox>{},
           std::type_identity<wxComboCtrl>{})) {
        constexpr int kArrow = 34;
        rect.Deflate(5);
        return wxRect(rect.x, rect.y, rect.width - kArrow, rect.height);
    }
    return std::nullopt;
}

class DarkThemeTest : public HelpTest {
protected:
    // Drawing goes on after our events are through: the text may come a little later.
    static void ExpectReadable(const std::string& name, const wxRect& rect, double least,
                               bool onlyBluish = false) {
        Sample sample;
        ComesTrue(
            [&] {
                sample = SampleOf(rect, onlyBluish);
                return sample.contrast >= least;
            },
            std::chrono::milliseconds(3000));
        EXPECT_GE(sample.contrast, least) << name;
    }

    void ExpectReadable(const wxWindow& control) {
        const std::optional<wxRect> rect = TextRect(control);
        if (!rect || !control.IsShownOnScreen() || control.GetName().ends_with("(none)")) {
            return;
        }
        const std::string name = control.GetName().utf8_string();
        ExpectReadable(name, *rect, control.IsEnabled() ? kReadable : kReadableThoughOff);
        if (dynamic_cast<const editors::LinkParagraph*>(&control) != nullptr) {
            ExpectReadable(name + ", the link", *rect, kReadable, true);
            ++links;
        }
        ++(control.IsEnabled() ? on : off);
    }

    // Each field and list of a page gets something to show.
    static void Fill(wxWindow& page) {
        for (wxWindow* control : page.GetChildren()) {
            if (auto* const field = dynamic_cast<wxTextCtrl*>(control)) {
                field->ChangeValue("Something");
            } else if (auto* const list = dynamic_cast<wxListBox*>(control)) {
                list->Set(std::vector<wxString>{"Something", "More"});
            } else if (auto* const combo = dynamic_cast<wxOwnerDrawnComboBox*>(control)) {
                combo->Set(std::vector<wxString>{"Something"});
                combo->SetSelection(0);
            } else if (auto* const free = dynamic_cast<wxComboBox*>(control)) {
                free->ChangeValue("Something");
            }
        }
    }

    void ExpectPagesReadable() {
        Show();
        for (int position = 0; position < modWizard::kPageCount; ++position) {
            SCOPED_TRACE("page " + std::to_string(position));
            GoTo(position);
            editors::Page* const page = window->pages.at(static_cast<std::size_t>(position));
            Fill(*page);
            WaitFor([page] { return SampleOf(page->GetScreenRect()).ground < 0.1; }, "a dark page");
            for (const wxWindow* control : page->GetChildren()) {
                ExpectReadable(*control);
            }
        }
        ExpectReadable("the option tree", window->tvwWizardOptions->Control()->GetScreenRect(),
                       kReadable);
    }

    void SwitchAllOn() {
        for (const char* box : {"chkUseSMTP", "chkUseFileOutput", "chkUseNotifyUser",
                                "chkNotifyMessageOnFailure", "chkIncludeMDAC"}) {
            Tick(window, box);
        }
        Pick(window, "optDefault(2)");
    }

    // What was looked at, so that nothing drops out of sight.
    int on = 0;
    int off = 0;
    int links = 0;

private:
    DarkTheme dark_;
};

TEST_F(DarkThemeTest, LeavesAllPagesReadable) {
    Start(kActiveDirectory);
    SwitchAllOn();
    ExpectPagesReadable();
    EXPECT_EQ(on, 212);
    EXPECT_EQ(off, 1);
    EXPECT_EQ(links, 2);
}

TEST_F(DarkThemeTest, LeavesReadableWhatIsOff) {
    Start(kManual);
    ExpectPagesReadable();
    EXPECT_EQ(on, 192);
    EXPECT_EQ(off, 20);
}

TEST_F(DarkThemeTest, LeavesTheRowsOfTheOptionTreeReadable) {
    Start(kManual);
    Show();
    for (const platform::ui::TreeNode& node : window->tvwWizardOptions->Nodes()) {
        window->tvwWizardOptions->Click(node.key);
        Pump();
        ExpectReadable(node.text, window->tvwWizardOptions->ScreenRect(node.key).Deflate(4, 2),
                       kReadable);
    }
}

TEST_F(DarkThemeTest, LeavesTheDialogsReadable) {
    HostFrame host;
    ModalScript script;
    script.ExpectLive<frmNewINI>([this](frmNewINI& shown) {
        BringToFront(&shown);
        WaitFor([&shown] { return SampleOf(shown.GetScreenRect()).ground < 0.1; }, "a dark dialog");
        for (const int tab : {0, 1}) {
            shown.sstNewINI->SetSelection(static_cast<std::size_t>(tab));
            Fill(*shown.sstNewINI->GetCurrentPage());
            for (const wxWindow* control : shown.sstNewINI->GetCurrentPage()->GetChildren()) {
                ExpectReadable(*control);
            }
        }
        for (const wxWindow* control : shown.GetChildren()) {
            ExpectReadable(*control);
        }
        shown.EndModal(wxID_CANCEL);
    });
    frmNewINI(&host.Frame()).ShowModal();
    script.ExpectLive<frmAbout>([this](frmAbout& shown) {
        BringToFront(&shown);
        WaitFor([&shown] { return SampleOf(shown.GetScreenRect()).ground < 0.1; }, "a dark dialog");
        for (const wxWindow* control : shown.GetChildren()) {
            ExpectReadable(*control);
        }
        shown.EndModal(wxID_OK);
    });
    frmAbout(&host.Frame()).ShowModal();
    EXPECT_EQ(on, 16);
}

TEST_F(DarkThemeTest, LeavesTheHelpReadable) {
    modWizard::ShowHelpContext(1013);
    BringToFront(Viewer());
    ExpectReadable("the topic", Find(Viewer(), "htmHelpTopic")->GetScreenRect().Deflate(20),
                   kReadable);
    ExpectReadable("the contents", Find(Viewer(), "tvwHelpContents")->GetScreenRect().Deflate(20),
                   kReadable);
}

} // namespace
} // namespace window_test
