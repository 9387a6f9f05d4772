// Which profile functions the tests meet.
#pragma once

#include <string>
#include <string_view>

namespace test {

/// True when the platform's profile functions are those of Wine.
bool IsWine();

/// What a file with these bytes looks like after a write by the platform's profile functions. Ours
/// keep all bytes that no write touches. Wine's rewrite the whole file: names and values lose the
/// blanks around them and, with them, a value of one blank; lines that hold nothing vanish; all
/// lines end with CR LF.
std::string AsStored(std::string_view bytes);

} // namespace test
