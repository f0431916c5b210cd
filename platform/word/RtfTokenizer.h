// Cuts rich text (RTF) into tokens that point back into the file's bytes; nothing is copied and nothing is lost.
// Any byte sequence can be cut: what is not well formed becomes text or a symbol, never an error.
#pragma once

#include <cstddef>
#include <string_view>

namespace kontorwerk {

enum class RtfTokenKind {
  GroupStart,  // {
  GroupEnd,    // }
  Word,        // \word, \word-12, with the one blank that may close it; \bin together with its bytes
  Symbol,      // \ and one character that is no letter
  HexByte,     // \'hh
  Text,        // a run of plain characters
  LineEnd,     // CR and LF, which mean nothing in rich text
};

struct RtfToken {
  RtfTokenKind kind = RtfTokenKind::Text;
  std::size_t begin = 0;  // offsets in the file
  std::size_t end = 0;
  std::string_view word;      // of a Word, without backslash and number
  bool hasNumber = false;     // of a Word
  int number = 0;             // of a Word, 0 without one; of a HexByte the byte
  bool hasDelimiter = false;  // of a Word: closed by a blank of its own
  char symbol = 0;            // of a Symbol; 0 for a backslash at the very end of the file
};

class RtfTokenizer {
 public:
  explicit RtfTokenizer(std::string_view rtf) : rtf_(rtf) {}
  // The next token; false at the end of the file. Every call moves on by at least one byte.
  [[nodiscard]] bool Next(RtfToken& token);

 private:
  void ReadBackslash(RtfToken& token);
  void ReadWord(RtfToken& token);
  void ReadNumber(RtfToken& token);
  [[nodiscard]] bool At(bool (*isKind)(char)) const { return position_ < rtf_.size() && isKind(rtf_[position_]); }

  std::string_view rtf_;
  std::size_t position_ = 0;
};

}  // namespace kontorwerk
