#include "platform/linux/profile_text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace platform::profile {

namespace {

template <class Char> constexpr bool IsLineEnd(Char unit) {
    return unit == '\r' || unit == '\n';
}

/// Not zero when one of the eight bytes is `wanted`.
constexpr std::uint64_t BytesThatAre(std::uint64_t eight, char wanted) {
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    const std::uint64_t differences = eight ^ (kOnes * static_cast<unsigned char>(wanted));
    return (differences - kOnes) & ~differences & (kOnes << 7);
}

/// Where the line that goes on at this place ends. A list is one line of thousands of characters,
/// so eight of them are looked at together.
template <class Char> std::size_t LineEndFrom(std::basic_string_view<Char> text, std::size_t at) {
    if constexpr (sizeof(Char) == 1) {
        for (std::uint64_t eight = 0; at + sizeof eight <= text.size(); at += sizeof eight) {
            std::memcpy(&eight, text.data() + at, sizeof eight);
            if ((BytesThatAre(eight, '\r') | BytesThatAre(eight, '\n')) != 0) {
                break;
            }
        }
    }
    while (at < text.size() && !IsLineEnd(text[at])) {
        ++at;
    }
    return at;
}

/// What the real functions drop around names and values: blanks and tabs, and with them the other
/// spacing controls and the end-of-file mark that old editors left.
template <class Char> constexpr bool IsBlank(Char unit) {
    return unit == ' ' || unit == '\t' || unit == '\v' || unit == '\f' || unit == '\x1a';
}

template <class Char> std::basic_string_view<Char> Trimmed(std::basic_string_view<Char> text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// The texts of the real functions end at a NUL.
template <class Char> std::basic_string_view<Char> UpToNul(std::basic_string_view<Char> text) {
    return text.substr(0, text.find(Char{}));
}

template <class Char> constexpr Char LowerCase(Char unit) {
    // Names outside ASCII are compared as they stand: the settings have none.
    return unit >= 'A' && unit <= 'Z' ? static_cast<Char>(unit + ('a' - 'A')) : unit;
}

template <class Char> std::basic_string<Char> LowerCase(std::basic_string_view<Char> text) {
    std::basic_string<Char> lower(text);
    std::ranges::transform(lower, lower.begin(), [](Char unit) { return LowerCase(unit); });
    return lower;
}

template <class Char>
bool SameName(std::basic_string_view<Char> one, std::basic_string_view<Char> other) {
    return std::ranges::equal(
        one, other, [](Char left, Char right) { return LowerCase(left) == LowerCase(right); });
}

/// The name between the brackets, or nothing when the line opens no section. What follows the last
/// bracket does not count.
template <class Char>
std::optional<std::basic_string_view<Char>> SectionName(std::basic_string_view<Char> line) {
    line = Trimmed(line);
    if (line.empty() || line.front() != '[') {
        return std::nullopt;
    }
    const auto close = line.rfind(Char{']'});
    if (close == line.npos) {
        return std::nullopt;
    }
    return UpToNul(Trimmed(line.substr(1, close - 1)));
}

template <class Char>
std::basic_string_view<Char> WithoutQuotes(std::basic_string_view<Char> value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

template <class Char> constexpr Char kLineEnd[] = {'\r', '\n', 0};

} // namespace

template <class Char> ProfileText<Char>::ProfileText(Text text) : text_(std::move(text)) {
    IndexSections();
}

template <class Char> auto ProfileText<Char>::LineAt(std::size_t at) const -> View {
    const std::size_t end = LineEndFrom(View(text_), at);
    return View(text_).substr(at, end - at);
}

template <class Char> auto ProfileText<Char>::TextOf(const Line& line) const -> View {
    return View(text_).substr(line.at, line.length);
}

template <class Char> void ProfileText<Char>::IndexSections() {
    sections_.clear();
    sections_.push_back({});
    firstOfName_.clear();
    firstOfName_.emplace(Text(), 0);
    for (std::size_t at = 0; at < text_.size();) {
        const View line = LineAt(at);
        if (const auto name = SectionName(line)) {
            firstOfName_.try_emplace(LowerCase(*name), sections_.size());
            sections_.push_back({at + line.size(), {}});
        } else if (!line.empty()) {
            sections_.back().lines.push_back({at, line.size()});
        }
        at += line.size() + 1;
    }
}

template <class Char>
auto ProfileText<Char>::FindKey(const Section& section, View key) const
    -> std::optional<Assignment> {
    for (const Line& place : section.lines) {
        const View line = TextOf(place);
        const auto equals = line.find(Char{'='});
        const bool blank = Trimmed(line).empty();
        if (!blank && SameName(UpToNul(Trimmed(line.substr(0, equals))), key)) {
            const auto name = std::min(equals, line.size());
            return Assignment{place.at + name, line.size() - name};
        }
    }
    return std::nullopt;
}

template <class Char>
auto ProfileText<Char>::Find(View section, View key) const -> std::optional<View> {
    const auto found = firstOfName_.find(LowerCase(Trimmed(UpToNul(section))));
    if (found == firstOfName_.end()) {
        return std::nullopt;
    }
    const auto entry = FindKey(sections_[found->second], Trimmed(UpToNul(key)));
    if (!entry) {
        return std::nullopt;
    }
    View value = View(text_).substr(entry->at, entry->length);
    value.remove_prefix(std::min<std::size_t>(value.size(), 1));
    return WithoutQuotes(UpToNul(Trimmed(value)));
}

/// Behind the last line of the section that holds anything: the blank lines that set it off from
/// the next one stay where they are.
template <class Char> std::size_t ProfileText<Char>::EndOfLastLine(const Section& section) const {
    const auto last =
        std::ranges::find_if(section.lines.rbegin(), section.lines.rend(),
                             [this](const Line& line) { return !Trimmed(TextOf(line)).empty(); });
    return last == section.lines.rend() ? section.body : last->at + last->length;
}

/// Behind the line end at this place, CR LF after any number of CRs counting as one.
template <class Char> std::size_t ProfileText<Char>::BehindLineEnd(std::size_t at) const {
    const auto end = std::min(text_.find_first_not_of(Char{'\r'}, at), text_.size());
    return end < text_.size() && text_[end] == '\n' ? end + 1 : at + 1;
}

template <class Char> void ProfileText<Char>::ReplaceValue(const Assignment& old, const Text& by) {
    text_.replace(old.at, old.length, by);
    for (Section& section : sections_) {
        const auto moved = [&](std::size_t& place) { place = place - old.length + by.size(); };
        if (section.body > old.at) {
            moved(section.body);
        }
        for (Line& line : section.lines) {
            if (line.at > old.at) {
                moved(line.at);
            } else if (line.at + line.length >= old.at) {
                moved(line.length);
            }
        }
    }
}

template <class Char> void ProfileText<Char>::AddKey(const Section& section, const Text& line) {
    const Text lineEnd = kLineEnd<Char>;
    const std::size_t place = EndOfLastLine(section);
    if (place == 0) {
        text_.insert(0, line + lineEnd);
    } else if (place == text_.size()) {
        text_ += lineEnd + line + lineEnd;
    } else {
        text_.insert(BehindLineEnd(place), line + lineEnd);
    }
}

template <class Char> void ProfileText<Char>::AddSection(View section, const Text& line) {
    if (!text_.empty() && !IsLineEnd(text_.back())) {
        text_ += kLineEnd<Char>;
    }
    text_ += Char{'['};
    text_ += section;
    text_ += Char{']'};
    text_ += kLineEnd<Char>;
    text_ += line;
    text_ += kLineEnd<Char>;
}

template <class Char> void ProfileText<Char>::Set(View section, View key, View value) {
    section = UpToNul(section);
    key = UpToNul(key);
    const Text assigned = Char{'='} + Text(UpToNul(value));
    const auto found = firstOfName_.find(LowerCase(Trimmed(section)));
    const auto entry = found == firstOfName_.end()
                           ? std::nullopt
                           : FindKey(sections_[found->second], Trimmed(key));
    // A value that brings line ends of its own may open sections.
    if (entry && LineEndFrom(View(assigned), 0) == assigned.size()) {
        ReplaceValue(*entry, assigned);
        return;
    }
    if (entry) {
        text_.replace(entry->at, entry->length, assigned);
    } else if (found == firstOfName_.end()) {
        AddSection(section, Text(key) + assigned);
    } else {
        AddKey(sections_[found->second], Text(key) + assigned);
    }
    IndexSections();
}

template class ProfileText<char>;
template class ProfileText<char16_t>;

} // namespace platform::profile
