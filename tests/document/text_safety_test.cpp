// Documents as the pages can produce them, saved and opened again.
#include "tests/document/document_fixture.h"
#include "tests/document/document_model.h"

#include "document/item_text.h"
#include "document/keys.h"

#include "tests/support/profile_machine.h"

#include <random>

namespace {

using namespace modINIDocument;

/// What users type and paste, the same for the same number on every machine.
class Typist {
public:
    explicit Typist(unsigned number) : random_(number) {}

    unsigned OneOf(unsigned count) { return static_cast<unsigned>(random_() % count); }
    bool Chance(unsigned percent) { return OneOf(100) < percent; }

    std::string Text() {
        switch (OneOf(10)) {
        case 0:
            return "";
        case 1:
            return Piece(" \t") + Plain() + Piece(" \t");
        case 2:
            return Quoted();
        case 3:
            return Plain() + Outside();
        case 4:
            return std::string(990 + OneOf(20), 'x');
        case 5:
            return Piece(";[]=',\"%&") + Plain() + Piece(";[]=',\"%&");
        case 6:
            return "\\\\server\\" + Plain() + "\\";
        default:
            return Plain();
        }
    }
    std::string Plain() {
        constexpr std::string_view kUnits = "abcXYZ0189 .-_@\\";
        std::string text = "n";
        for (unsigned left = OneOf(12); left > 0; --left) {
            text += kUnits[OneOf(kUnits.size())];
        }
        return text + (Chance(20) ? "äß€" : "") + "e";
    }
    /// A name for a list, which the pages do not take when it is empty.
    std::string Name(bool odd) {
        if (!odd || !Chance(12)) {
            return odd && Chance(2) ? std::string(3000, 'y') : Plain();
        }
        switch (OneOf(5)) {
        case 0:
            return Plain() + "," + Plain();
        case 1:
            return " " + Plain() + " ";
        case 2:
            return " ";
        case 3:
            return Quoted();
        default:
            return Plain() + Outside();
        }
    }

private:
    std::string Quoted() {
        const std::string quote = Chance(50) ? "\"" : "'";
        return quote + Piece(" ") + Plain() + Piece(" ") + quote;
    }
    std::string Outside() {
        constexpr std::array kOutside{"ж", "漢", "🖨"};
        return kOutside.at(OneOf(kOutside.size()));
    }
    std::string Piece(std::string_view units) {
        std::string text;
        for (unsigned left = OneOf(3); left > 0; --left) {
            text += units[OneOf(static_cast<unsigned>(units.size()))];
        }
        return text;
    }

    std::mt19937 random_; // its numbers, unlike those of a distribution, are the same everywhere
};

/// A record as the binding makes it of the pages: lists out of list box items, behind a
/// placeholder.
class Pages {
public:
    Pages(Typist& typist, bool odd) : typist_(typist), odd_(odd) {}

    SettingsRecord Record() {
        SettingsRecord record;
        for (const Key& key : kKeys) {
            std::visit([&](const auto& setting) { Fill(setting, record); }, key.setting);
        }
        record.UseSuccessClientPopup = record.UseClientPopup; // one check box
        record.MDACOption = static_cast<Integer>(typist_.OneOf(3));
        record.DefaultType = static_cast<Integer>(typist_.OneOf(3));
        if (record.DefaultType != 2) {
            record.DefaultPrinterName.clear();
        }
        FillLists(record);
        return record;
    }

private:
    void Fill(const Flag& flag, SettingsRecord& record) {
        record.*flag.field = typist_.Chance(50) ? kTrue : kFalse;
    }
    void Fill(const Text& text, SettingsRecord& record) { record.*text.field = OneText(); }
    void Fill(const Folder& folder, SettingsRecord& record) { record.*folder.field = OneText(); }
    template <class Other> void Fill(const Other& /*later*/, SettingsRecord& /*record*/) {}

    std::string OneText() { return odd_ ? typist_.Text() : typist_.Plain(); }
    std::string Name() { return typist_.Name(odd_); }
    std::string OrNothing(const std::string& name) {
        return odd_ && typist_.Chance(10) ? "" : name;
    }

