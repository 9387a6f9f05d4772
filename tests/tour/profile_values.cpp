// Reads a settings file with Windows' own profile function, for those who look whether it says what
// was entered.
//
//   queueshift-profile-values FILE    takes lines of section, tab, key; answers each with a line of
//                                     last error, tab, value

#include <cstdio>
#include <iostream>
#include <string>

#include <windows.h>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: queueshift-profile-values FILE\n", stderr);
        return 2;
    }
    std::string value(0x7FFF, '\0');
    for (std::string line; std::getline(std::cin, line);) {
        const auto tab = line.find('\t');
        const std::string section = line.substr(0, tab);
        const std::string key = tab == std::string::npos ? std::string() : line.substr(tab + 1);
        SetLastError(0);
        // The default tells a missing key from an empty one.
        const DWORD length =
            GetPrivateProfileStringA(section.c_str(), key.c_str(), "(missing)", value.data(),
                                     static_cast<DWORD>(value.size()), argv[1]);
        std::cout << GetLastError() << '\t' << value.substr(0, length) << '\n';
    }
    return 0;
}
