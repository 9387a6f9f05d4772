#include "platform/profile.h"

#include "platform/ansi.h"
#include "platform/linux/file_replacement.h"
#include "platform/linux/profile_text.h"
#include "platform/utf8.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <variant>

namespace platform::profile {

namespace {

enum class Encoding { Ansi, Utf8, Utf16LittleEndian, Utf16BigEndian };

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";

/// No settings come near this; a larger file is some mistake and would only fill the memory.
constexpr std::size_t kLargestFile = 16 * 1024 * 1024;

/// Reads the whole file. Returns 0 or errno.
int Load(const std::string& path, std::string& bytes) {
    FileHandle file;
    struct stat status {};
    if (const int error = OpenRegularFile(path, file, status); error != 0) {
        return error;
    }
    if (static_cast<std::size_t>(status.st_size) > kLargestFile) {
        return EFBIG;
    }
    // A file that grows meanwhile, or one whose size the system does not tell, takes more rounds.
    constexpr std::size_t kMore = 16 * 1024;
    for (std::size_t had = 0;;) {
        if (had > kLargestFile) {
            return EFBIG;
        }
        bytes.resize(std::max<std::size_t>(static_cast<std::size_t>(status.st_size), had) + kMore);
        const ssize_t length = read(file.Get(), bytes.data() + had, bytes.size() - had);
        if (length < 0 && errno != EINTR) {
            return errno;
        }
        if (length == 0) {
            bytes.resize(had);
            return 0;
        }
        had += length < 0 ? 0 : static_cast<std::size_t>(length);
    }
}

std::u16string Utf16FromUtf8(std::string_view utf8) {
    std::u16string units;
    for (std::size_t at = 0; at < utf8.size();) {
        char32_t character = NextCharacter(utf8, at);
        if (character == kNoCharacter) {
            character = 0xFFFD;
        }
        if (character >= 0x10000) {
            units += static_cast<char16_t>(0xD7C0 + (character >> 10));
            character = 0xDC00 | (character & 0x3FF);
        }
        units += static_cast<char16_t>(character);
    }
    return units;
}

std::string Utf8FromUtf16(std::u16string_view units) {
    const auto isHalf = [](char16_t unit, char16_t base) { return (unit & 0xFC00) == base; };
    std::string utf8;
    for (std::size_t at = 0; at < units.size(); ++at) {
        char32_t character = units[at];
        if (isHalf(units[at], 0xD800) && at + 1 < units.size() && isHalf(units[at + 1], 0xDC00)) {
            character = 0x10000 + ((character & 0x3FF) << 10) + (units[++at] & 0x3FFu);
        }
        AppendUtf8(utf8, character);
    }
    return utf8;
}

std::u16string UnitsFromBytes(std::string bytes, bool bigEndian) {
    if (bytes.size() % 2 != 0) {
        bytes += '\0';
    }
    std::u16string units(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < units.size(); ++i) {
        const auto first = static_cast<unsigned char>(bytes[2 * i]);
        const auto second = static_cast<unsigned char>(bytes[2 * i + 1]);
        units[i] = static_cast<char16_t>(bigEndian ? first << 8 | second : second << 8 | first);
    }
    return units;
}

std::string BytesFromUnits(std::u16string_view units, bool bigEndian) {
    std::string bytes;
    bytes.reserve(units.size() * 2);
    for (const char16_t unit : units) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

/// A profile file in memory, whatever its encoding.
class ProfileFile {
public:
    explicit ProfileFile(std::string bytes) {
        const auto starts = [&bytes](std::string_view mark) { return bytes.starts_with(mark); };
        if (starts(kLittleEndianMark) || starts(kBigEndianMark)) {
            const bool bigEndian = starts(kBigEndianMark);
            encoding_ = bigEndian ? Encoding::Utf16BigEndian : Encoding::Utf16LittleEndian;
            text_.emplace<Wide>(UnitsFromBytes(bytes.substr(2), bigEndian));
        } else if (starts(kUtf8Mark)) {
            encoding_ = Encoding::Utf8;
            text_.emplace<Narrow>(bytes.substr(kUtf8Mark.size()));
        } else {
            text_.emplace<Narrow>(std::move(bytes));
        }
    }

    /// At most `most` bytes of the value in the ANSI code page, as UTF-8; "" when there is none.
    [[nodiscard]] std::string Find(std::string_view section, std::string_view key,
                                   std::size_t most) const {
        if (const auto* wide = std::get_if<Wide>(&text_)) {
            const auto value = wide->Find(Utf16FromUtf8(Held(section)), Utf16FromUtf8(Held(key)));
            return value ? Cut(AnsiFromUtf8(Utf8FromUtf16(*value)), most) : std::string();
        }
        const auto value = std::get<Narrow>(text_).Find(Encoded(section), Encoded(key));
        if (!value) {
            return {};
        }
        return encoding_ == Encoding::Utf8 ? Cut(AnsiFromUtf8(*value), most) : Cut(*value, most);
    }

    void Set(std::string_view section, std::string_view key, std::string_view value) {
        if (auto* wide = std::get_if<Wide>(&text_)) {
            wide->Set(Utf16FromUtf8(Held(section)), Utf16FromUtf8(Held(key)),
                      Utf16FromUtf8(Held(value)));
        } else {
            std::get<Narrow>(text_).Set(Encoded(section), Encoded(key), Encoded(value));
        }
    }

    /// The whole file; `room` holds what is not there as it stands.
    [[nodiscard]] std::string_view Bytes(std::string& room) const {
        if (const auto* wide = std::get_if<Wide>(&text_)) {
            const bool bigEndian = encoding_ == Encoding::Utf16BigEndian;
            room = std::string(bigEndian ? kBigEndianMark : kLittleEndianMark) +
                   BytesFromUnits(wide->Whole(), bigEndian);
            return room;
        }
        const auto& text = std::get<Narrow>(text_).Whole();
        if (encoding_ == Encoding::Ansi) {
            return text;
        }
        room = std::string(kUtf8Mark) + text;
        return room;
    }

private:
    using Narrow = ProfileText<char>;
    using Wide = ProfileText<char16_t>;

    static std::string Cut(std::string_view ansi, std::size_t most) {
        return Utf8FromAnsi(ansi.substr(0, most));
    }
    /// What the code page cannot hold is lost in every encoding, in names and values alike: the
    /// real functions take and give ANSI texts only.
    [[nodiscard]] static std::string Held(std::string_view utf8) {
        return Utf8FromAnsi(AnsiFromUtf8(utf8));
    }

    [[nodiscard]] std::string Encoded(std::string_view utf8) const {
        return encoding_ == Encoding::Utf8 ? Held(utf8) : AnsiFromUtf8(utf8);
    }

    Encoding encoding_ = Encoding::Ansi;
    std::variant<Narrow, Wide> text_ = Narrow({});
};

} // namespace

struct Reader::State {
    int error = 0;
    ProfileFile file{{}};
};

Reader::Reader(const std::string& path) : state_(std::make_unique<State>()) {
    std::string bytes;
    state_->error = Load(path, bytes);
    if (state_->error == 0) {
        state_->file = ProfileFile(std::move(bytes));
    }
}

Reader::~Reader() = default;

ReadResult Reader::Read(std::string_view section, std::string_view key, std::size_t size) const {
    return {state_->file.Find(section, key, size == 0 ? 0 : size - 1), state_->error};
}

struct Update::State {
    std::string path;
    int error = 0; ///< why nothing can be written
    bool written = false;
    ProfileFile file{{}};
};

Update::Update(const std::string& path) : state_(std::make_unique<State>()) {
    state_->path = path;
    state_->error = WriteObstacle(path);
    if (state_->error != 0) {
        return;
    }
    std::string bytes;
    const int error = Load(path, bytes);
    if (error != 0 && error != ENOENT) {
        state_->error = error;
    } else {
        state_->file = ProfileFile(std::move(bytes));
    }
}

Update::~Update() = default;

int Update::Write(std::string_view section, std::string_view key, std::string_view value) {
    if (state_->error == 0) {
        state_->file.Set(section, key, value);
        state_->written = true;
    }
    return state_->error;
}

int Update::Commit() {
    if (!state_->written) {
        return 0;
    }
    FileReplacement replacement;
    int error = replacement.Open(state_->path);
    if (error == 0) {
        std::string room;
        error = replacement.Write(state_->file.Bytes(room));
    }
    if (error == 0) {
        error = replacement.Commit();
    }
    state_->written = error != 0;
    return error;
}

} // namespace platform::profile