    template <class MakeItem> std::vector<std::string> Items(MakeItem make) {
        std::vector<std::string> items;
        for (unsigned left = typist_.OneOf(5); left > 0; --left) {
            items.push_back(make());
        }
        return items;
    }
    void FillLists(SettingsRecord& record) {
        const auto pair = [this] { return ItemText(NamePair{Name(), Name()}); };
        const auto queue = [this] { return ItemText(ServerPrinterName{Name(), Name()}); };
        record.ServerPairs = NamePairsFromItems(Items(pair));
        record.PrinterPairs = NamePairsFromItems(Items(pair));
        record.MixedPairs = MixedPairsFromItems(Items([this] {
            return ItemText(MixedPair{Name(), Name(), Name(), Name()});
        }));
        record.EmailTo = EmailToFromItems(Items([this] { return Name(); }));
        record.PopulateList = ServerPrinterNamesFromItems(Items(queue));
        record.PruneList = ServerPrinterNamesFromItems(Items(queue));
        record.PrinterDrivers = PrinterDriversFromItems(Items([this] {
            return ItemText(PrinterDriver{Name(), Name(), OrNothing(Name()), OrNothing(Name())});
        }));
    }

    Typist& typist_;
    bool odd_;
};

template <class Setting>
bool Same(const Setting& setting, const SettingsRecord& one, const SettingsRecord& other) {
    return one.*setting.field == other.*setting.field;
}
template <class Element>
bool Same(const Column<Element>& column, const SettingsRecord& one, const SettingsRecord& other) {
    return one.*column.list == other.*column.list;
}

/// The keys whose settings differ.
std::string Differences(const SettingsRecord& one, const SettingsRecord& other) {
    std::string names;
    for (const Key& key : kKeys) {
        if (!std::visit([&](const auto& setting) { return Same(setting, one, other); },
                        key.setting)) {
            names += "[" + std::string(key.section) + "] " + std::string(key.name) + "\n";
        }
    }
    return names;
}

class TextSafety : public test::DocumentTest {
protected:
    /// Saves this record and opens it again; nothing when it is refused.
    std::optional<SettingsRecord> SavedAndOpened(const SettingsRecord& record) {
        g_strINIFilePath = folder_.File(std::to_string(number_++) + ".ini");
        g_Document = record;
        WriteDocument();
        g_Document = {};
        try {
            ReadDocument();
        } catch (const DamagedList&) {
            return std::nullopt;
        }
        return g_Document;
    }
    /// A save is slow where the system's functions write every key by itself.
    static int Documents() { return test::IsWine() ? 60 : 1000; }

private:
    int number_ = 0;
};

TEST_F(TextSafety, PlainTextsComeBackAsTheyAre) {
    Typist typist(1);
    for (int i = 0; i < Documents(); ++i) {
        SettingsRecord record = Pages(typist, false).Record();
        const auto back = SavedAndOpened(record);
        // Beside the placeholder that leads a list a plain document has nothing to lose.
        test::Losses losses = test::NoLosses();
        const auto foretold = test::ReadBack(record, losses);
        ASSERT_TRUE(back && foretold) << i;
        ASSERT_EQ(Differences(*foretold, *back), "") << i;
        for (const auto& [name, count] : losses) {
            ASSERT_EQ(count, 0) << i << ": " << name;
        }
        ASSERT_EQ(EmailToItems(back->EmailTo), EmailToItems(record.EmailTo)) << i;
        ASSERT_EQ(MixedPairItems(back->MixedPairs), MixedPairItems(record.MixedPairs)) << i;
        ASSERT_EQ(PruneItems(back->PruneList), PruneItems(record.PruneList)) << i;
        ASSERT_EQ(PrinterDriverItems(back->PrinterDrivers),
                  PrinterDriverItems(record.PrinterDrivers))
            << i;
        ASSERT_EQ(back->EmailSubject, record.EmailSubject) << i;
        ASSERT_EQ(back->DefaultPrinterName, record.DefaultPrinterName) << i;
    }
    EXPECT_TRUE(log_.Messages().empty());
}

TEST_F(TextSafety, WhateverIsTypedComesBackButForWhatTheFormatTakes) {
    Typist typist(2);
    test::Losses losses = test::NoLosses();
    for (int i = 0; i < Documents(); ++i) {
        const SettingsRecord record = Pages(typist, true).Record();
        const auto foretold = test::ReadBack(record, losses);
        const auto back = SavedAndOpened(record);
        ASSERT_EQ(foretold.has_value(), back.has_value()) << i;
        if (back) {
            ASSERT_EQ(Differences(*foretold, *back), "") << i;
        }
    }
    for (const auto& [name, count] : losses) {
        EXPECT_GT(count, 0) << name << " never happened: it is tried no more";
        RecordProperty(name, count);
    }
    EXPECT_TRUE(log_.Messages().empty()) << "nothing of it is a failure to the program";
}

} // namespace
