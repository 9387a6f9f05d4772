// Where an opened list of queues shows its items.
#include "tests/support/window/screen_copy.h"
#include "tests/wizard/wizard_test.h"

#include "wizard/pages.h"

#include <cstdlib>
#include <optional>

#include <wx/odcombo.h>
#include <wx/vlbox.h>

namespace window_test {
namespace {

// The screen's column where the ink of a line of text begins, looked for along its middle.
std::optional<int> InkOf(const wxWindow& window, const wxRect& line) {
    constexpr int kDark = 120;
    constexpr int kBand = 2;
    const wxRect area(window.ClientToScreen(line.GetPosition()), line.GetSize());
    const wxImage picture = CopyOfScreen(area);
    const int middle = picture.GetHeight() / 2;
    for (int x = 0; x < picture.GetWidth(); ++x) {
        bool ink = true;
        for (int y = middle - kBand; y <= middle + kBand; ++y) {
            ink = ink && picture.GetRed(x, y) < kDark && picture.GetGreen(x, y) < kDark &&
                  picture.GetBlue(x, y) < kDark;
        }
        if (ink) {
            return area.x + x;
        }
    }
    return std::nullopt;
}

class ItemPlace : public WizardTest {};

TEST_F(ItemPlace, IsBelowTheTextOfTheField) {
    Start(kActiveDirectory);
    wxOwnerDrawnComboBox& combo = *window->populate->cboAdPopulate;
    // Upright strokes, so that a line's middle meets them.
    PutItems(window, "cboAdPopulate", {"IIII", "IIII"});
    SelectRow(window, "cboAdPopulate", 0);
    GoTo(modWizard::kPopulatePage);
    window->PreparePopulatePage();
    Show();
    FocusOn(&combo);
    combo.Popup();
    const auto* const list = dynamic_cast<wxVListBox*>(combo.GetPopupControl()->GetControl());
    ASSERT_NE(list, nullptr);
    const wxTextCtrl& field = *combo.GetTextCtrl();
    combo.SetInsertionPointEnd();
    std::optional<int> text;
    std::optional<int> item;
    WaitFor(
        [&] {
            text = InkOf(field, field.GetClientRect());
            item = list->IsShownOnScreen() ? InkOf(*list, list->GetItemRect(1)) : std::nullopt;
            return text && item;
        },
        "the text and the item to be painted");
    Screenshot("picker-items", window);
    EXPECT_LE(std::abs(*text - *item), 1) << *text << " and " << *item;
    combo.Dismiss();
}

} // namespace
} // namespace window_test
