#include "platform/ui/open_document.h"

#include <utility>

namespace platform::ui {

namespace {

DocumentOpener& Opener() {
    static DocumentOpener opener = OpenWithSystem;
    return opener;
}

} // namespace

OpenFailure OpenDocument(wxWindow* owner, const std::string& address) {
    return Opener()(owner, address);
}

DocumentOpener SetDocumentOpener(DocumentOpener opener) {
    return std::exchange(Opener(), opener ? std::move(opener) : OpenWithSystem);
}

} // namespace platform::ui
