// The search looks at blocks of the table first: only a block in which the text's first and last character stand at the
// right distance is looked at closely. The loop over a block has no branch, so that the compiler takes many bytes at
// a time.
#include "partners/LineSearch.h"

#include <algorithm>

#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr std::size_t kBlock = 64;

}  // namespace

FoldedText::FoldedText(std::string_view text) : lower_(LCase(text)) {
  const std::string upper = UCase(lower_);
  letters_.reserve(lower_.size());
  for (std::size_t i = 0; i < lower_.size(); ++i) letters_.push_back({lower_[i], upper[i]});
}

bool FoldedText::Matches(const char* place) const {
  for (const Letter& letter : letters_)
    if (!letter.Is(*place++)) return false;
  return true;
}

bool FoldedText::BlockMayHold(const char* block) const {
  const Letter first = letters_.front();
  const Letter last = letters_.back();
  const char* const tail = block + letters_.size() - 1;
  unsigned char any = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const unsigned char begins = (block[i] == first.lower) | (block[i] == first.upper);
    const unsigned char ends = (tail[i] == last.lower) | (tail[i] == last.upper);
    any = static_cast<unsigned char>(any | (begins & ends));
  }
  return any != 0;
}

std::size_t FoldedText::FindIn(std::string_view text, std::size_t from) const {
  if (letters_.empty()) return from < text.size() ? from : std::string_view::npos;
  if (text.size() < letters_.size()) return std::string_view::npos;
  const std::size_t end = text.size() - letters_.size() + 1;  // behind the last place at which the text can begin
  for (std::size_t place = from; place < end;) {
    const std::size_t stop = std::min(place + kBlock, end);
    if (stop - place == kBlock && !BlockMayHold(text.data() + place)) {
      place = stop;
      continue;
    }
    for (; place < stop; ++place)
      if (letters_.front().Is(text[place]) && Matches(text.data() + place)) return place;
  }
  return std::string_view::npos;
}

}  // namespace kontorwerk
