#include "shell/SeenNumbers.h"

#include <functional>
#include <utility>

namespace kontorwerk {
namespace {

constexpr std::size_t kFirstSlots = 64;

}  // namespace

bool SeenNumbers::Contains(std::string_view number) {
  if (number.empty()) return !text_.empty();
  if (number.size() > text_.size()) return false;
  Pieces& pieces = piecesByLength_[number.size()];
  EnterNewPieces(pieces, number.size());
  return pieces.slots[SlotOf(pieces, number)] != 0;
}

void SeenNumbers::Append(std::string_view number) { text_.append(number); }

// The slot that holds the piece, or the free one where it belongs.
std::size_t SeenNumbers::SlotOf(const Pieces& pieces, std::string_view piece) const {
  const std::size_t mask = pieces.slots.size() - 1;
  std::size_t slot = std::hash<std::string_view>{}(piece)&mask;
  while (pieces.slots[slot] != 0 && text_.compare(pieces.slots[slot] - 1, piece.size(), piece) != 0)
    slot = (slot + 1) & mask;
  return slot;
}

void SeenNumbers::Grow(Pieces& pieces, std::size_t length) const {
  const std::vector<std::uint32_t> old = std::exchange(
      pieces.slots, std::vector<std::uint32_t>(pieces.slots.empty() ? kFirstSlots : pieces.slots.size() * 2, 0));
  for (const std::uint32_t entry : old)
    if (entry != 0) pieces.slots[SlotOf(pieces, std::string_view(text_).substr(entry - 1, length))] = entry;
}

void SeenNumbers::EnterNewPieces(Pieces& pieces, std::size_t length) const {
  for (; pieces.nextStart + length <= text_.size(); ++pieces.nextStart) {
    if ((pieces.used + 1) * 2 > pieces.slots.size()) Grow(pieces, length);
    std::uint32_t& entry = pieces.slots[SlotOf(pieces, std::string_view(text_).substr(pieces.nextStart, length))];
    if (entry != 0) continue;
    entry = static_cast<std::uint32_t>(pieces.nextStart + 1);
    ++pieces.used;
  }
}

}  // namespace kontorwerk
