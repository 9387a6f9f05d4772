// The system's open-document service, for addresses of the web.
#pragma once

#include <functional>
#include <optional>
#include <string>

class wxWindow;

namespace platform::ui {

/// What the system says against opening an address (UTF-8, "" when it gives no reason); nothing
/// when it took it on.
using OpenFailure = std::optional<std::string>;

using DocumentOpener = std::function<OpenFailure(wxWindow* owner, const std::string& address)>;

/// Hands `address` to the program that the user has chosen for such addresses and returns at once,
/// without waiting for that program.
OpenFailure OpenDocument(wxWindow* owner, const std::string& address);

/// Puts another opener in the system's place, or the system's own back when it is empty; returns
/// the one it replaces.
DocumentOpener SetDocumentOpener(DocumentOpener opener);

/// The system's own service.
OpenFailure OpenWithSystem(wxWindow* owner, const std::string& address);

} // namespace platform::ui
