// A directory service that plays what a test tells it, and writes down what it is asked.
#pragma once

#include "platform/directory_service.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace window_test {

/// What one query meets. A step is "Bind DOMAIN", "Connect", "Prepare", "Execute", "RecordCount",
/// "AtEnd", "Value ATTRIBUTE" or "MoveNext".
struct DirectoryPlay {
    std::vector<std::optional<std::string>> names;
    std::optional<long> count; ///< of the records, where it is not that of the names
    std::map<std::string, platform::SystemError> failures; ///< by the step's first word
    std::function<void(const std::string& step)> during;   ///< runs in each step
    std::vector<std::string> steps;
};

class ScriptedDirectory : public platform::DirectoryService {
public:
    explicit ScriptedDirectory(DirectoryPlay& play) : play_(play) {}

    void Bind(const std::string& domain) override { Take("Bind", ' ' + domain); }
    void Connect() override { Take("Connect"); }
    void Prepare() override { Take("Prepare"); }
    void Execute() override { Take("Execute"); }
    long RecordCount() override {
        Take("RecordCount");
        return play_.count.value_or(static_cast<long>(play_.names.size()));
    }
    bool AtEnd() override { return current_ >= play_.names.size(); }
    std::optional<std::string> Value(const std::string& attribute) override {
        Take("Value", ' ' + attribute);
        return attribute == "name" ? play_.names[current_] : std::nullopt;
    }
    void MoveNext() override {
        Take("MoveNext");
        ++current_;
    }

private:
    void Take(const std::string& step, const std::string& argument = {}) {
        play_.steps.push_back(step + argument);
        if (const auto failure = play_.failures.find(step); failure != play_.failures.end()) {
            Fail(failure->second);
        }
        if (play_.during) {
            play_.during(step);
        }
    }

    DirectoryPlay& play_;
    std::size_t current_ = 0;
};

} // namespace window_test
