#include "platform/Colour.h"

namespace kontorwerk {

std::string Colour::HexText() const {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text = "#";
  for (const int part : {Red(), Green(), Blue()}) {
    text += kDigits[part >> 4];
    text += kDigits[part & 0xF];
  }
  return text;
}

}  // namespace kontorwerk
