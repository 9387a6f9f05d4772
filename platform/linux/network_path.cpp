#include "platform/linux/network_path.h"

#include <algorithm>

namespace platform {

namespace {

constexpr std::string_view kSeparators = "\\/";

bool IsSeparator(char character) {
    return kSeparators.find(character) != std::string_view::npos;
}

std::vector<std::string_view> PartsOf(std::string_view text) {
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const auto end = text.find_first_of(kSeparators);
        const auto part = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
    }
    return parts;
}

bool IsPlain(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '.' || character == '-' ||
           character == '_';
}

std::string Escaped(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string escaped;
    for (const char character : text) {
        if (IsPlain(character)) {
            escaped += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            escaped += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
        }
    }
    return escaped;
}

} // namespace

bool IsNetworkPath(std::string_view typed) {
    return typed.size() >= 2 && IsSeparator(typed[0]) && IsSeparator(typed[1]);
}

std::optional<NetworkPath> ParseNetworkPath(std::string_view typed) {
    if (!IsNetworkPath(typed)) {
        return std::nullopt;
    }
    typed.remove_prefix(2);
    NetworkPath path;
    path.server = typed.substr(0, typed.find_first_of(kSeparators));
    if (path.server.empty() || path.server == "." || path.server == "?") {
        return std::nullopt;
    }
    typed.remove_prefix(path.server.size());
    for (const auto part : PartsOf(typed)) {
        if (part == "..") {
            if (!path.folders.empty()) {
                path.folders.pop_back();
            }
        } else if (path.share.empty()) {
            path.share = part;
        } else {
            path.folders.emplace_back(part);
        }
    }
    return path;
}

bool IsNetworkFileName(std::string_view name) {
    constexpr std::string_view kForbidden = "\\/:*?\"<>|";
    return !name.empty() && std::ranges::none_of(name, [kForbidden](char character) {
        return static_cast<unsigned char>(character) < ' ' ||
               kForbidden.find(character) != std::string_view::npos;
    });
}

std::string TextOf(const NetworkPath& path) {
    std::string text = "\\\\" + path.server;
    if (!path.share.empty()) {
        text += '\\' + path.share;
    }
    for (const auto& folder : path.folders) {
        text += '\\' + folder;
    }
    return text;
}

std::string UrlOf(const NetworkPath& path, std::string_view name) {
    std::string url = "smb://" + Escaped(path.server);
    if (!path.share.empty()) {
        url += '/' + Escaped(path.share);
    }
    for (const auto& folder : path.folders) {
        url += '/' + Escaped(folder);
    }
    if (!name.empty()) {
        url += '/' + Escaped(name);
    }
    return url;
}

} // namespace platform
