// The help book in memory, as the help viewer reads it.
#pragma once

#include <wx/string.h>

#include <string>

namespace modWizard {

/// Reads the book at `path` whole, so that the file may be replaced while a viewer shows it, and
/// returns the address of its project file; "" when it cannot be read. The book read before is
/// put away: no viewer may be showing it any more.
wxString OpenHelpBook(const std::string& path);

} // namespace modWizard
