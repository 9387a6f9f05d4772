// A file of the fuzzer's bytes, in memory where the system has such a place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include <unistd.h>

namespace fuzz {

class File {
public:
    File(const std::uint8_t* bytes, std::size_t size) : path_(Place()) {
        std::FILE* const file = std::fopen(path_.c_str(), "wb");
        if (file == nullptr) {
            throw std::runtime_error("no file to write to");
        }
        const bool written = std::fwrite(bytes, 1, size, file) == size;
        if (std::fclose(file) != 0 || !written) {
            throw std::runtime_error("the file cannot be written");
        }
    }
    ~File() { std::remove(path_.c_str()); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    [[nodiscard]] const std::string& Path() const { return path_; }

private:
    static std::string Place() {
        const std::filesystem::path memory = "/dev/shm";
        const std::filesystem::path folder =
            std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
        return (folder / ("queueshift-fuzz-" + std::to_string(getpid()) + ".ini")).string();
    }

    std::string path_;
};

} // namespace fuzz
