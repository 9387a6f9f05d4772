// A full settings file read and written, against three well-known libraries that do the same 49
// keys.
//
//   queueshift-settings-bench ROUNDS
//
// No side waits for the disk: flushing is a no-op in this program, but for the row that shows what
// it costs us. Reading ends with the entries of every list, and writing begins with them, on every
// side; what a peer takes that leaves the lists whole is shown apart.
#include "bench/full_document.h"
#include "bench/rounds.h"
#include "document/document.h"
#include "document/keys.h"

#define SI_NO_CONVERSION
#include <SimpleIni.h>
#include <dlfcn.h>
#include <glib.h>
#include <wx/fileconf.h>
#include <wx/init.h>
#include <wx/wfstream.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace {

bool g_flushes = false;

} // namespace

extern "C" int fsync(int file) {
    static auto* const next = reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, "fsync"));
    return g_flushes ? next(file) : 0;
}

namespace {

using modINIDocument::g_Document;
using modINIDocument::kKeys;

void Expect(bool condition, const char* what) {
    if (!condition) {
        throw std::runtime_error(what);
    }
}

struct KeyedValue {
    std::string section;
    std::string key;
    std::string value;
};

bool IsList(const modINIDocument::Key& key) {
    return std::visit(
        [](const auto& setting) {
            return requires {
                setting.list;
            };
        },
        key.setting);
}

using Lists = std::vector<std::vector<std::string>>;

std::vector<std::string> Split(std::string_view text) {
    std::vector<std::string> pieces;
    for (;;) {
        const auto comma = text.find(',');
        pieces.emplace_back(text.substr(0, comma));
        if (comma == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(comma + 1);
    }
}

Lists SplitAll(const std::vector<KeyedValue>& values) {
    Lists lists;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (IsList(kKeys[i])) {
            lists.push_back(Split(values[i].value));
        }
    }
    return lists;
}

/// With the library's own way to take a list apart.
void ReadListsByKeyFile(const std::string& path) {
    GKeyFile* const file = g_key_file_new();
    Expect(g_key_file_load_from_file(file, path.c_str(), G_KEY_FILE_NONE, nullptr) != 0, "load");
    g_key_file_set_list_separator(file, ',');
    std::vector<char**> lists;
    for (const auto& key : kKeys) {
        const std::string section(key.section);
        const std::string name(key.name);
        if (IsList(key)) {
            gsize length = 0;
            lists.push_back(
                g_key_file_get_string_list(file, section.c_str(), name.c_str(), &length, nullptr));
        } else {
            g_free(g_key_file_get_value(file, section.c_str(), name.c_str(), nullptr));
        }
    }
    g_key_file_free(file);
    for (char** const list : lists) {
        g_strfreev(list);
    }
}

std::vector<KeyedValue> ReadByKeyFile(const std::string& path) {
    GKeyFile* const file = g_key_file_new();
    Expect(g_key_file_load_from_file(file, path.c_str(), G_KEY_FILE_NONE, nullptr) != 0, "load");
    std::vector<KeyedValue> values;
    for (const auto& key : kKeys) {
        const std::string section(key.section);
        const std::string name(key.name);
        char* const value = g_key_file_get_value(file, section.c_str(), name.c_str(), nullptr);
        values.push_back({section, name, value == nullptr ? "" : value});
        g_free(value);
    }
    g_key_file_free(file);
    return values;
}

std::vector<KeyedValue> ReadBySimpleIni(const std::string& path) {
    CSimpleIniA file;
    Expect(file.LoadFile(path.c_str()) >= 0, "load");
    std::vector<KeyedValue> values;
    for (const auto& key : kKeys) {
        const std::string section(key.section);
        const std::string name(key.name);
        values.push_back({section, name, file.GetValue(section.c_str(), name.c_str(), "")});
    }
    return values;
}

std::vector<KeyedValue> ReadByFileConfig(const std::string& path) {
    wxFileInputStream stream(wxString::FromUTF8(path));
    wxFileConfig file(stream, wxConvISO8859_1);
    std::vector<KeyedValue> values;
    for (const auto& key : kKeys) {
        const wxString name = wxString('/') +
                              wxString::FromUTF8(key.section.data(), key.section.size()) + '/' +
                              wxString::FromUTF8(key.name.data(), key.name.size());
        values.push_back({std::string(key.section), std::string(key.name),
                          file.Read(name, wxString()).utf8_string()});
    }
    return values;
}

/// The values as they are before a peer writes them: lists still as entries.
struct Entries {
    std::string section;
    std::string key;
    std::vector<std::string> pieces;

