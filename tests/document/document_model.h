// What a saved and reopened document must hold, foretold from a list of what the file format takes
// from a text. Knows nothing of how the product reads and writes.
#pragma once

#include "document/record.h"

#include <map>
#include <optional>
#include <string>

namespace test {

/// How often each thing that the format takes has changed a text.
using Losses = std::map<std::string, int>;

/// The names of all of them.
Losses NoLosses();

/// The record that is read back, or nothing when the file must be refused.
std::optional<modINIDocument::SettingsRecord>
ReadBack(const modINIDocument::SettingsRecord& written, Losses& losses);

} // namespace test
