#include "tests/support/profile_machine.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace test {

bool IsWine() {
#ifdef _WIN32
    const HMODULE system = GetModuleHandleW(L"ntdll.dll");
    return system != nullptr && GetProcAddress(system, "wine_get_version") != nullptr;
#else
    return false;
#endif
}

namespace {

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

} // namespace

std::string AsStored(std::string_view bytes) {
    if (!IsWine()) {
        return std::string(bytes);
    }
    std::string stored;
    while (!bytes.empty()) {
        const auto end = bytes.find_first_of("\r\n");
        const std::string_view line = Trimmed(bytes.substr(0, end));
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
        const auto equals = line.find('=');
        stored += Trimmed(line.substr(0, equals));
        if (equals != std::string_view::npos) {
            stored.append("=").append(Trimmed(line.substr(equals + 1)));
        }
        stored += line.empty() ? "" : "\r\n";
    }
    return stored;
}

} // namespace test
