#include "stock/CaseBlindPattern.h"

#include <algorithm>

#include "store/Text.h"

namespace kontorwerk {

namespace {

// The upper case of every byte, taken from the one rule for letters.
std::array<unsigned char, 256> UpperCaseTable() {
  std::string all(256, '\0');
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<char>(i);
  const std::string upper = UCase(all);
  std::array<unsigned char, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = static_cast<unsigned char>(upper[i]);
  return table;
}

}  // namespace

CaseBlindPattern::CaseBlindPattern(std::string_view pattern) : pattern_(UCase(pattern)), upper_(UpperCaseTable()) {
  skip_.fill(pattern_.size());
  for (std::size_t byte = 0; byte < skip_.size(); ++byte)
    for (std::size_t i = 0; i + 1 < pattern_.size(); ++i)
      if (upper_[byte] == static_cast<unsigned char>(pattern_[i])) skip_[byte] = pattern_.size() - 1 - i;
}

bool CaseBlindPattern::MatchesAt(const unsigned char* place) const {
  return std::equal(pattern_.begin(), pattern_.end(), place, [this](char wanted, unsigned char found) {
    return static_cast<unsigned char>(wanted) == upper_[found];
  });
}

std::size_t CaseBlindPattern::FindIn(std::string_view text, std::size_t from) const {
  if (from > text.size() || text.size() - from < pattern_.size()) return kNotFound;
  if (pattern_.empty()) return from;
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  const std::size_t last = pattern_.size() - 1;
  const auto wanted = static_cast<unsigned char>(pattern_[last]);
  for (std::size_t place = from; place + last < text.size();) {
    const unsigned char end = bytes[place + last];
    if (upper_[end] == wanted && MatchesAt(bytes + place)) return place;
    place += skip_[end];
  }
  return kNotFound;
}

}  // namespace kontorwerk
