#include "stock/StockRecords.h"

#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "store/CaseBlindPattern.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kFirstNumberMinusOne = "01000";
constexpr int kNumberDigits = 5;

double NumberOrZero(std::string_view text) { return ToNumber(text).value_or(0); }

}  // namespace

StockRecord::StockRecord(std::string_view row) {
  const std::vector<std::string_view> fields = RecordFields(row);
  fields_.assign(fields.begin(), fields.end());
  if (fields_.size() < kStockColumnCount) fields_.resize(kStockColumnCount);
}

bool StockRecord::SingleItem() const { return IsTrueText((*this)[kStockEinzel]); }

std::string StockRecord::Row() const { return LineBreaksToMarks(RecordLine(fields_)); }

bool IsSingleItem(std::string_view stockRow) { return IsTrueText(RecordField(stockRow, kStockEinzel)); }

std::string NextStockNumber(std::string_view tableText) {
  std::string_view last;
  ForEachRow(tableText, [&](std::string_view row) { last = row; });
  const std::string_view number = last.empty() ? kFirstNumberMinusOne : RecordField(last, kStockLagerNr);
  const double next = NumberOrZero(Right(number, kNumberDigits)) + 1;
  return Concat("#", PadZeros(NumberText(next), kNumberDigits));
}

std::string_view FindStockRow(std::string_view tableText, std::string_view stockNumber) {
  std::string_view found;
  ForEachRow(tableText, [&](std::string_view row) {
    if (found.empty() && RecordField(row, kStockLagerNr) == stockNumber) found = row;
  });
  return found;
}

std::string_view FirstRowOfArticle(std::string_view tableText, std::string_view articleNumber) {
  std::string_view found;
  ForEachRow(tableText, [&](std::string_view row) {
    if (found.empty() && RecordField(row, kStockArtNr) == articleNumber) found = row;
  });
  return found;
}

std::string_view LastRowOfArticle(std::string_view tableText, std::string_view articleNumber) {
  std::string_view found;
  ForEachRow(tableText, [&](std::string_view row) {
    if (RecordField(row, kStockArtNr) == articleNumber) found = row;
  });
  return found;
}

bool ReplaceStockRecord(RecordStore& store, const StockRecord& record) {
  return store.RewriteTable(table::kStock, BlankRows::Keep, [&](std::string_view row) {
    if (RecordField(row, kStockLagerNr) != record[kStockLagerNr]) return RowChange::Keep();
    return RowChange::Replace(record.Row());
  });
}

bool RemoveStockRecord(RecordStore& store, std::string_view stockNumber) {
  return store.RewriteTable(table::kStock, BlankRows::Keep, [&](std::string_view row) {
    return RecordField(row, kStockLagerNr) == stockNumber ? RowChange::Remove() : RowChange::Keep();
  });
}

bool RewriteMinimum(RecordStore& store, std::string_view articleNumber, std::string_view minimum,
                    std::string_view target, std::string_view status) {
  return store.RewriteTable(table::kStock, BlankRows::Keep, [&](std::string_view row) {
    if (RecordField(row, kStockArtNr) != articleNumber) return RowChange::Keep();
    StockRecord record(row);
    record[kStockMindestMenge] = minimum;
    record[kStockSollMenge] = target;
    record[kStockEinzel] = TickText(record.SingleItem());
    record[kStockStatus] = status;
    return RowChange::Replace(record.Row());
  });
}

bool MatchesQuery(std::string_view stockRow, const StockQuery& query) {
  const auto holds = [&](int column, std::string_view term) {
    return CaseBlindPattern(term).OccursIn(RecordField(stockRow, column));
  };
  if (query.stockNumber.starts_with('#')) return holds(kStockLagerNr, query.stockNumber);
  if (!query.category.empty() || !query.digits.empty())
    return holds(kStockArtNr, query.category) && holds(kStockArtNr, query.digits);
  return CaseBlindPattern(query.freeText).OccursIn(stockRow);
}

std::vector<std::string_view> FindStockRows(std::string_view tableText, const StockQuery& query) {
  std::vector<std::string_view> rows;
  const auto collect = [&](std::string_view row) { rows.push_back(row); };
  const auto collectIf = [&](int column, const CaseBlindPattern& first, const CaseBlindPattern& second) {
    ForEachRow(tableText, [&](std::string_view row) {
      const std::string_view field = RecordField(row, column);
      if (first.OccursIn(field) && second.OccursIn(field)) rows.push_back(row);
    });
  };
  if (query.stockNumber.starts_with('#')) {
    collectIf(kStockLagerNr, CaseBlindPattern(query.stockNumber), CaseBlindPattern(""));
  } else if (!query.category.empty() || !query.digits.empty()) {
    collectIf(kStockArtNr, CaseBlindPattern(query.category), CaseBlindPattern(query.digits));
  } else if (query.freeText.empty()) {
    ForEachRow(tableText, collect);
  } else {
    ForEachRowWith(tableText, CaseBlindPattern(query.freeText), collect);
  }
  return rows;
}

std::vector<Shortfall> FindShortfalls(std::string_view tableText) {
  // Pieces of every article are counted at once: counting them row by row would read the table once for each piece.
  std::unordered_map<std::string_view, int> pieces;
  ForEachRow(tableText, [&](std::string_view row) { ++pieces[RecordField(row, kStockArtNr)]; });

  std::vector<Shortfall> shortfalls;
  std::unordered_set<std::string_view> listed;
  ForEachRow(tableText, [&](std::string_view row) {
    const std::string_view minimum = RecordField(row, kStockMindestMenge);
    if (minimum.empty()) return;
    if (!IsSingleItem(row)) {
      if (NumberOrZero(RecordField(row, kStockLagerbestand)) < NumberOrZero(minimum)) shortfalls.push_back({row});
      return;
    }
    const std::string_view article = RecordField(row, kStockArtNr);
    const int count = pieces[article];
    if (count < NumberOrZero(minimum) && listed.insert(article).second) shortfalls.push_back({row, true, count});
  });
  return shortfalls;
}

std::string QuantityAfterReceipt(std::string_view oldQuantity, std::string_view received) {
  return NumberText(NumberOrZero(oldQuantity) + NumberOrZero(received));
}

std::string RateCaption(std::string_view rate) { return RatePercent(rate) + "% MWST"; }

}  // namespace kontorwerk
