// The texts by which the settings file holds flags, numbers and lists.
#pragma once

#include "document/record.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace modINIDocument {

/// Without the blanks at its start. Tabs stay: only the blank is padding in these values.
std::string_view WithoutLeadingBlanks(std::string_view text);
/// Without the blanks at both ends.
std::string_view WithoutBlanks(std::string_view text);

/// True when the text holds "True" anywhere, false when it holds "False", whatever the case;
/// nothing when it holds neither.
std::optional<Boolean> BooleanFromText(std::string_view text);
std::string_view TextFromBoolean(Boolean value);

/// The number that the text begins with, such as "-12.5e1 pages", rounded half to even; 0 when it
/// begins with none. Nothing when it is outside 16 bits.
std::optional<Integer> IntegerFromText(std::string_view text);

/// The pieces between commas, without the blanks around them; "" has none.
std::vector<std::string_view> ListPieces(std::string_view text);

} // namespace modINIDocument
