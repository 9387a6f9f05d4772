// A hostile INI file: read, changed and read again, nothing but the written key may differ.
//
// The first byte chooses what is written; the rest is the file.
#include "fuzz/fuzz_file.h"
#include "platform/profile.h"

#include <array>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 3> kSections{"Main", "ServerPairs", "New"};
constexpr std::array<std::string_view, 4> kKeys{"Key", "FromServer", "other key", "Key2"};
constexpr std::array<std::string_view, 3> kValues{"value", "a,b,c", "\xC3\xBC"};
constexpr std::size_t kSize = 9999;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const unsigned choice = data[0];
    const std::string_view section = kSections[choice % 3];
    const std::string_view key = kKeys[choice / 3 % 4];
    const std::string_view value = kValues[choice / 12 % 3];
    const fuzz::File file(data + 1, size - 1);

    const platform::profile::Reader before(file.Path());
    {
        platform::profile::Update update(file.Path());
        Require(update.Write(section, key, value) == 0);
        Require(update.Commit() == 0);
    }
    const platform::profile::Reader after(file.Path());
    Require(after.Read(section, key, kSize).value == value);
    for (const std::string_view otherSection : kSections) {
        for (const std::string_view otherKey : kKeys) {
            if (otherSection != section || otherKey != key) {
                Require(after.Read(otherSection, otherKey, kSize).value ==
                        before.Read(otherSection, otherKey, kSize).value);
            }
        }
    }
    for (const std::size_t small : {std::size_t{1}, std::size_t{2}, std::size_t{5}}) {
        Require(after.Read(section, key, small).value.size() <= small - 1 + value.size());
    }
    return 0;
}
