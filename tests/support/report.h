// Tables that tests leave for the page that puts together what all of them tried.
#pragma once

#include <string>
#include <vector>

namespace test {

/// One table under a heading. Where QUEUESHIFT_REPORT names a folder, Write leaves it there as
/// NAME.md; elsewhere nothing is left.
class Report {
public:
    Report(std::string name, std::string heading, std::vector<std::string> columns);

    void Add(const std::vector<std::string>& row);
    void Write() const;

private:
    std::string name_;
    std::string text_;
};

/// A text as a table can show it: in code marks, controls by their signs, and a long run of one
/// character as that character and its number.
std::string Visible(const std::string& text);

} // namespace test
