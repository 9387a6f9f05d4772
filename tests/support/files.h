// Real files for tests: folders that clean up behind themselves, bytes, protection. All texts are
// UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace test {

/// A folder of its own for one test; removed with all it holds, protected files included.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::string& Path() const { return path_; }
    /// The full path of this name in the folder.
    [[nodiscard]] std::string File(std::string_view name) const;
    /// Creates a folder of this name in the folder and returns its full path.
    [[nodiscard]] std::string Subfolder(std::string_view name) const;
    /// How many files and folders the folder itself holds.
    [[nodiscard]] int EntryCount() const;

private:
    std::string path_;
};

/// Throws when the file cannot be written or read.
void WriteBytes(const std::string& path, std::string_view bytes);
std::string ReadBytes(const std::string& path);

/// The full path of a file in the folder of test data, and its bytes.
std::string TestDataPath(const std::string& name);
std::string TestData(const std::string& name);

/// Takes every write bit from the file or folder, on Windows sets a file's read-only attribute.
void Protect(const std::string& path);

} // namespace test
