#include "tests/support/report.h"

#include "tests/support/files.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

namespace test {

namespace {

std::string Row(const std::vector<std::string>& cells) {
    std::string row = "|";
    for (const std::string& cell : cells) {
        row += " " + cell + " |";
    }
    return row + "\n";
}

std::string Sign(char character) {
    switch (character) {
    case '\0':
        return "␀";
    case '\t':
        return "⇥";
    case '\r':
        return "␍";
    case '\n':
        return "␊";
    default:
        return std::string(1, character);
    }
}

} // namespace

Report::Report(std::string name, std::string heading, std::vector<std::string> columns)
    : name_(std::move(name)) {
    text_ = "## " + std::move(heading) + "\n\n" + Row(columns) + "|";
    for (std::size_t i = 0; i < columns.size(); ++i) {
        text_ += "---|";
    }
    text_ += "\n";
}

void Report::Add(const std::vector<std::string>& row) {
    text_ += Row(row);
}

void Report::Write() const {
    if (const char* folder = std::getenv("QUEUESHIFT_REPORT")) {
        std::filesystem::create_directories(folder);
        WriteBytes(std::string(folder) + "/" + name_ + ".md", text_);
    }
}

std::string Visible(const std::string& text) {
    constexpr std::size_t kLongRun = 20;
    std::string shown;
    for (std::size_t at = 0; at < text.size();) {
        const auto end = std::min(text.find_first_not_of(text[at], at), text.size());
        const std::size_t run = end - at;
        if (run > kLongRun) {
            shown += "…" + std::to_string(run) + "×" + Sign(text[at]) + "…";
        } else {
            for (std::size_t i = 0; i < run; ++i) {
                shown += Sign(text[at]);
            }
        }
        at = end;
    }
    return shown.empty() ? "nothing" : "`" + shown + "`";
}

} // namespace test
