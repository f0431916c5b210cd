// Windows-1252 against UTF-8, byte by byte; what Windows-1252 lacks is refused, never turned into something else.
#include "store/CodePage.h"

#include "store/Text.h"

namespace kontorwerk {
namespace {

char32_t CodePointOf(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? detail::kHighCodePoints[byte - 0x80U] : byte;
}

// One character of a UTF-8 text and the number of its bytes; no bytes for what is malformed.
struct Decoded {
  char32_t codePoint = 0;
  std::size_t size = 0;
};

Decoded DecodeFirst(std::string_view utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  if (lead < 0x80) return {lead, 1};
  const std::size_t size = lead >= 0xC2 && lead < 0xE0 ? 2 : lead >= 0xE0 && lead < 0xF0 ? 3 : 0;
  // Four bytes make characters beyond U+FFFF: none of them is in Windows-1252.
  if (size == 0 || utf8.size() < size) return {};
  char32_t codePoint = lead & (size == 2 ? 0x1FU : 0x0FU);
  for (std::size_t i = 1; i < size; ++i) {
    const auto next = static_cast<unsigned char>(utf8[i]);
    if ((next & 0xC0U) != 0x80U) return {};
    codePoint = (codePoint << 6U) | (next & 0x3FU);
  }
  const bool overlong = size == 3 && codePoint < 0x800;
  return overlong ? Decoded{} : Decoded{codePoint, size};
}

}  // namespace

std::string ToUtf8(std::string_view windows1252) {
  std::string result;
  result.reserve(windows1252.size());
  for (const char c : windows1252) {
    const char32_t codePoint = CodePointOf(static_cast<unsigned char>(c));
    if (codePoint < 0x80) {
      result.push_back(c);
    } else if (codePoint < 0x800) {
      result.push_back(static_cast<char>(0xC0U | (codePoint >> 6U)));
      result.push_back(static_cast<char>(0x80U | (codePoint & 0x3FU)));
    } else {
      result.push_back(static_cast<char>(0xE0U | (codePoint >> 12U)));
      result.push_back(static_cast<char>(0x80U | ((codePoint >> 6U) & 0x3FU)));
      result.push_back(static_cast<char>(0x80U | (codePoint & 0x3FU)));
    }
  }
  return result;
}

std::optional<std::string> FromUtf8(std::string_view utf8) {
  std::string result;
  result.reserve(utf8.size());
  while (!utf8.empty()) {
    const Decoded decoded = DecodeFirst(utf8);
    const int byte = decoded.size == 0 ? -1 : detail::ByteOf(decoded.codePoint);
    if (byte < 0) return std::nullopt;
    result.push_back(static_cast<char>(byte));
    utf8.remove_prefix(decoded.size);
  }
  return result;
}

}  // namespace kontorwerk
