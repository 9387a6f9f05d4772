#include "tests/document/document_model.h"

#include "document/keys.h"

#include "platform/ansi.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <variant>

namespace test {

namespace {

using namespace modINIDocument;

using Bytes = std::string; ///< in the code page

struct Refused {};

Bytes WithoutEnds(Bytes text, const char* dropped) {
    text.erase(0, std::min(text.find_first_not_of(dropped), text.size()));
    text.erase(text.find_last_not_of(dropped) + 1);
    return text;
}

Bytes WithoutQuotes(const Bytes& text) {
    const bool quoted = text.size() > 1 && text.front() == text.back() &&
                        (text.front() == '"' || text.front() == '\'');
    return quoted ? text.substr(1, text.size() - 2) : text;
}

/// In the order in which they strike.
struct Rule {
    const char* name;
    Bytes (*apply)(const Bytes&, std::size_t most);
};

constexpr std::array kRules{
    Rule{"blanks and tabs at the ends go",
         [](const Bytes& text, std::size_t) { return WithoutEnds(text, " \t\v\f\x1a"); }},
    Rule{"a pair of quotes around it goes",
         [](const Bytes& text, std::size_t) { return WithoutQuotes(text); }},
    Rule{"what is over its length goes",
         [](const Bytes& text, std::size_t most) { return text.substr(0, most); }},
    Rule{"blanks behind the opening quote go",
         [](const Bytes& text, std::size_t) {
             return text.substr(std::min(text.find_first_not_of(' '), text.size()));
         }},
};
constexpr const char* kCodePage = "a character outside the code page becomes a question mark";
constexpr const char* kBackslash = "the backslash that ends a folder goes";
constexpr const char* kComma = "a comma makes two names of one";
constexpr const char* kNameBlanks = "blanks around a name go";
constexpr const char* kBlankName = "a name of blanks alone becomes an error text";
constexpr const char* kMissing = "a field that an entry lacks is taken from the next";
constexpr const char* kRefused = "a list with more names than its first key refuses the file";

class Model {
public:
    explicit Model(Losses& losses) : losses_(losses) {}

    SettingsRecord Record(const SettingsRecord& written) {
        SettingsRecord back = written;
        for (const Key& key : kKeys) {
            std::visit([&](const auto& setting) { Apply(setting, written, back); }, key.setting);
        }
        return back;
    }

private:
    // Flags and numbers come back as they are.
    static void Apply(const Flag& /*flag*/, const SettingsRecord& /*written*/,
                      SettingsRecord& /*back*/) {}
    static void Apply(const Number& /*number*/, const SettingsRecord& /*written*/,
                      SettingsRecord& /*back*/) {}
    void Apply(const Text& text, const SettingsRecord& written, SettingsRecord& back) {
        back.*text.field = Value(written.*text.field, 999);
    }
    void Apply(const Folder& folder, const SettingsRecord& written, SettingsRecord& back) {
        std::string value = Value(written.*folder.field, 999);
        if (!value.empty() && value.back() == '\\') {
            value.pop_back();
            ++losses_[kBackslash];
        }
        back.*folder.field = value;
    }
    template <class Element>
    void Apply(const Column<Element>& column, const SettingsRecord& written, SettingsRecord& back) {
        const std::vector<Element>& from = written.*column.list;
        std::vector<Element>& to = back.*column.list;
        const std::vector<std::string> pieces = Pieces(column, from);
        if (IsFirst(column)) {
            to.assign(pieces.size() == 1 ? 2 : std::max<std::size_t>(pieces.size(), 1), {});
        }
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            if (i >= to.size()) {
                ++losses_[kRefused];
                throw Refused();
            }
            const bool blank = pieces[i].empty();
            losses_[kBlankName] += blank ? 1 : 0;
            FieldOf(column, to[i]) = blank ? std::string(column.errorText) : pieces[i];
        }
    }
    template <class Element> static bool IsFirst(const Column<Element>& column) {
        for (const Key& key : kKeys) {
            const auto* other = std::get_if<Column<Element>>(&key.setting);
            if (other != nullptr && other->list == column.list) {
                return other == &column;
            }
        }
        return false;
    }
    template <class Element>
    std::vector<std::string> Pieces(const Column<Element>& column,
                                    const std::vector<Element>& list) {
        std::string joined;
        std::size_t names = 0;
        bool lacking = false; // of an entry, not of the placeholder that many lists begin with
        for (const Element& element : list) {
            const std::string& name = FieldOf(column, element);
            lacking = lacking || (name.empty() && !(element == Element()));
            losses_[kMissing] += lacking && !name.empty() ? 1 : 0;
            if (!name.empty()) {
                joined += (names++ == 0 ? "" : ",") + name;
            }
        }
        const std::vector<std::string> pieces = Cut(Value(joined, 9999));
        losses_[kComma] += pieces.size() > names ? 1 : 0;
        return pieces;
    }
    std::vector<std::string> Cut(const std::string& value) {
        std::vector<std::string> pieces;
        if (value.empty()) {
            return pieces;
        }
        std::istringstream rest(value + ",");
        for (std::string piece; std::getline(rest, piece, ',');) {
            pieces.push_back(WithoutEnds(piece, " "));
            losses_[kNameBlanks] += pieces.back() == piece ? 0 : 1;
        }
        return pieces;
    }
    std::string Value(const std::string& text, std::size_t most) {
        Bytes value = platform::AnsiFromUtf8(text);
        losses_[kCodePage] += platform::Utf8FromAnsi(value) == text ? 0 : 1;
        for (const Rule& rule : kRules) {
            const Bytes left = rule.apply(value, most);
            losses_[rule.name] += left == value ? 0 : 1;
            value = left;
        }
        return platform::Utf8FromAnsi(value);
    }

    Losses& losses_;
};

} // namespace

Losses NoLosses() {
    Losses losses;
    for (const Rule& rule : kRules) {
        losses[rule.name] = 0;
    }
    for (const char* name :
         {kCodePage, kBackslash, kComma, kNameBlanks, kBlankName, kMissing, kRefused}) {
        losses[name] = 0;
    }
    return losses;
}

std::optional<SettingsRecord> ReadBack(const SettingsRecord& written, Losses& losses) {
    try {
        return Model(losses).Record(written);
    } catch (const Refused&) {
        return std::nullopt;
    }
}

} // namespace test
