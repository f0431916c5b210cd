// The search goes from place to place by the byte under the text's last character, which skips most of the table.
#include "partners/LineSearch.h"

#include "store/Text.h"

namespace kontorwerk {
namespace {

using Fold = std::array<unsigned char, 256>;

const Fold& LowerCase() {
  static const Fold kFold = [] {
    Fold fold{};
    for (std::size_t byte = 0; byte < fold.size(); ++byte) {
      const char c = static_cast<char>(byte);
      fold[byte] = static_cast<unsigned char>(LCase({&c, 1})[0]);
    }
    return fold;
  }();
  return kFold;
}

}  // namespace

FoldedText::FoldedText(std::string_view text) : lower_(LCase(text)) {
  skip_.fill(lower_.size());
  std::array<std::size_t, 256> ofLower{};
  ofLower.fill(lower_.size());
  for (std::size_t i = 0; i + 1 < lower_.size(); ++i)
    ofLower[static_cast<unsigned char>(lower_[i])] = lower_.size() - 1 - i;
  for (std::size_t byte = 0; byte < skip_.size(); ++byte) skip_[byte] = ofLower[LowerCase()[byte]];
}

std::size_t FoldedText::FindIn(std::string_view text, std::size_t from) const {
  const std::size_t length = lower_.size();
  if (length == 0) return text.empty() ? std::string_view::npos : from;
  const Fold& fold = LowerCase();
  const auto matches = [&](std::size_t place) {
    for (std::size_t i = length; i-- > 0;)
      if (fold[static_cast<unsigned char>(text[place + i])] != static_cast<unsigned char>(lower_[i])) return false;
    return true;
  };
  for (std::size_t place = from; place + length <= text.size();) {
    if (matches(place)) return place;
    place += skip_[static_cast<unsigned char>(text[place + length - 1])];
  }
  return std::string_view::npos;
}

}  // namespace kontorwerk
