// Text as the record files hold it: one byte a character, Windows-1252.
// The small string functions clamp as the rules of the record files assume; none of them ever fails.
// Conversion to and from Unicode lies in store/CodePage.h.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

inline constexpr std::string_view kLineEnd = "\r\n";
// Stands in a record for each line break of a multi-line text.
inline constexpr std::string_view kLineBreakMark = "*__*";

// The first `count` characters; the whole text if it is shorter, empty if `count` is negative.
[[nodiscard]] std::string_view Left(std::string_view text, int count);
// The last `count` characters, clamped like Left.
[[nodiscard]] std::string_view Right(std::string_view text, int count);
// The text from the 1-based character `start` on, at most `count` characters; empty behind the end.
// A start in front of the text means its first character.
[[nodiscard]] std::string_view Mid(std::string_view text, int start, int count);
[[nodiscard]] std::string_view Mid(std::string_view text, int start);
[[nodiscard]] int Len(std::string_view text);
// Upper and lower case of all Windows-1252 letters, umlauts included; "ß" has no upper case.
[[nodiscard]] std::string UCase(std::string_view text);
[[nodiscard]] std::string LCase(std::string_view text);
// 1-based position of the first occurrence of `part` in `text`, 0 if there is none.
// An empty `part` is found at 1, in an empty text at 0.
[[nodiscard]] int InStr(std::string_view text, std::string_view part);
// Every occurrence of `from` replaced, left to right, without looking at the replaced text again.
[[nodiscard]] std::string Replace(std::string_view text, std::string_view from, std::string_view to);
// The pieces between the separators; an empty text has no piece at all. The views live as long as `text`.
[[nodiscard]] std::vector<std::string_view> Split(std::string_view text, std::string_view separator);
// Without blanks (0x20 only) at both ends, at the front, at the end.
[[nodiscard]] std::string_view Trim(std::string_view text);
[[nodiscard]] std::string_view LTrim(std::string_view text);
[[nodiscard]] std::string_view RTrim(std::string_view text);
// `text` with zeros in front up to `length` characters; a text that is as long or longer stays.
[[nodiscard]] std::string PadZeros(std::string_view text, int length);
// All parts joined, for messages: Concat("Kunde ", name, " gelöscht"_t).
template <typename... Parts>
[[nodiscard]] std::string Concat(const Parts&... parts) {
  std::string result;
  result.reserve((std::string_view(parts).size() + ... + 0));
  (result.append(std::string_view(parts)), ...);
  return result;
}

namespace detail {

// The Unicode code points of the bytes 0x80 to 0x9F; the five unassigned bytes stand for themselves.
inline constexpr std::array<char16_t, 32> kHighCodePoints = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// The byte of a code point, or -1 if Windows-1252 has none.
constexpr int ByteOf(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<int>(codePoint);
  for (std::size_t i = 0; i < kHighCodePoints.size(); ++i)
    if (kHighCodePoints[i] == codePoint) return static_cast<int>(0x80 + i);
  return -1;
}

// A UTF-8 literal turned into Windows-1252 at compile time; a character that does not fit does not compile.
template <std::size_t N>
struct LiteralText {
  std::array<char, N> bytes{};
  std::size_t length = 0;

  consteval LiteralText(const char (&utf8)[N]) {  // NOLINT: implicit, as literal operators need it
    std::size_t i = 0;
    while (i + 1 < N) {
      const auto lead = static_cast<unsigned char>(utf8[i]);
      const std::size_t extra = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
      char32_t codePoint = extra == 0 ? lead : lead & (0x3FU >> extra);
      for (std::size_t k = 1; k <= extra; ++k)
        codePoint = (codePoint << 6U) | (static_cast<unsigned char>(utf8[i + k]) & 0x3FU);
      const int byte = ByteOf(codePoint);
      if (byte < 0) throw "this character is not in Windows-1252";
      bytes[length++] = static_cast<char>(byte);
      i += extra + 1;
    }
  }
};

}  // namespace detail

inline namespace literals {
// "Straße"_t: the literal in Windows-1252, with static storage.
template <detail::LiteralText literal>
consteval std::string_view operator""_t() {
  return {literal.bytes.data(), literal.length};
}
}  // namespace literals

}  // namespace kontorwerk
