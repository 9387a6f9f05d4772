// Answers questions by the profile operations of this build, for those who compare the builds.
//
//   queueshift-profile-answers FILE    FILE is made, changed and removed as the questions say
//
// A question is a line of words between blanks. Texts are UTF-8 and bytes as they are, both in
// hexadecimal digits with "-" before them.
//
//   file BYTES                  FILE holds these bytes from now on; no answer
//   missing                     there is no FILE from now on; no answer
//   read SECTION KEY SIZE...    for each size: error ":" value
//   write SECTION KEY VALUE     0, or 1 for a failure; waits for "commit" in one update
//   commit                      0 or 1, and the bytes of FILE

#include "platform/profile.h"

#include "tests/support/files.h"

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

using platform::profile::Reader;
using platform::profile::Update;

std::string FromHex(const std::string& word) {
    if (!word.starts_with('-') || word.size() % 2 == 0) {
        throw std::runtime_error("no text: " + word);
    }
    std::string text;
    text.reserve(word.size() / 2);
    for (std::size_t at = 1; at < word.size(); at += 2) {
        text += static_cast<char>(std::stoi(word.substr(at, 2), nullptr, 16));
    }
    return text;
}

std::string ToHex(const std::string& text) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string word = "-";
    word.reserve(2 * text.size() + 1);
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        word += kDigits[byte / 16];
        word += kDigits[byte % 16];
    }
    return word;
}

class Answers {
public:
    explicit Answers(std::string path) : path_(std::move(path)) {}

    void Answer(const std::string& question) {
        std::istringstream words(question);
        std::string what;
        words >> what;
        if (what == "file") {
            Forget();
            test::WriteBytes(path_, Text(words));
        } else if (what == "missing") {
            Forget();
            std::filesystem::remove(path_);
        } else if (what == "read") {
            Read(words);
        } else if (what == "write") {
            Write(words);
        } else if (what == "commit") {
            Commit();
        } else {
            throw std::runtime_error("no question: " + question);
        }
    }

private:
    static std::string Text(std::istream& words) {
        std::string word;
        words >> word;
        return FromHex(word);
    }
    void Forget() {
        update_.reset();
        reader_.reset();
    }
    void Read(std::istream& words) {
        const std::string section = Text(words);
        const std::string key = Text(words);
        if (!reader_) {
            reader_ = std::make_unique<Reader>(path_);
        }
        for (std::size_t size = 0; words >> size;) {
            const auto result = reader_->Read(section, key, size);
            std::cout << result.error << ':' << ToHex(result.value) << ' ';
        }
        std::cout << '\n';
    }
    void Write(std::istream& words) {
        const std::string section = Text(words);
        const std::string key = Text(words);
        const std::string value = Text(words);
        if (!update_) {
            update_ = std::make_unique<Update>(path_);
        }
        std::cout << (update_->Write(section, key, value) == 0 ? 0 : 1) << '\n';
    }
    void Commit() {
        const bool failed = update_->Commit() != 0;
        Forget();
        const bool there = std::filesystem::exists(path_);
        std::cout << (failed ? 1 : 0) << ' ' << ToHex(there ? test::ReadBytes(path_) : "") << '\n';
    }

    std::string path_;
    std::unique_ptr<Reader> reader_;
    std::unique_ptr<Update> update_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: queueshift-profile-answers FILE\n", stderr);
        return 2;
    }
    std::ios::sync_with_stdio(false);
    try {
        Answers answers(argv[1]);
        for (std::string question; std::getline(std::cin, question);) {
            answers.Answer(question);
        }
        return std::cout.flush() ? 0 : 1;
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "%s\n", problem.what());
        return 1;
    }
}
