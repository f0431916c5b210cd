// A colour as the record files hold it: red + 256 * green + 65536 * blue.
#pragma once

#include <string>

namespace kontorwerk {

struct Colour {
  int value = 0;

  [[nodiscard]] constexpr int Red() const { return value & 0xFF; }
  [[nodiscard]] constexpr int Green() const { return (value >> 8) & 0xFF; }
  [[nodiscard]] constexpr int Blue() const { return (value >> 16) & 0xFF; }
  // "#rrggbb"
  [[nodiscard]] std::string HexText() const;
  friend constexpr bool operator==(Colour, Colour) = default;
};

inline constexpr Colour kWhite{16777215};
// The warning colour of short texts and shortfalls.
inline constexpr Colour kWarning{0x1C2BC4};

}  // namespace kontorwerk
