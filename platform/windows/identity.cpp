#include "platform/identity.h"

#include "platform/ansi.h"
#include "platform/windows/automation.h"

#include <windows.h>

#include <algorithm>

namespace platform {

std::string CurrentUserName() {
    constexpr DWORD kBufferSize = 255;
    std::string name(kBufferSize, ' ');
    DWORD size = kBufferSize;
    GetUserNameA(name.data(), &size);
    // After a failure the size is the one that would have been needed, which may be beyond ours.
    name.resize(std::min(size, kBufferSize));
    return Utf8FromAnsi(name);
}

std::optional<std::string> ComputerName() {
    const ComApartment apartment;
    const AutomationObject network(CreateAutomationObject(L"WScript.Network").value);
    return network.Get(L"ComputerName").value.Text();
}

} // namespace platform
