// Most of a table is passed over in blocks: only where the two characters of the pattern that German records hold least
// stand at the right distance is the pattern compared.
#include "store/CaseBlindPattern.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

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

}  // namespace

// Upper and lower case differ in few bits: with those set, both are one byte, and few others with them.
CaseBlindPattern::Probe::Probe(std::string_view pattern, std::size_t probedPlace) : place(probedPlace) {
  const auto upper = static_cast<unsigned char>(pattern[place]);
  const auto lower = static_cast<unsigned char>(LCase(pattern.substr(place, 1))[0]);
  caseBits = upper ^ lower;
  value = upper | caseBits;
}

CaseBlindPattern::CaseBlindPattern(std::string_view pattern) : pattern_(UCase(pattern)) {
  if (pattern_.empty()) return;
  std::size_t rarest = 0;
  std::size_t second = pattern_.size() - 1;
  for (std::size_t i = 1; i < pattern_.size(); ++i) {
    if (Rarity(pattern_[i]) > Rarity(pattern_[rarest])) {
      second = std::exchange(rarest, i);
    } else if (Rarity(pattern_[i]) > Rarity(pattern_[second])) {
      second = i;
    }
  }
  first_ = Probe(pattern_, rarest);
  second_ = Probe(pattern_, second);
}

bool CaseBlindPattern::MatchesAt(const char* place) const {
  const CaseTable& upper = UpperCase();
  for (std::size_t i = 0; i < pattern_.size(); ++i)
    if (upper[static_cast<unsigned char>(place[i])] != pattern_[i]) return false;
  return true;
}

std::size_t CaseBlindPattern::FindInBlock(const char* block) const {
  const Probe first = first_;
  const Probe second = second_;
  const char* const firstPlaces = block + first.place;
  const char* const secondPlaces = block + second.place;
  // Where both probes fit: a loop without a branch, so that the compiler takes many bytes at a time.
  std::array<unsigned char, kBlock> marks;
  unsigned char any = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    marks[i] = static_cast<unsigned char>(static_cast<unsigned>(first.Fits(firstPlaces[i])) &
                                          static_cast<unsigned>(second.Fits(secondPlaces[i])));
    any |= marks[i];
  }
  for (std::size_t i = 0; any != 0 && i < kBlock; ++i) {
    const void* mark = std::memchr(marks.data() + i, 1, kBlock - i);
    if (mark == nullptr) return kBlock;
    i = static_cast<std::size_t>(static_cast<const unsigned char*>(mark) - marks.data());
    if (MatchesAt(block + i)) return i;
  }
  return kBlock;
}

std::size_t CaseBlindPattern::FindIn(std::string_view text, std::size_t from) const {
  if (from > text.size() || text.size() - from < pattern_.size()) return kNotFound;
  if (pattern_.empty()) return from;
  const std::size_t end = text.size() - pattern_.size() + 1;  // behind the last place at which the pattern can begin
  std::size_t place = from;
  for (; place + kBlock <= end; place += kBlock)
    if (const std::size_t found = FindInBlock(text.data() + place); found < kBlock) return place + found;
  for (; place < end; ++place)
    if (MatchesAt(text.data() + place)) return place;
  return kNotFound;
}

}  // namespace kontorwerk