    [[nodiscard]] std::string Value() const {
        std::string value;
        for (const auto& piece : pieces) {
            value += piece;
            value += ',';
        }
        value.pop_back();
        return value;
    }
};

std::vector<Entries> EntriesOf(const std::vector<KeyedValue>& values) {
    std::vector<Entries> entries;
    for (const auto& [section, key, value] : values) {
        entries.push_back({section, key, Split(value)});
    }
    return entries;
}

void WriteByKeyFile(const std::string& path, const std::vector<Entries>& entries) {
    GKeyFile* const file = g_key_file_new();
    g_key_file_load_from_file(file, path.c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr);
    for (const auto& entry : entries) {
        g_key_file_set_value(file, entry.section.c_str(), entry.key.c_str(), entry.Value().c_str());
    }
    Expect(g_key_file_save_to_file(file, path.c_str(), nullptr) != 0, "save");
    g_key_file_free(file);
}

void WriteBySimpleIni(const std::string& path, const std::vector<Entries>& entries) {
    CSimpleIniA file;
    file.LoadFile(path.c_str());
    for (const auto& entry : entries) {
        file.SetValue(entry.section.c_str(), entry.key.c_str(), entry.Value().c_str());
    }
    Expect(file.SaveFile(path.c_str()) >= 0, "save");
}

void WriteByFileConfig(const std::string& path, const std::vector<Entries>& entries) {
    wxFileConfig file("bench", "bench", wxString::FromUTF8(path), wxString(),
                      wxCONFIG_USE_LOCAL_FILE, wxConvISO8859_1);
    for (const auto& entry : entries) {
        file.Write(wxString('/') + wxString::FromUTF8(entry.section) + '/' +
                       wxString::FromUTF8(entry.key),
                   wxString::FromUTF8(entry.Value()));
    }
    Expect(file.Flush(), "save");
}

void Save() {
    modINIDocument::WriteDocument();
    Expect(!g_Document.WriteFailed, "our save");
}

void Measure(const std::filesystem::path& folder, int rounds) {
    const std::string ours = (folder / "ours.ini").string();
    modINIDocument::g_strINIFilePath = ours;
    bench::FillDocument();
    Save();
    const auto entries = EntriesOf(ReadByKeyFile(ours));
    std::printf("a file of %ju bytes, medians of %d rounds\n", std::filesystem::file_size(ours),
                rounds);
    std::vector<bench::Side> reads = {
        {"this program, record filled", [] { modINIDocument::ReadDocument(); }},
        {"GKeyFile", [&] { ReadListsByKeyFile(ours); }},
        {"SimpleIni", [&] { SplitAll(ReadBySimpleIni(ours)); }},
        {"wxFileConfig", [&] { SplitAll(ReadByFileConfig(ours)); }},
        {"(GKeyFile, lists left whole)", [&] { ReadByKeyFile(ours); }},
        {"(GKeyFile, lists taken apart as with SimpleIni)",
         [&] { SplitAll(ReadByKeyFile(ours)); }}};
    bench::Run(reads, rounds);
    Expect(!g_Document.ReadFailed && g_Document.MixedPairs.size() == bench::kFullList, "our read");
    bench::Print("reading", reads, 1.0);

    for (const auto* const name : {"glib.ini", "simple.ini", "wx.ini"}) {
        std::filesystem::copy_file(ours, folder / name);
    }
    const auto at = [&folder](const char* name) { return (folder / name).string(); };
    std::vector<bench::Side> writes = {
        {"this program", Save},
        {"GKeyFile", [&] { WriteByKeyFile(at("glib.ini"), entries); }},
        {"SimpleIni", [&] { WriteBySimpleIni(at("simple.ini"), entries); }},
        {"wxFileConfig", [&] { WriteByFileConfig(at("wx.ini"), entries); }}};
    bench::Run(writes, rounds);
    bench::Print("writing", writes, 1.0);
}

/// What it costs to be safe from a power cut.
void MeasureFlush(const std::filesystem::path& folder, int rounds) {
    modINIDocument::g_strINIFilePath = (folder / "ours.ini").string();
    g_flushes = true;
    std::vector<bench::Side> sides = {{"this program, flushed to the disk", Save}};
    bench::Run(sides, rounds);
    bench::PrintTime(sides[0]);
}

std::filesystem::path MakeFolder(const std::filesystem::path& parent) {
    std::string pattern = parent / "queueshift-bench.XXXXXX";
    Expect(mkdtemp(pattern.data()) != nullptr, "no folder to measure in");
    return pattern;
}

} // namespace

int main(int argc, char** argv) {
    const wxInitializer toolkit;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 101;
    int status = 0;
    try {
        // In the memory: a disk that others use as well hides what is measured.
        const auto memory = MakeFolder("/dev/shm");
        const auto disk = MakeFolder(std::filesystem::temp_directory_path());
        Measure(memory, rounds);
        MeasureFlush(disk, std::min(rounds, 21));
        std::filesystem::remove_all(memory);
        std::filesystem::remove_all(disk);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        status = 1;
    }
    return status;
}
