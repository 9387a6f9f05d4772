#include "tests/support/files.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace test {

namespace {

namespace fs = std::filesystem;

fs::path PathOf(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string Utf8Of(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

void Unprotect(const fs::path& path) {
    std::error_code ignored; // what cannot be unprotected shows in the removal
    fs::permissions(path, fs::perms::owner_all, fs::perm_options::add, ignored);
}

} // namespace

TemporaryFolder::TemporaryFolder() {
    static std::atomic<int> count = 0;
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    const auto name = "queueshift-test-" + std::to_string(now) + "-" + std::to_string(count++);
    // Canonical, so that paths that the program finds by itself compare equal.
    const fs::path path = fs::canonical(fs::temp_directory_path()) / name;
    if (!fs::create_directory(path)) {
        throw std::runtime_error("exists already: " + Utf8Of(path));
    }
    path_ = Utf8Of(path);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    Unprotect(PathOf(path_));
    for (fs::recursive_directory_iterator entry(PathOf(path_), error), end; entry != end;
         entry.increment(error)) {
        if (!entry->is_symlink()) {
            Unprotect(entry->path());
        }
    }
    fs::remove_all(PathOf(path_), error);
}

std::string TemporaryFolder::File(std::string_view name) const {
    return Utf8Of(PathOf(path_) / PathOf(name));
}

std::string TemporaryFolder::Subfolder(std::string_view name) const {
    std::string path = File(name);
    fs::create_directory(PathOf(path));
    return path;
}

int TemporaryFolder::EntryCount() const {
    return static_cast<int>(
        std::distance(fs::directory_iterator(PathOf(path_)), fs::directory_iterator()));
}

void WriteBytes(const std::string& path, std::string_view bytes) {
    std::ofstream file(PathOf(path), std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + path);
    }
}

std::string ReadBytes(const std::string& path) {
    std::ifstream file(PathOf(path), std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string TestDataPath(const std::string& name) {
    const char* folder = std::getenv("QUEUESHIFT_TEST_DATA");
    return std::string(folder == nullptr ? QUEUESHIFT_TEST_DATA : folder) + "/" + name;
}

std::string TestData(const std::string& name) {
    return ReadBytes(TestDataPath(name));
}

void Protect(const std::string& path) {
    constexpr auto kWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(PathOf(path), kWrite, fs::perm_options::remove);
}

} // namespace test
