// Which lines of a table hold a text, upper and lower case alike: the search behind every search screen of the
// partners. It looks at the raw lines, separators included, and never copies the table.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "store/RecordStore.h"

namespace kontorwerk {

// A text made ready to be looked for many times.
class FoldedText {
 public:
  explicit FoldedText(std::string_view text);

  [[nodiscard]] bool Empty() const { return lower_.empty(); }
  // True if the text holds a part of a line end, so that a place found in a whole table may cross one.
  [[nodiscard]] bool HoldsLineEnd() const { return lower_.find_first_of("\r\n") != std::string::npos; }
  // The first place in `text` at or behind `from`, npos without one.
  [[nodiscard]] std::size_t FindIn(std::string_view text, std::size_t from = 0) const;

 private:
  // A character of the text in both its cases.
  struct Letter {
    char lower;
    char upper;
    [[nodiscard]] bool Is(char c) const { return c == lower || c == upper; }
  };

  [[nodiscard]] bool Matches(const char* place) const;
  // False if the text begins nowhere in the block, whose bytes and as many behind them as the text has are readable.
  [[nodiscard]] bool BlockMayHold(const char* block) const;

  std::string lower_;
  std::vector<Letter> letters_;
};

// Calls `visit(line)` for each line that holds `searchText`, blank lines left out; an empty text is in every line.
template <typename Visit>
void ForEachLineWith(std::string_view table, std::string_view searchText, Visit&& visit) {
  const FoldedText wanted(searchText);
  if (wanted.Empty() || wanted.HoldsLineEnd()) {
    ForEachRow(table, [&](std::string_view line) {
      if (wanted.Empty() || wanted.FindIn(line) != std::string_view::npos) visit(line);
    });
    return;
  }
  for (std::size_t hit = wanted.FindIn(table); hit != std::string_view::npos;) {
    const std::size_t before = table.rfind("\r\n", hit);
    const std::size_t begin = before == std::string_view::npos ? 0 : before + 2;
    const std::size_t end = table.find("\r\n", hit);
    visit(table.substr(begin, end == std::string_view::npos ? end : end - begin));
    if (end == std::string_view::npos) return;
    hit = wanted.FindIn(table, end + 2);
  }
}

}  // namespace kontorwerk
