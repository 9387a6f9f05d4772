// The text of a profile file, found and changed key by key.
//
// Works on code units, so that a file keeps every unit that no change touches, well-formed or not.
// All that gives the text its shape is ASCII; a page with two bytes to a character has no trail
// byte among "=", "[", ";", quotes, blanks and line ends.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace platform::profile {

template <class Char> class ProfileText {
public:
    using Text = std::basic_string<Char>;
    using View = std::basic_string_view<Char>;

    explicit ProfileText(Text text);

    [[nodiscard]] const Text& Whole() const { return text_; }

    /// The key's value without the blanks around it and without one pair of quotes; nothing when
    /// the first section of that name has no such key. Valid until the next Set.
    [[nodiscard]] std::optional<View> Find(View section, View key) const;

    /// Gives the key this value as it stands, adding key and section as needed.
    void Set(View section, View key, View value);

private:
    struct Line {
        std::size_t at;
        std::size_t length; ///< without its end
    };
    /// The lines between a section's header and the next one's.
    struct Section {
        std::size_t body; ///< behind the header's text
        std::vector<Line> lines;
    };
    /// The "=" of a line and all that follows it; nothing at the line's end when it has none.
    struct Assignment {
        std::size_t at;
        std::size_t length;
    };

    void IndexSections();
    [[nodiscard]] View LineAt(std::size_t at) const;
    [[nodiscard]] std::optional<Assignment> FindKey(const Section& section, View key) const;
    [[nodiscard]] std::size_t EndOfLastLine(const Section& section) const;
    [[nodiscard]] std::size_t BehindLineEnd(std::size_t at) const;
    [[nodiscard]] View TextOf(const Line& line) const;
    void ReplaceValue(const Assignment& old, const Text& by);
    void AddKey(const Section& section, const Text& line);
    void AddSection(View section, const Text& line);

    Text text_;
    std::vector<Section> sections_; ///< in the order of the text; the first has no header
    std::unordered_map<Text, std::size_t> firstOfName_; ///< by lower-case name
};

extern template class ProfileText<char>;
extern template class ProfileText<char16_t>;

} // namespace platform::profile
