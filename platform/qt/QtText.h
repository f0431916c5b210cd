// Between the program's texts (Windows-1252) and the toolkit's. All 256 byte values survive the round trip.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

namespace kontorwerk {

// Byte for byte, line breaks as they are.
[[nodiscard]] QString ToQt(std::string_view text);
// With a single line feed for each CR LF, as labels and boxes want it.
[[nodiscard]] QString ToQtLines(std::string_view text);
// Nothing if a character is not in Windows-1252.
[[nodiscard]] std::optional<std::string> FromQt(const QString& text);
// The same with CR LF for each line feed.
[[nodiscard]] std::optional<std::string> FromQtLines(const QString& text);
// The characters of `text` that Windows-1252 lacks, each once; empty if the text can be kept.
[[nodiscard]] QString ForeignCharacters(const QString& text);

}  // namespace kontorwerk
