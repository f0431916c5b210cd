// A growing text of numbers written one behind the other, with the question whether a number occurs in it anywhere,
// also across two neighbours. Gives what a plain search in that text gives, without searching it: all pieces of
// each length that was asked for are kept in a hash table.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

class SeenNumbers {
 public:
  // True if `number` is a part of the text; an empty number is a part of every text but the empty one.
  [[nodiscard]] bool Contains(std::string_view number);
  void Append(std::string_view number);
  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  // Starts of all pieces of one length within the text, hashed by their content; a power of two of slots, at most half
  // used.
  struct Pieces {
    std::vector<std::uint32_t> slots;  // start + 1, 0 for a free slot
    std::size_t used = 0;
    std::size_t nextStart = 0;  // the first start that is not entered yet
  };

  [[nodiscard]] std::size_t SlotOf(const Pieces& pieces, std::string_view piece) const;
  void Grow(Pieces& pieces, std::size_t length) const;
  void EnterNewPieces(Pieces& pieces, std::size_t length) const;

  std::string text_;
  std::map<std::size_t, Pieces> piecesByLength_;
};

}  // namespace kontorwerk
