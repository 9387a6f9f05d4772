#include "platform/ansi.h"

#include "platform/linux/code_page.h"
#include "platform/utf8.h"

#include <iconv.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <optional>

namespace platform {

namespace {

class Converter {
public:
    Converter(const std::string& to, const std::string& from)
        : handle_(iconv_open(to.c_str(), from.c_str())) {}
    ~Converter() {
        if (IsOpen()) {
            iconv_close(handle_);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    /// The whole of `ansi` converted, or nothing when a part of it has no counterpart.
    std::optional<std::string> Convert(const std::string& ansi) const {
        if (!IsOpen()) {
            return std::nullopt;
        }
        std::string text = ansi; // the call takes its input without const
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        std::array<char, 16> output{};
        char* from = text.data();
        std::size_t fromLeft = text.size();
        char* to = output.data();
        std::size_t toLeft = output.size();
        constexpr auto kFailed = static_cast<std::size_t>(-1);
        // A result above 0 counts characters that were only approximated; 1258 holds a base letter
        // back until it is told that no accent follows.
        if (iconv(handle_, &from, &fromLeft, &to, &toLeft) != 0 ||
            iconv(handle_, nullptr, nullptr, &to, &toLeft) == kFailed) {
            return std::nullopt;
        }
        return std::string(output.data(), to);
    }

private:
    bool IsOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

    iconv_t handle_;
};

/// One code page, as two maps between its bytes and characters. A lead byte of a double-byte page
/// has no character of its own.
class CodePage {
public:
    explicit CodePage(int number);

    std::string Encode(std::string_view utf8) const;
    std::string Decode(std::string_view ansi) const;

private:
    void AddUndefinedBytes();
    void AddPairs(const Converter& decoder);

    std::array<std::string, 256> single_; ///< UTF-8 of each byte; "" for a lead byte
    std::map<std::string, std::string, std::less<>> pairs_; ///< UTF-8 of each double byte
    std::map<char32_t, std::string> bytes_;                 ///< ANSI bytes of each character
};

char32_t OnlyCharacter(const std::string& utf8) {
    std::size_t at = 0;
    const char32_t character = NextCharacter(utf8, at);
    return at == utf8.size() ? character : kNoCharacter;
}

CodePage::CodePage(int number) {
    const std::string name = "CP" + std::to_string(number);
    const Converter decoder("UTF-8", name);
    const bool doubleByte = number == 932 || number == 936 || number == 949 || number == 950;
    for (unsigned byte = 0; byte < 256; ++byte) {
        const std::string ansi(1, static_cast<char>(byte));
        // ASCII needs no converter, so that a system without the page's module still writes it.
        const auto utf8 = byte < 0x80 ? std::optional(ansi) : decoder.Convert(ansi);
        if (utf8 && !utf8->empty()) {
            single_[byte] = *utf8;
            bytes_.emplace(OnlyCharacter(*utf8), ansi);
        }
    }
    if (doubleByte) {
        AddPairs(decoder);
    } else {
        AddUndefinedBytes();
    }
}

void CodePage::AddUndefinedBytes() {
    for (unsigned byte = 0x80; byte < 256; ++byte) {
        if (single_[byte].empty()) {
            AppendUtf8(single_[byte], byte);
            bytes_.emplace(byte, std::string(1, static_cast<char>(byte)));
        }
    }
}

void CodePage::AddPairs(const Converter& decoder) {
    for (unsigned lead = 0x81; lead < 0xFF; ++lead) {
        if (!single_[lead].empty()) {
            continue;
        }
        for (unsigned trail = 0x40; trail < 0xFF; ++trail) {
            const std::string ansi{static_cast<char>(lead), static_cast<char>(trail)};
            const auto utf8 = decoder.Convert(ansi);
            if (utf8 && OnlyCharacter(*utf8) != kNoCharacter) {
                pairs_.emplace(ansi, *utf8);
                bytes_.emplace(OnlyCharacter(*utf8), ansi);
            }
        }
    }
}

std::string CodePage::Encode(std::string_view utf8) const {
    std::string ansi;
    ansi.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const char32_t character = NextCharacter(utf8, at);
        const auto found = bytes_.find(character);
        if (found != bytes_.end()) {
            ansi += found->second;
            continue;
        }
        // The real conversion sees the two halves of a character that UTF-16 has in two.
        const bool isTwoHalves = character > 0xFFFF && character != kNoCharacter;
        ansi += isTwoHalves ? "??" : "?";
    }
    return ansi;
}

std::string CodePage::Decode(std::string_view ansi) const {
    std::string utf8;
    utf8.reserve(ansi.size());
    for (std::size_t at = 0; at < ansi.size(); ++at) {
        const auto& single = single_[static_cast<unsigned char>(ansi[at])];
        if (!single.empty()) {
            utf8 += single;
            continue;
        }
        const auto pair = pairs_.find(ansi.substr(at, 2));
        if (pair != pairs_.end()) {
            utf8 += pair->second;
            ++at;
        } else {
            utf8 += '?';
        }
    }
    return utf8;
}

/// Most settings are, and every page of Windows begins with it.
bool IsAscii(std::string_view text) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::uint64_t seen = 0;
    for (std::uint64_t eight = 0; text.size() >= sizeof eight; text.remove_prefix(sizeof eight)) {
        std::memcpy(&eight, text.data(), sizeof eight);
        seen |= eight;
    }
    for (const char character : text) {
        seen |= static_cast<unsigned char>(character);
    }
    return (seen & kHighBits) == 0;
}

const CodePage& CurrentPage() {
    static std::map<int, CodePage> pages;
    const int number = CodePageOfLocale(LocaleOfTexts());
    return pages.try_emplace(number, number).first->second;
}

} // namespace

std::string AnsiFromUtf8(std::string_view utf8) {
    return IsAscii(utf8) ? std::string(utf8) : CurrentPage().Encode(utf8);
}

std::string Utf8FromAnsi(std::string_view ansi) {
    return IsAscii(ansi) ? std::string(ansi) : CurrentPage().Decode(ansi);
}

} // namespace platform
