// Controls by their stable names.
#pragma once

#include <wx/window.h>

#include <stdexcept>

namespace window_test {

/// The control of this name and kind under `root` (or `root` itself). Throws when there is none,
/// which fails the test with the name that was looked for; the result is never null.
template <class Control = wxWindow> Control* Find(wxWindow* root, const wxString& name) {
    wxWindow* const found = wxWindow::FindWindowByName(name, root);
    if (found == nullptr) {
        throw std::runtime_error("no control is named " + name.utf8_string());
    }
    auto* const control = dynamic_cast<Control*>(found);
    if (control == nullptr) {
        throw std::runtime_error("another kind of control is named " + name.utf8_string());
    }
    return control;
}

} // namespace window_test
