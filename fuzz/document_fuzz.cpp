// A hostile settings document: what was read is written, read again and written again; from then on
// nothing changes any more.
#include "document/document.h"
#include "fuzz/fuzz_file.h"
#include "platform/message.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

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
    modINIDocument::WriteDocument();
    // A list of which one text holds a comma may come back longer, and be refused for it.
    if (!Read()) {
        return 0;
    }
    modINIDocument::WriteDocument();
    if (!Read()) {
        return 0;
    }
    const std::string settled = Bytes(file.Path());
    modINIDocument::WriteDocument();
    if (Bytes(file.Path()) != settled) {
        std::abort();
    }
    return 0;
}
