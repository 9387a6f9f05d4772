#include "platform/ui/open_document.h"
#include "platform/system_error.h"
#include "platform/ui/text.h"

#include <wx/window.h>

#include <cstdint>
#include <windows.h>

#include <shellapi.h>

namespace platform::ui {

OpenFailure OpenWithSystem(wxWindow* owner, const std::string& address) {
    // Any value up to here is an error number, not a handle.
    constexpr std::intptr_t kHighestError = 32;
    const HWND window = owner == nullptr ? nullptr : owner->GetHandle();
    ::SetLastError(ERROR_SUCCESS);
    const HINSTANCE result =
        ::ShellExecuteW(window, nullptr, ToWx(address).wc_str(), nullptr, L"C:\\", 0);
    if (reinterpret_cast<std::intptr_t>(result) > kHighestError) {
        return std::nullopt;
    }
    return SystemErrorFromNumber(static_cast<int>(::GetLastError())).description;
}

} // namespace platform::ui
