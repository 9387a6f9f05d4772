// A hostile settings document: what was read is written, read again and written again, and in the
// end nothing changes any more. Quotes within quotes take a round for each pair.
#include "document/document.h"
#include "fuzz/fuzz_file.h"
#include "platform/message.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

namespace {

std::string Bytes(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

bool Read() {
    modINIDocument::ResetDocument();
    try {
        modINIDocument::ReadDocument();
        return true;
    } catch (const modINIDocument::DamagedList&) {
        return false; // the one way in which a document may be refused
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    platform::SetMessageHandler([](const platform::Message&) { return platform::Answer::Ok; });
    const fuzz::File file(data, size);
    modINIDocument::g_Document = {};
    modINIDocument::g_strINIFilePath = file.Path();
    if (!Read()) {
        return 0;
    }
    std::string before;
    std::string now = Bytes(file.Path());
    for (std::size_t round = 0; now != before; ++round) {
        if (round > size / 2 + 3) {
            std::abort();
        }
        modINIDocument::WriteDocument();
        // A list of which one text holds a comma may come back longer, and be refused for it.
        if (!Read()) {
            return 0;
        }
        before = std::exchange(now, Bytes(file.Path()));
    }
    return 0;
}
