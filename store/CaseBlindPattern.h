// A plain text that is looked for in the bytes of a table without regard to case: the search behind every search
// screen. It looks at the raw rows, separators included. Prepared once, it walks a table in one pass and copies
// nothing, so that a search over a long table costs little more than reading it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "store/Text.h"

namespace kontorwerk {

class CaseBlindPattern {
 public:
  static constexpr std::size_t kNotFound = std::string_view::npos;

  explicit CaseBlindPattern(std::string_view pattern);

  // Place of the first occurrence in `text` from the byte `from` on. The empty pattern is found everywhere.
  [[nodiscard]] std::size_t FindIn(std::string_view text, std::size_t from = 0) const;
  [[nodiscard]] bool OccursIn(std::string_view text) const { return FindIn(text) != kNotFound; }
  [[nodiscard]] bool IsEmpty() const { return pattern_.empty(); }
  [[nodiscard]] std::size_t Length() const { return pattern_.size(); }

 private:
  // One character of the pattern, looked for in both its cases at once.
  struct Probe {
    Probe() = default;
    Probe(std::string_view pattern, std::size_t probedPlace);
    // True for both cases, and for few other bytes.
    [[nodiscard]] bool Fits(char c) const {
      return static_cast<unsigned char>(static_cast<unsigned char>(c) | caseBits) == value;
    }

    std::size_t place = 0;  // within the pattern
    unsigned char caseBits = 0;
    unsigned char value = 0;
  };

  static constexpr std::size_t kBlock = 128;

  [[nodiscard]] bool MatchesAt(const char* place) const;
  // The first place within the block at which the pattern begins, kBlock without one. The text goes on behind the block
  // for the pattern's length.
  [[nodiscard]] std::size_t FindInBlock(const char* block) const;

  std::string pattern_;  // upper case
  // The two characters of the pattern that a table is likely to hold least; the same one twice in a pattern of one.
  Probe first_;
  Probe second_;
};

// Calls `visit(row)` for each row of the table's text that holds the pattern, in order, blank rows left out.
template <typename Visit>
void ForEachRowWith(std::string_view text, const CaseBlindPattern& pattern, Visit&& visit) {
  std::size_t place = 0;
  while (place < text.size()) {
    const std::size_t hit = pattern.FindIn(text, place);
    if (hit == CaseBlindPattern::kNotFound) return;
    const std::size_t before = hit == 0 ? std::string_view::npos : text.rfind(kLineEnd, hit - 1);
    const std::size_t begin = before == std::string_view::npos ? 0 : before + kLineEnd.size();
    const std::size_t end = std::min(text.find(kLineEnd, begin), text.size());
    // A pattern with a line end in it may lie across two rows; neither of them holds it.
    if (hit < begin || hit + pattern.Length() > end) {
      place = hit + 1;
      continue;
    }
    if (end > begin) visit(text.substr(begin, end - begin));
    place = end + kLineEnd.size();
  }
}

}  // namespace kontorwerk
