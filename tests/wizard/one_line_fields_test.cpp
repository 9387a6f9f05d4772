// Every text field of the window: no pasted line break reaches the record.
#include "document/item_text.h"
#include "document/keys.h"
#include "tests/support/window/wait.h"
#include "tests/wizard/wizard_test.h"

#include <wx/clipbrd.h>
#include <wx/combo.h>
#include <wx/dataobj.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <variant>

namespace window_test {
namespace {

namespace doc = modINIDocument;

class OneLineFields : public WizardTest {
protected:
    /// The fields below `root` that take a text. Those of a drawn drop-down are its text box.
    static void Collect(wxWindow* root, std::vector<wxWindow*>& fields) {
        const auto* const entry = dynamic_cast<wxTextEntry*>(root);
        const bool drawn = dynamic_cast<wxComboCtrlBase*>(root) != nullptr;
        if (entry != nullptr && !drawn && entry->IsEditable()) {
            fields.push_back(root);
        }
        for (wxWindow* child : root->GetChildren()) {
            Collect(child, fields);
        }
    }
    /// What the field holds after this text was pasted into it.
    static std::string Pasted(wxWindow* field, const wxString& text) {
        auto& entry = dynamic_cast<wxTextEntry&>(*field);
        field->Enable();
        entry.ChangeValue("");
        if (!wxTheClipboard->Open()) {
            throw std::runtime_error("the clipboard is not to be had");
        }
        wxTheClipboard->SetData(new wxTextDataObject(text));
        wxTheClipboard->Close();
        entry.Paste();
        WaitFor([&] { return !entry.IsEmpty(); }, "the pasted text");
        return entry.GetValue().utf8_string();
    }
    static std::string NameOf(const wxWindow* field) {
        const bool part = dynamic_cast<wxComboCtrlBase*>(field->GetParent()) != nullptr;
        return (part ? field->GetParent() : field)->GetName().utf8_string();
    }
};

TEST_F(OneLineFields, NoneTakesALineBreak) {
    Start(kManual);
    Show();
    std::set<std::string> tried;
    for (int page = 0; page < static_cast<int>(window->sstWizard->GetPageCount()); ++page) {
        GoTo(page);
        std::vector<wxWindow*> fields;
        Collect(window->sstWizard->GetPage(static_cast<std::size_t>(page)), fields);
        for (wxWindow* field : fields) {
            for (const char* text :
                 {"first\r\nsecond", "first\nsecond", "first\rsecond", "first\r\n", "first\n\n"}) {
                EXPECT_EQ(Pasted(field, text), "first") << NameOf(field);
            }
            tried.insert(NameOf(field));
        }
    }
    std::vector<wxWindow*> all;
    Collect(window, all);
    for (const wxWindow* field : all) {
        EXPECT_TRUE(tried.count(NameOf(field)) == 1) << NameOf(field) << " is on no page";
    }
    EXPECT_GT(tried.size(), 25U);
}

// Reads every text of the record, whatever field or list it came from.
struct BreakFinder {
    const doc::SettingsRecord& record;

    bool operator()(const doc::Text& text) const { return Broken(record.*text.field); }
    bool operator()(const doc::Folder& folder) const { return Broken(record.*folder.field); }
    template <class Element> bool operator()(const doc::Column<Element>& column) const {
        return std::ranges::any_of(record.*column.list, [&column](const Element& element) {
            return Broken(doc::FieldOf(column, element));
        });
    }
    bool operator()(const doc::Flag& /*flag*/) const { return false; }
    bool operator()(const doc::Number& /*number*/) const { return false; }

    static bool Broken(const std::string& text) {
        return text.find_first_of("\r\n") != std::string::npos;
    }
};

TEST_F(OneLineFields, NoTextOfTheRecordHoldsAPastedLineBreak) {
    Start(kManual);
    Show();
    Tick(window, "chkUseSMTP");
    std::vector<wxWindow*> fields;
    Collect(window, fields);
    for (wxWindow* field : fields) {
        Pasted(field, "a@b\r\nsecond");
    }
    for (const char* button : {"cmdSaveServerPair", "cmdPrinterSave", "cmdMixedSave",
                               "cmdPopulateSave", "cmdPruneSave", "cmdAddSendEmail"}) {
        Push(window, button);
    }
    Store();
    for (const doc::Key& key : doc::kKeys) {
        EXPECT_FALSE(std::visit(BreakFinder{Record()}, key.setting)) << key.name;
    }
    EXPECT_EQ(Record().SuccessMessage, "a@b");
    EXPECT_EQ(doc::EmailToItems(Record().EmailTo), Texts{"a@b"});
    EXPECT_EQ(doc::PopulateItems(Record().PopulateList), Texts{"a@b >> a@b"});
    EXPECT_EQ(doc::MixedPairItems(Record().MixedPairs), Texts{"a@b >> a@b -> a@b >> a@b"});
}

} // namespace
} // namespace window_test
