// Words of the user's locale that the generated files carry.
#pragma once

#include <string>

namespace platform {

/// Full name of a month, 0 is January. UTF-8.
std::string MonthName(int month);

/// The locale's designator for this hour of the day (0 to 23); "AM" or "PM" where it has none.
std::string AmPmDesignator(int hour);

} // namespace platform
