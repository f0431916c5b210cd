// Goes once through a rich text and tells a listener what a reader of the page would see: characters and breaks, each
// with its place in the file, separated into the streams in which text runs (body, page headers and footers, text
// frames, footnotes). Tables of fonts and styles, pictures and other hidden matter are passed over.
#pragma once

#include "platform/word/FieldValues.h"
#include "platform/word/RtfTokenizer.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kontorwerk {

struct RtfCharacter {
  char byte = 0;          // Windows-1252; 0 for a character that it lacks
  std::size_t begin = 0;  // where the character is written in the file, its substitutes for old readers included
  std::size_t end = 0;
  bool followsOpenWord = false;  // a control word without a blank of its own ends where this character begins
};

enum class RtfBreak { Paragraph, Line, Cell, Row, Tab };

class RtfListener {
 public:
  virtual ~RtfListener() = default;
  // A stream inside the present one; `repeats` if it says the same as another stream, for readers of another kind.
  virtual void StreamStart(TextArea area, bool repeats) = 0;
  // Back to the stream around.
  virtual void StreamEnd() = 0;
  virtual void Character(const RtfCharacter& character) = 0;
  virtual void Break(RtfBreak kind) = 0;
};

class RtfWalker {
 public:
  RtfWalker(std::string_view rtf, RtfListener& listener) : rtf_(rtf), listener_(listener) {}
  // Walks the whole file; linear in its size, whatever the bytes are.
  void Walk();

 private:
  struct Group {
    std::uint8_t substitutes = 1;  // characters behind \u that stand in for it
    bool isStream = false;
  };
  // A character written as \u, held back until its substitutes have passed.
  struct Unicode {
    RtfCharacter character;
    bool isOpen = false;
    bool isShown = true;
    int substitutesLeft = 0;
  };

  void Handle(const RtfToken& token);
  void StartGroup();
  void EndGroup();
  void HandleWord(const RtfToken& token);
  [[nodiscard]] bool HandleDestination(std::string_view word, bool isOptional);
  [[nodiscard]] bool HandleSymbolWord(const RtfToken& token);
  void HandleSymbol(const RtfToken& token);
  void HandleText(const RtfToken& token);
  void HandleUnicode(const RtfToken& token);
  void OpenStream(TextArea area, bool repeats);
  void SkipGroup();
  [[nodiscard]] bool TakeSubstitute(std::size_t end);
  void Flush();
  void Show(char byte, std::size_t begin, std::size_t end);

  std::string_view rtf_;
  RtfListener& listener_;
  std::vector<Group> groups_;
  std::vector<TextArea> streams_;
  Unicode unicode_;
  std::size_t skippedDepth_ = 0;  // groups open inside a skipped one, itself included; 0 while nothing is skipped
  bool optionalNext_ = false;     // \* stood directly before
  std::size_t openWordEnd_ = static_cast<std::size_t>(-1);
};

}  // namespace kontorwerk
