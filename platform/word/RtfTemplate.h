// A rich text (RTF) with marks [Name] or <<Name>> that are filled with values. Everything but the marks stays byte for
// byte as it is. Marks are found wherever a reader sees them as one word, in body, page headers and footers and text
// frames, even where changes of format cut them into pieces. Needs no word processor.
#pragma once

#include "platform/word/FieldValues.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

class RtfTemplate {
 public:
  // True if the bytes are rich text, whatever the file is called.
  [[nodiscard]] static bool IsRtf(std::string_view bytes);
  // `text` (Windows-1252) as it is written inside rich text: never markup. CR LF, CR and LF each break the line, a tab
  // stays a tab, other control characters are left out.
  [[nodiscard]] static std::string Escaped(std::string_view text);

  // Finds the marks; takes any bytes, in time linear in their number.
  explicit RtfTemplate(std::string rtf);

  // The names of the marks of an area as they are written, in the order of the file, each once.
  [[nodiscard]] std::vector<std::string> Names(TextArea area) const;
  // The file with each mark that has a value in its area replaced, in the format of the mark's first character. All
  // marks are replaced in one pass, so that a value that looks like a mark stays what it is. Marks without a value
  // stay.
  [[nodiscard]] std::string Fill(const FieldValues& values) const;

 private:
  friend class MarkFinder;
  struct Mark {
    TextArea area;
    std::string name;
    std::string key;
  };
  // A stretch of the file that belongs to a mark.
  struct Piece {
    std::size_t begin;
    std::size_t end;
    std::size_t mark;
    bool isFirst;          // the value goes here
    bool followsOpenWord;  // a control word in front needs a blank once the piece is gone
  };

  std::string rtf_;
  std::vector<Mark> marks_;
  std::vector<Piece> pieces_;  // in the order of the file, without overlap
};

// The text a reader of the page sees, in Windows-1252 with CR LF: page headers, then the body, then page footers. The
// cells of a table row are separated by tabs; a character that Windows-1252 lacks is a "?".
[[nodiscard]] std::string PlainTextOf(std::string_view rtf);

}  // namespace kontorwerk
