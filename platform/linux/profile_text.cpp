#include "platform/linux/profile_text.h"

#include <algorithm>
#include <utility>

namespace platform::profile {

namespace {

template <class Char> constexpr bool IsLineEnd(Char unit) {
    return unit == '\r' || unit == '\n';
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
    const auto close = line.rfind(Char{']'});
    if (line.empty() || line.front() != '[' || close == line.npos) {
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
    constexpr Char kEnds[] = {'\r', '\n', 0};
    const auto end = std::min(text_.find_first_of(kEnds, at), text_.size());
    return View(text_).substr(at, end - at);
}

template <class Char> void ProfileText<Char>::IndexSections() {
    sections_ = {{0, 0, text_.size()}};
    firstOfName_.clear();
    firstOfName_.emplace(Text(), 0);
    for (std::size_t at = 0; at < text_.size();) {
        const View line = LineAt(at);
        if (const auto name = SectionName(line)) {
            sections_.back().end = at;
            firstOfName_.try_emplace(LowerCase(*name), sections_.size());
            sections_.push_back({at, at + line.size(), text_.size()});
        }
        at += line.size() + 1;
    }
}

template <class Char>
auto ProfileText<Char>::FindKey(const Section& section, View key) const
    -> std::optional<Assignment> {
    for (std::size_t at = section.body; at < section.end;) {
        const View line = LineAt(at);
        const auto equals = line.find(Char{'='});
        const bool blank = Trimmed(line).empty();
        if (!blank && SameName(UpToNul(Trimmed(line.substr(0, equals))), key)) {
            const auto name = std::min(equals, line.size());
            return Assignment{at + name, line.size() - name};
        }
        at += line.size() + 1;
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
    std::size_t place = section.body;
    for (std::size_t at = section.body; at < section.end;) {
        const View line = LineAt(at);
        if (!Trimmed(line).empty()) {
            place = at + line.size();
        }
        at += line.size() + 1;
    }
    return place;
}

/// Behind the line end at this place, CR LF after any number of CRs counting as one.
template <class Char> std::size_t ProfileText<Char>::BehindLineEnd(std::size_t at) const {
    const auto end = std::min(text_.find_first_not_of(Char{'\r'}, at), text_.size());
    return end < text_.size() && text_[end] == '\n' ? end + 1 : at + 1;
}

template <class Char>
void ProfileText<Char>::Replace(std::size_t section, std::size_t at, std::size_t length,
                                const Text& by) {
    text_.replace(at, length, by);
    const auto moved = [&](std::size_t& place) { place = place - length + by.size(); };
    moved(sections_[section].end);
    for (std::size_t later = section + 1; later < sections_.size(); ++later) {
        moved(sections_[later].begin);
        moved(sections_[later].body);
        moved(sections_[later].end);
    }
}

template <class Char> void ProfileText<Char>::AddKey(std::size_t section, const Text& line) {
    const Text lineEnd = kLineEnd<Char>;
    const std::size_t place = EndOfLastLine(sections_[section]);
    if (place == 0) {
        Replace(section, 0, 0, line + lineEnd);
    } else if (place == text_.size()) {
        Replace(section, place, 0, lineEnd + line + lineEnd);
    } else {
        Replace(section, BehindLineEnd(place), 0, line + lineEnd);
    }
}

template <class Char> void ProfileText<Char>::AddSection(View section, const Text& line) {
    if (!text_.empty() && !IsLineEnd(text_.back())) {
        text_ += kLineEnd<Char>;
    }
    const std::size_t begin = text_.size();
    sections_.back().end = begin;
    text_ += Char{'['};
    text_ += section;
    text_ += Char{']'};
    const std::size_t body = text_.size();
    text_ += kLineEnd<Char>;
    text_ += line;
    text_ += kLineEnd<Char>;
    firstOfName_.try_emplace(LowerCase(Trimmed(section)), sections_.size());
    sections_.push_back({begin, body, text_.size()});
}

template <class Char> void ProfileText<Char>::Set(View section, View key, View value) {
    section = UpToNul(section);
    key = UpToNul(key);
    const Text assigned = Char{'='} + Text(UpToNul(value));
    const Text line = Text(key) + assigned;
    const auto found = firstOfName_.find(LowerCase(Trimmed(section)));
    if (found == firstOfName_.end()) {
        AddSection(section, line);
    } else if (const auto entry = FindKey(sections_[found->second], Trimmed(key))) {
        Replace(found->second, entry->at, entry->length, assigned);
    } else {
        AddKey(found->second, line);
    }
    // A value that brings line ends of its own may open sections.
    if (std::ranges::any_of(line, IsLineEnd<Char>)) {
        IndexSections();
    }
}

template class ProfileText<char>;
template class ProfileText<char16_t>;

} // namespace platform::profile
