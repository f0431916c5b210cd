#include "shell/Reminders.h"

#include <optional>
#include <unordered_map>

#include "receivables/OpenDocumentRecords.h"
#include "shell/SeenNumbers.h"
#include "stock/StockRecords.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr int kOldAfterDays = 30;


double NumberOrZero(std::string_view text) { return ToNumber(text).value_or(0); }

using RowCounts = std::unordered_map<std::string_view, int>;

RowCounts CountRowsByArticle(std::string_view stockText) {
  RowCounts counts;
  ForEachRow(stockText, [&counts](std::string_view row) { ++counts[RecordField(row, kStockArtNr)]; });
  return counts;
}

// The articles kept as single pieces whose rows fall short, each reported once.
class SinglePieces {
 public:
  explicit SinglePieces(std::string_view stockText) : stockText_(stockText) {}

  [[nodiscard]] bool FallsShort(std::string_view article, double minimum) {
    // Kept: the list of articles met so far is one text without separators and is searched as such, so that
    // "ABC1" passes for met once "XABC12" was. The figure has to agree with that of older versions.
    if (met_.Contains(article)) return false;
    if (!counts_) counts_ = CountRowsByArticle(stockText_);
    if (counts_->at(article) >= minimum) return false;
    met_.Append(article);
    return true;
  }

 private:
  std::string_view stockText_;
  std::optional<RowCounts> counts_;
  SeenNumbers met_;
};

// Days since the date of a column; nothing for a text that is no date.
std::optional<long> DaysSince(std::string_view dateText, const Date& today) {
  const std::optional<Date> date = ParseDate(dateText);
  return date ? std::optional(DaysBetween(*date, today)) : std::nullopt;
}

// The date of the last reminder where the three columns are filled from the first on without a gap.
std::string_view LastReminder(std::string_view row) {
  const std::string_view first = RecordField(row, kOpenMD1);
  if (first.empty()) return {};
  const std::string_view second = RecordField(row, kOpenMD2);
  const std::string_view third = RecordField(row, kOpenMD3);
  if (second.empty()) return third.empty() ? first : std::string_view();
  return third.empty() ? second : third;
}

}  // namespace

int CountArticlesBelowMinimum(std::string_view stockText) {
  int count = 0;
  SinglePieces singlePieces(stockText);
  ForEachRow(stockText, [&](std::string_view row) {
    const std::string_view minimumText = RecordField(row, kStockMindestMenge);
    if (minimumText.empty()) return;
    const double minimum = NumberOrZero(minimumText);
    if (NumberOrZero(RecordField(row, kStockLagerbestand)) >= minimum) return;
    const bool counts = !IsSingleItem(row) || singlePieces.FallsShort(RecordField(row, kStockArtNr), minimum);
    if (counts) ++count;
  });
  return count;
}

OpenDocumentFigures CountOpenDocuments(std::string_view openDocumentsText, const Date& today) {
  OpenDocumentFigures figures;
  ForEachRow(openDocumentsText, [&](std::string_view row) {
    ++figures.total;
    const std::optional<long> age = DaysSince(RecordField(row, kOpenDatum), today);
    if (age && *age >= kOldAfterDays) ++figures.old;
    // Kept: a document reminded of lately is taken out again even where it was never old itself, so that the
    // figure can fall below the true one. The users know the reminder with this figure.
    const std::optional<long> sinceReminder = DaysSince(LastReminder(row), today);
    if (sinceReminder && *sinceReminder < kOldAfterDays) --figures.old;
  });
  return figures;
}

std::string OpenDocumentCaption(int total) { return Concat(std::to_string(total), " offene Belege"); }

std::string OldDocumentReminder(int old) {
  if (old == 1) return std::string("1 offenen Beleg gefunden, der älter als 30 Tage ist!"_t);
  return Concat(std::to_string(old), " offene Belege gefunden, die älter als 30 Tage sind!"_t);
}

}  // namespace kontorwerk
