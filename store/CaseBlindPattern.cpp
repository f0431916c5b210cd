// The scan looks for one character of the pattern only, the one that German records hold least.
#include "store/CaseBlindPattern.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "store/Text.h"

namespace kontorwerk {

namespace {

using CaseTable = std::array<char, 256>;

// The upper case of every byte, taken from the one rule for letters.
const CaseTable& UpperCase() {
  static const CaseTable kTable = [] {
    std::string all(256, '\0');
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<char>(i);
    const std::string upper = UCase(all);
    CaseTable table{};
    std::copy(upper.begin(), upper.end(), table.begin());
    return table;
  }();
  return kTable;
}

// What German records are full of, the commonest first; anything else is rarer.
constexpr std::string_view kCommonCharacters = "',0ENI1SR2 ATDHU5LCG3MOBWFKZ46789PV.-/_*";

std::size_t Rarity(char upper) { return std::min(kCommonCharacters.find(upper), kCommonCharacters.size()); }

// The scan goes block by block, so that a letter that is common in one case and missing in the other costs no more
// than the block where the common one stands.
constexpr std::size_t kBlock = 1024;

std::size_t PlaceIn(std::string_view block, char c) {
  const void* found = std::memchr(block.data(), static_cast<unsigned char>(c), block.size());
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - block.data()) : block.size();
}

}  // namespace

CaseBlindPattern::CaseBlindPattern(std::string_view pattern) : pattern_(UCase(pattern)) {
  if (pattern_.empty()) return;
  for (std::size_t i = 1; i < pattern_.size(); ++i)
    if (Rarity(pattern_[i]) > Rarity(pattern_[anchor_])) anchor_ = i;
  anchorUpper_ = pattern_[anchor_];
  anchorLower_ = LCase(pattern_.substr(anchor_, 1))[0];
}

bool CaseBlindPattern::MatchesAt(const char* place) const {
  const CaseTable& upper = UpperCase();
  for (std::size_t i = 0; i < pattern_.size(); ++i)
    if (upper[static_cast<unsigned char>(place[i])] != pattern_[i]) return false;
  return true;
}

std::size_t CaseBlindPattern::FindIn(std::string_view text, std::size_t from) const {
  if (from > text.size() || text.size() - from < pattern_.size()) return kNotFound;
  if (pattern_.empty()) return from;
  // Where the anchor of an occurrence may lie.
  const std::size_t end = text.size() - (pattern_.size() - 1 - anchor_);
  for (std::size_t begin = from + anchor_; begin < end;) {
    const std::string_view block = text.substr(begin, std::min(kBlock, end - begin));
    std::size_t upper = PlaceIn(block, anchorUpper_);
    std::size_t lower = anchorLower_ == anchorUpper_ ? block.size() : PlaceIn(block, anchorLower_);
    while (std::min(upper, lower) < block.size()) {
      std::size_t& next = upper < lower ? upper : lower;
      const std::size_t place = begin + next - anchor_;
      if (MatchesAt(text.data() + place)) return place;
      ++next;
      next += PlaceIn(block.substr(next), &next == &upper ? anchorUpper_ : anchorLower_);
    }
    begin += block.size();
  }
  return kNotFound;
}

}  // namespace kontorwerk
