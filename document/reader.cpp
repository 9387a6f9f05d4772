#include "document/document.h"
#include "document/keys.h"
#include "document/value_text.h"

#include "platform/message.h"
#include "platform/profile.h"

#include <optional>
#include <utility>
#include <variant>

namespace modINIDocument {

namespace {

using platform::profile::Reader;

/// The value as a fixed buffer gives it back: blanks before it go with the padding, blanks behind
/// it stand before the terminator and stay. A failed read leaves its mark and what it got.
std::string ReadValue(const Reader& reader, std::string_view section, std::string_view key,
                      std::size_t bufferSize) {
    auto result = reader.Read(section, key, bufferSize);
    if (result.error != 0) {
        g_Document.ReadFailed = true;
    }
    result.value.erase(0, result.value.size() - WithoutLeadingBlanks(result.value).size());
    return std::move(result.value);
}

template <class Value> Value ValueOrFailure(const std::optional<Value>& value) {
    if (!value) {
        g_Document.ReadFailed = true;
    }
    return value.value_or(Value{});
}

Boolean BooleanOf(const Reader& reader, std::string_view section, std::string_view key) {
    return ValueOrFailure(BooleanFromText(ReadValue(reader, section, key, Flag::kBufferSize)));
}

Integer IntegerOf(const Reader& reader, std::string_view section, std::string_view key) {
    return ValueOrFailure(IntegerFromText(ReadValue(reader, section, key, Number::kBufferSize)));
}

std::string TextOf(const Reader& reader, std::string_view section, std::string_view key) {
    return ReadValue(reader, section, key, Text::kBufferSize);
}

/// Empty elements for a list whose first key has this many pieces. A single piece has always
/// brought a placeholder along.
template <class Element> std::vector<Element> EmptyElements(std::size_t pieces) {
    constexpr std::size_t kForOnePiece = 2;
    return std::vector<Element>(pieces == 0 ? 1 : pieces == 1 ? kForOnePiece : pieces);
}

template <class Element>
void FillColumn(const Key& key, const Column<Element>& column,
                const std::vector<std::string_view>& pieces, std::vector<Element>& list) {
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i >= list.size()) {
            throw DamagedList("[" + std::string(key.section) + "] " + std::string(key.name) +
                              " has more entries than its list");
        }
        FieldOf(column, list[i]) = std::string(pieces[i].empty() ? column.errorText : pieces[i]);
    }
}

/// Reads all keys of one list, which replaces `list`.
template <class Element>
void ReadList(const Reader& reader, std::vector<Element> SettingsRecord::*which,
              std::vector<Element>& list) {
    bool sized = false;
    for (const Key& key : kKeys) {
        const auto* column = std::get_if<Column<Element>>(&key.setting);
        if (column == nullptr || column->list != which) {
            continue;
        }
        const std::string value = ReadValue(reader, key.section, key.name, column->kBufferSize);
        const auto pieces = ListPieces(value);
        if (!sized) {
            list = EmptyElements<Element>(pieces.size());
            sized = true;
        }
        FillColumn(key, *column, pieces, list);
    }
}

template <class Element>
void ReadListAlone(std::vector<Element> SettingsRecord::*which, std::vector<Element>& list) {
    ReadList(Reader(g_strINIFilePath), which, list);
}

/// Reads the table into the record, row by row.
class TableReader {
public:
    explicit TableReader(const Reader& reader) : reader_(reader) {}

    void Read(const Key& key) {
        std::visit([&](const auto& setting) { Read(key, setting); }, key.setting);
    }

private:
    void Read(const Key& key, const Flag& flag) {
        g_Document.*flag.field = BooleanOf(reader_, key.section, key.name);
    }
    void Read(const Key& key, const Number& number) {
        g_Document.*number.field = IntegerOf(reader_, key.section, key.name);
    }
    void Read(const Key& key, const Text& text) {
        g_Document.*text.field = TextOf(reader_, key.section, key.name);
    }
    void Read(const Key& key, const Folder& folder) {
        std::string path = TextOf(reader_, key.section, key.name);
        if (path.ends_with('\\')) {
            path.pop_back();
        }
        g_Document.*folder.field = std::move(path);
    }
    /// The first key of a list reads the whole list.
    template <class Element> void Read(const Key& key, const Column<Element>& column) {
        const bool first = &key == &kKeys.front() || !IsOfList(*(&key - 1), column);
        if (first) {
            ReadList(reader_, column.list, g_Document.*column.list);
        }
    }
    template <class Element> static bool IsOfList(const Key& key, const Column<Element>& column) {
        const auto* other = std::get_if<Column<Element>>(&key.setting);
        return other != nullptr && other->list == column.list;
    }

    const Reader& reader_;
};

} // namespace

void ReadDocument() {
    g_Document.DocumentDirty = false;
    const Reader reader(g_strINIFilePath);
    TableReader table(reader);
    for (const Key& key : kKeys) {
        table.Read(key);
    }
    if (g_Document.ReadFailed) {
        ShowReadFailure();
    }
}

void ShowReadFailure() {
    // The caption is that of a failed save: administrators know the box by it.
    platform::ShowMessage({"Unable to read INI file. Please check your permissions to the folder "
                           "and file you are attempting to read.",
                           "Write Error", platform::Buttons::Ok, platform::Icon::Critical});
}

std::string ReadText(std::string_view section, std::string_view key) {
    return TextOf(Reader(g_strINIFilePath), section, key);
}

Boolean ReadBoolean(std::string_view section, std::string_view key) {
    return BooleanOf(Reader(g_strINIFilePath), section, key);
}

Integer ReadInteger(std::string_view section, std::string_view key) {
    return IntegerOf(Reader(g_strINIFilePath), section, key);
}

void ReadServerPairs(std::vector<NamePair>& list) {
    ReadListAlone(&SettingsRecord::ServerPairs, list);
}

void ReadPrinterPairs(std::vector<NamePair>& list) {
    ReadListAlone(&SettingsRecord::PrinterPairs, list);
}

void ReadMixedPairs(std::vector<MixedPair>& list) {
    ReadListAlone(&SettingsRecord::MixedPairs, list);
}

void ReadEmailTo(std::vector<std::string>& list) {
    ReadListAlone(&SettingsRecord::EmailTo, list);
}

void ReadPopulateList(std::vector<ServerPrinterName>& list) {
    ReadListAlone(&SettingsRecord::PopulateList, list);
}

void ReadPruneList(std::vector<ServerPrinterName>& list) {
    ReadListAlone(&SettingsRecord::PruneList, list);
}

void ReadPrinterDrivers(std::vector<PrinterDriver>& list) {
    ReadListAlone(&SettingsRecord::PrinterDrivers, list);
}

} // namespace modINIDocument
