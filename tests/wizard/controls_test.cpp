// Every control of every page: its name, its kind and what it says.
#include "tests/wizard/control_list.h"
#include "tests/wizard/wizard_test.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/gauge.h>
#include <wx/notebook.h>
#include <wx/odcombo.h>
#include <wx/radiobut.h>
#include <wx/statline.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <map>
#include <set>

namespace window_test {
namespace {

std::string KindOf(wxWindow* control) {
    if (dynamic_cast<wxCheckBox*>(control) != nullptr) {
        return "check box";
    }
    if (dynamic_cast<wxRadioButton*>(control) != nullptr) {
        return "option";
    }
    if (dynamic_cast<wxButton*>(control) != nullptr) {
        return "button";
    }
    if (dynamic_cast<wxTextCtrl*>(control) != nullptr) {
        return "text box";
    }
    if (dynamic_cast<wxListBox*>(control) != nullptr) {
        return "list";
    }
    if (dynamic_cast<wxOwnerDrawnComboBox*>(control) != nullptr) {
        return control->HasFlag(wxCB_READONLY) ? "drop-down list" : "combo box";
    }
    if (dynamic_cast<wxComboBox*>(control) != nullptr) {
        return "combo box";
    }
    if (dynamic_cast<wxChoice*>(control) != nullptr) {
        return "drop-down list";
    }
    if (dynamic_cast<wxGauge*>(control) != nullptr) {
        return "progress bar";
    }
    if (dynamic_cast<wxStaticLine*>(control) != nullptr) {
        return "line";
    }
    if (dynamic_cast<wxStaticText*>(control) != nullptr) {
        return "label";
    }
    return "link";
}

// What a control says: its caption, or its items one a line.
std::string SaysOf(wxWindow* control) {
    const std::string kind = KindOf(control);
    if (kind == "text box" || kind == "list" || kind == "line" || kind == "progress bar") {
        return "";
    }
    if (const auto* const items = dynamic_cast<wxItemContainer*>(control)) {
        wxString lines;
        for (const wxString& item : items->GetStrings()) {
            lines << (lines.empty() ? "" : "\n") << item;
        }
        return lines.utf8_string();
    }
    return control->GetLabel().utf8_string();
}

class Controls : public WizardTest {
protected:
    Controls() { Start(kActiveDirectory); }
};

TEST_F(Controls, OfEachPageAreThoseOfTheList) {
    for (int position = 0; position < kPageCount; ++position) {
        std::map<std::string, ControlRow> expected;
        for (const ControlRow& row : ControlsOfPage(position)) {
            EXPECT_TRUE(expected.emplace(row.name, row).second) << row.name;
        }
        for (wxWindow* control :
             window->sstWizard->GetPage(static_cast<std::size_t>(position))->GetChildren()) {
            const std::string name = control->GetName().utf8_string();
            // The button that stands for "none is selected"; nobody sees it.
            if (name.ends_with("(none)")) {
                EXPECT_FALSE(control->IsShown()) << name;
                continue;
            }
            const auto row = expected.find(name);
            if (row == expected.end()) {
                ADD_FAILURE() << "page " << position << " has an unexpected " << KindOf(control)
                              << " \"" << name << "\": " << SaysOf(control);
                continue;
            }
            EXPECT_EQ(KindOf(control), row->second.kind) << name;
            EXPECT_EQ(SaysOf(control), row->second.says) << name;
            expected.erase(row);
        }
        for (const auto& [name, row] : expected) {
            ADD_FAILURE() << "page " << position << " lacks " << name;
        }
    }
}

TEST_F(Controls, BearEachNameOnce) {
    std::set<std::string> names;
    std::size_t count = 0;
    for (std::size_t position = 0; position < window->sstWizard->GetPageCount(); ++position) {
        for (wxWindow* control : window->sstWizard->GetPage(position)->GetChildren()) {
            EXPECT_TRUE(names.insert(control->GetName().utf8_string()).second)
                << control->GetName();
            ++count;
        }
    }
    for (const char* name : {"frmWizard", "sstWizard", "tvwWizardOptions"}) {
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_NO_THROW(Find(window, name));
    }
    EXPECT_GT(count, 200U);
}

TEST_F(Controls, StandOnTwentyPagesWithoutATabStrip) {
    EXPECT_EQ(window->sstWizard->GetPageCount(), 20U);
    EXPECT_EQ(dynamic_cast<wxNotebook*>(static_cast<wxWindow*>(window->sstWizard)), nullptr);
}

} // namespace
} // namespace window_test
