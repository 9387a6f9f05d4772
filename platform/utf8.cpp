#include "platform/utf8.h"

namespace platform {

namespace {

constexpr bool IsScalarValue(char32_t character) {
    return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

/// Whether `byte` may be the continuation number `index` after `lead`. The second byte alone tells
/// overlong forms, surrogates and numbers above U+10FFFF.
constexpr bool MayFollow(char32_t lead, std::size_t index, char32_t byte) {
    char32_t lowest = 0x80;
    char32_t highest = 0xBF;
    if (index == 0) {
        lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : lowest;
        highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : highest;
    }
    return byte >= lowest && byte <= highest;
}

} // namespace

char32_t NextCharacter(std::string_view utf8, std::size_t& at) {
    const auto byte = [&](std::size_t index) {
        return static_cast<char32_t>(static_cast<unsigned char>(utf8[index]));
    };
    const char32_t lead = byte(at++);
    if (lead < 0x80) {
        return lead;
    }
    const std::size_t following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4) {
        return kNoCharacter;
    }
    char32_t character = lead & (0x3Fu >> following);
    for (std::size_t i = 0; i < following; ++i) {
        if (at == utf8.size() || !MayFollow(lead, i, byte(at))) {
            return kNoCharacter;
        }
        character = character << 6 | (byte(at++) & 0x3F);
    }
    return character;
}

void AppendUtf8(std::string& text, char32_t character) {
    if (!IsScalarValue(character)) {
        character = 0xFFFD;
    }
    const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        add(character);
        return;
    }
    if (character < 0x800) {
        add(0xC0 | character >> 6);
    } else {
        if (character < 0x10000) {
            add(0xE0 | character >> 12);
        } else {
            add(0xF0 | character >> 18);
            add(0x80 | (character >> 12 & 0x3F));
        }
        add(0x80 | (character >> 6 & 0x3F));
    }
    add(0x80 | (character & 0x3F));
}

std::string ValidUtf8(std::string_view text) {
    std::string valid;
    valid.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        AppendUtf8(valid, NextCharacter(text, at));
    }
    return valid;
}

} // namespace platform
