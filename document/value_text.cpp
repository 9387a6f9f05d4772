#include "document/value_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace modINIDocument {

namespace {

constexpr char LowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A'))
                                                : character;
}

/// `lowerCase` anywhere in `text`, which may be in any case.
bool Holds(std::string_view text, std::string_view lowerCase) {
    return !std::ranges::search(text, lowerCase, {}, LowerCase).empty();
}

/// For a number that no floating-point value can hold: 0 when it is too close to it, nothing when
/// it is too large.
std::optional<Integer> TooSmallOrNothing(std::string_view number) {
    const auto exponent = number.find_first_of("eE");
    const bool isSmall = exponent == std::string_view::npos
                             ? number.find_first_not_of('0') == number.find('.')
                             : number.substr(exponent + 1).starts_with('-');
    return isSmall ? std::optional<Integer>(Integer{0}) : std::nullopt;
}

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

} // namespace

std::string_view WithoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view WithoutBlanks(std::string_view text) {
    // npos + 1 is 0: a text of blanks alone is all end.
    return WithoutLeadingBlanks(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::optional<Boolean> BooleanFromText(std::string_view text) {
    if (Holds(text, "true")) {
        return kTrue;
    }
    if (Holds(text, "false")) {
        return kFalse;
    }
    return std::nullopt;
}

std::string_view TextFromBoolean(Boolean value) {
    return value == kTrue ? "True" : "False";
}

std::optional<Integer> IntegerFromText(std::string_view text) {
    text = WithoutLeadingBlanks(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    // The conversion below would take "inf" and "nan" for numbers, too.
    if (text.empty() || (!IsDigit(text.front()) && text.front() != '.')) {
        return Integer{0};
    }
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec == std::errc::invalid_argument) {
        return Integer{0};
    }
    if (result.ec == std::errc::result_out_of_range) {
        return TooSmallOrNothing({text.data(), result.ptr});
    }
    const double rounded = std::nearbyint(negative ? -number : number);
    using Limits = std::numeric_limits<Integer>;
    if (rounded < Limits::min() || rounded > Limits::max()) {
        return std::nullopt;
    }
    return static_cast<Integer>(rounded);
}

std::vector<std::string_view> ListPieces(std::string_view text) {
    std::vector<std::string_view> pieces;
    if (text.empty()) {
        return pieces;
    }
    constexpr std::size_t kUsualLength = 12;
    pieces.reserve(text.size() / kUsualLength + 1);
    for (;;) {
        const auto comma = text.find(',');
        pieces.push_back(WithoutBlanks(text.substr(0, comma)));
        if (comma == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(comma + 1);
    }
}

} // namespace modINIDocument
