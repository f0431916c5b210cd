// What the control centre reminds of: articles below their minimum stock and open documents that have grown old.
#pragma once

#include <string>
#include <string_view>

#include "store/Dates.h"

namespace kontorwerk {

// Articles of the stock table whose quantity lies below their minimum. A number text that is no number counts as 0;
// an article without a minimum is never counted. Of articles kept as single pieces, the rows are counted
// instead of the quantity, and the article counts once. One pass over the text, one more where single
// pieces fall short; never quadratic.
[[nodiscard]] int CountArticlesBelowMinimum(std::string_view stockText);

struct OpenDocumentFigures {
  int total = 0;  // non-empty lines
  int old = 0;    // 30 days or more and not reminded of within the last 30 days; may be too low, see the source
};
[[nodiscard]] OpenDocumentFigures CountOpenDocuments(std::string_view openDocumentsText, const Date& today);

// "3 offene Belege"
[[nodiscard]] std::string OpenDocumentCaption(int total);
// "1 offenen Beleg gefunden, ..." or "2 offene Belege gefunden, ...", for one or more.
[[nodiscard]] std::string OldDocumentReminder(int old);

}  // namespace kontorwerk
