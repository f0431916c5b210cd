// A draft's own file: an unfinished document, one value a line. Which number it bears and how the register knows it is
// told in Drafts.
#pragma once

#include <string>
#include <string_view>

#include "documents/DocumentRecord.h"

namespace kontorwerk {

struct Draft {
  DocumentRecord document;  // `kindWord` and `LieferscheinNr` are no part of a draft
  int selectorPlace = 0;
};

// The file's text, each line with its end: number of rows, customer number, address, number, date, references, place
// of the selector (a saved delivery note or invoice as the open place), the two options, all rows of seven lines each,
// amounts, closing texts, salutation. Line breaks in a value become marks.
[[nodiscard]] std::string DraftText(const Draft& draft);

// The draft of a file's text in the present and the two older forms ("short", "large": 12 or 17 rows of four lines,
// customer number behind `Betrag`, no `MWST2`). An empty text gives empty values and no rows. Like a record line it has
// no quoting: a value that holds the separator of fields moves the later ones.
[[nodiscard]] Draft ReadDraft(std::string_view text);

}  // namespace kontorwerk
