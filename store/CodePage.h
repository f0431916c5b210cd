// Windows-1252 to UTF-8 and back, for the edges of the program: file names of the operating system and
// the operator's input and output. All 256 byte values survive the round trip.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kontorwerk {

[[nodiscard]] std::string ToUtf8(std::string_view windows1252);
// Nothing if `utf8` is malformed or holds a character that Windows-1252 lacks.
[[nodiscard]] std::optional<std::string> FromUtf8(std::string_view utf8);

}  // namespace kontorwerk
