#include "document/document.h"
#include "document/keys.h"
#include "document/value_text.h"

#include "platform/message.h"
#include "platform/profile.h"

namespace modINIDocument {

namespace {

using platform::profile::Update;

/// An empty value would be taken for a missing one.
constexpr std::string_view kBlank = " ";

void NoteFailure(int error) {
    if (error != 0) {
        g_Document.WriteFailed = true;
    }
}

/// Sets keys of one file; a key that fails leaves its mark and does not stop the next.
class TableWriter {
public:
    explicit TableWriter(const std::string& path) : update_(path) {}

    void Write(const Key& key, SettingsRecord& record) {
        std::visit([&](const auto& setting) { Write(key, setting, record); }, key.setting);
    }
    void WriteValue(std::string_view section, std::string_view key, std::string_view value) {
        NoteFailure(update_.Write(section, key, value));
    }
    void WriteText(std::string_view section, std::string_view key, std::string& field) {
        if (field.empty()) {
            field = kBlank;
        }
        WriteValue(section, key, field);
    }
    /// Each key leaves out the elements that have nothing for it, whatever its neighbours do: the
    /// editors see to it that an element is complete.
    template <class Element>
    void WriteColumn(const Key& key, const Column<Element>& column,
                     const std::vector<Element>& list) {
        std::string value;
        for (const Element& element : list) {
            const std::string& text = FieldOf(column, element);
            if (!text.empty()) {
                value += text;
                value += ',';
            }
        }
        if (!value.empty()) {
            value.pop_back();
        }
        WriteValue(key.section, key.name, value.empty() ? kBlank : value);
    }
    void Commit() { NoteFailure(update_.Commit()); }

private:
    void Write(const Key& key, const Flag& flag, SettingsRecord& record) {
        WriteValue(key.section, key.name, TextFromBoolean(record.*flag.field));
    }
    void Write(const Key& key, const Number& number, SettingsRecord& record) {
        WriteValue(key.section, key.name, std::to_string(record.*number.field));
    }
    void Write(const Key& key, const Text& text, SettingsRecord& record) {
        WriteText(key.section, key.name, record.*text.field);
    }
    void Write(const Key& key, const Folder& folder, SettingsRecord& record) {
        WriteText(key.section, key.name, record.*folder.field);
    }
    template <class Element>
    void Write(const Key& key, const Column<Element>& column, SettingsRecord& record) {
        WriteColumn(key, column, record.*column.list);
    }

    Update update_;
};

template <class Element>
void WriteListAlone(std::vector<Element> SettingsRecord::*which, const std::vector<Element>& list) {
    TableWriter writer(g_strINIFilePath);
    for (const Key& key : kKeys) {
        const auto* column = std::get_if<Column<Element>>(&key.setting);
        if (column != nullptr && column->list == which) {
            writer.WriteColumn(key, *column, list);
        }
    }
    writer.Commit();
}

} // namespace

void WriteDocument() {
    g_Document.DocumentDirty = false;
    g_Document.WriteFailed = false;
    TableWriter writer(g_strINIFilePath);
    for (const Key& key : kKeys) {
        writer.Write(key, g_Document);
    }
    writer.Commit();
    if (g_Document.WriteFailed) {
        platform::ShowMessage({"Unable to save INI file. Please check your permissions to the "
                               "folder and file you are attempting to save.",
                               "Write Error", platform::Buttons::Ok, platform::Icon::Critical});
    }
}

void WriteText(std::string_view section, std::string_view key, std::string& field) {
    TableWriter writer(g_strINIFilePath);
    writer.WriteText(section, key, field);
    writer.Commit();
}

void WriteBoolean(std::string_view section, std::string_view key, Boolean& field) {
    TableWriter writer(g_strINIFilePath);
    writer.WriteValue(section, key, TextFromBoolean(field));
    writer.Commit();
}

void WriteInteger(std::string_view section, std::string_view key, Integer& field) {
    TableWriter writer(g_strINIFilePath);
    writer.WriteValue(section, key, std::to_string(field));
    writer.Commit();
}

void WriteServerPairs(const std::vector<NamePair>& list) {
    WriteListAlone(&SettingsRecord::ServerPairs, list);
}

void WritePrinterPairs(const std::vector<NamePair>& list) {
    WriteListAlone(&SettingsRecord::PrinterPairs, list);
}

void WriteMixedPairs(const std::vector<MixedPair>& list) {
    WriteListAlone(&SettingsRecord::MixedPairs, list);
}

void WriteEmailTo(const std::vector<std::string>& list) {
    WriteListAlone(&SettingsRecord::EmailTo, list);
}

void WritePopulateList(const std::vector<ServerPrinterName>& list) {
    WriteListAlone(&SettingsRecord::PopulateList, list);
}

void WritePruneList(const std::vector<ServerPrinterName>& list) {
    WriteListAlone(&SettingsRecord::PruneList, list);
}

void WritePrinterDrivers(const std::vector<PrinterDriver>& list) {
    WriteListAlone(&SettingsRecord::PrinterDrivers, list);
}

} // namespace modINIDocument
