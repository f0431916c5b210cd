// All rows of a document are taken out in one pass over the stock: a table of 100,000 items and a document of many
// pages must not meet row by row. What comes out is what one rewrite for each row would have left.
#include "documents/StockReduction.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <unordered_map>

#include "documents/DocumentKinds.h"
#include "documents/LineFields.h"
#include "stock/StockRecords.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

// The rows with a stock number, found by what a stock line's number holds.
class SoldRows {
 public:
  explicit SoldRows(const std::vector<PositionRow>& rows) {
    for (const PositionRow& row : rows) {
      if (row.LGNr.empty()) continue;
      std::string number = UCase(row.LGNr);
      rowsByLength_[number.size()][std::move(number)].push_back(quantities_.size());
      quantities_.emplace_back(row.S);
    }
  }

  [[nodiscard]] std::size_t Count() const { return quantities_.size(); }

  // Quantities of the rows whose number is a part of the stock number, in the order of the rows.
  // Kept: a part is enough, "12" also reaches "123"; the firms' stock figures were made that way.
  [[nodiscard]] std::vector<std::string_view> QuantitiesFor(std::string_view stockNumber) const {
    const std::string number = UCase(stockNumber);
    std::vector<std::size_t> hits;
    for (const auto& [length, rows] : rowsByLength_) {
      for (std::size_t start = 0; start + length <= number.size(); ++start) {
        const auto found = rows.find(number.substr(start, length));
        if (found != rows.end()) hits.insert(hits.end(), found->second.begin(), found->second.end());
      }
    }
    std::sort(hits.begin(), hits.end());
    hits.erase(std::unique(hits.begin(), hits.end()), hits.end());
    std::vector<std::string_view> quantities;
    quantities.reserve(hits.size());
    for (const std::size_t hit : hits) quantities.push_back(quantities_[hit]);
    return quantities;
  }

 private:
  std::vector<std::string_view> quantities_;
  std::map<std::size_t, std::unordered_map<std::string, std::vector<std::size_t>>> rowsByLength_;
};

std::string QuantityAfterSale(std::string_view stock, std::string_view sold) {
  const std::optional<double> before = ToNumber(stock);
  const std::optional<double> taken = ToNumber(sold);
  // Kept: what cannot be subtracted leaves the quantity empty, so that the user sees it in the list of stock.
  return before && taken ? NumberText(*before - *taken) : std::string();
}

// What one sale after the other makes of a stock line.
RowChange AfterSales(std::string_view line, const std::vector<std::string_view>& quantities, std::string_view today) {
  if (quantities.empty()) return RowChange::Keep();
  if (IsSingleItem(line)) return RowChange::Remove();
  const LineFields old(line);
  std::vector<std::string> fields;
  fields.reserve(kStockStatus);
  // Kept: older events behind the single item's mark are not copied, the line tells its last event only.
  for (int column = kStockLagerNr; column <= kStockEinzel; ++column) fields.push_back(old[column]);
  std::string& stock = fields[kStockLagerbestand - 1];
  for (const std::string_view quantity : quantities) stock = QuantityAfterSale(stock, quantity);
  fields.push_back(Concat(kStatusSale, today, " - Menge: ", quantities.back()));
  return RowChange::Replace(LineBreaksToMarks(RecordLine(fields)));
}

}  // namespace

bool MovesGoods(int selectorPlace, int startKind) {
  return (selectorPlace == kSelectorDeliveryNote || selectorPlace == kSelectorInvoice) && startKind == kSelectorOpen;
}

bool TakeOutOfStock(RecordStore& store, const std::vector<PositionRow>& rows, std::string_view today) {
  const SoldRows sold(rows);
  if (sold.Count() == 0) return true;
  std::string text = RewrittenText(store.ReadTableText(table::kStock), BlankRows::Keep, [&](std::string_view line) {
    return AfterSales(line, sold.QuantitiesFor(RecordField(line, kStockLagerNr)), today);
  });
  // Kept: each row counts as a rewrite of its own and leaves its blank line.
  if (!text.empty())
    for (std::size_t row = 1; row < sold.Count(); ++row) text.append(kLineEnd);
  return store.WriteTable(table::kStock, text);
}

std::string PendingStockEntry(std::string_view LGNr, std::string_view quantity) {
  return Concat(" ", RecordLine({LGNr, quantity}));
}

bool TakePendingOutOfStock(RecordStore& store, std::string_view pendingList, std::string_view today) {
  const std::string_view entries = LTrim(pendingList);
  if (entries.empty()) return true;
  // Kept: only the first entry takes effect. Older versions close the table behind it, and firms correct the stock of a
  // collective invoice by hand; taking out the others now would count them twice.
  const std::string_view entry = entries.substr(0, entries.find(' '));
  const std::string_view number = RecordField(entry, 1);
  const std::string_view quantity = RecordField(entry, 2);
  return store.RewriteTable(table::kStock, BlankRows::Drop, [&](std::string_view line) {
    if (RecordField(line, kStockLagerNr) != number) return RowChange::Keep();
    return AfterSales(line, {quantity}, today);
  });
}

}  // namespace kontorwerk
