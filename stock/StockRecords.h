// The records of LagerArtikeldb.dbf, one for each stock item: their columns, the rule of the next stock number, the
// rewrites of the table, what the searches find and which items lie below their minimum. No screen and no box here.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {

// Columns of a stock record, counted as RecordField counts. Columns 3 and 12 to 29 are copies of the article's.
enum StockColumn : int {
  kStockLagerNr = 1,  // "#" and five digits
  kStockArtNr = 2,    // article number, 8 characters in upper case
  kStockBezeichnung = 3,
  kStockLagerbestand = 4,  // quantity; 0 or negative after sales
  kStockMindestMenge = 5,  // number or empty
  kStockSollMenge = 6,     // number or empty
  kStockLagerOrt = 7,
  kStockLagerplatz = 8,
  kStockEANNr = 9,
  kStockSerNr = 10,
  kStockIMEINr = 11,
  kStockB1 = 12,  // four description lines, one line of a document each
  kStockB2 = 13,
  kStockB3 = 14,
  kStockB4 = 15,
  kStockMengeneinheit = 16,
  kStockVerpackungseinheit = 17,
  kStockGewicht = 18,
  kStockGröße = 19,
  kStockHersteller = 20,
  kStockLieferant1 = 21,
  kStockLieferant2 = 22,
  kStockLieferant3 = 23,
  kStockBestNr1 = 24,
  kStockBestNr2 = 25,
  kStockBestNr3 = 26,
  kStockEK1 = 27,
  kStockEK2 = 28,
  kStockEK3 = 29,
  kStockNotizen = 30,  // line breaks as marks
  kStockAktEK = 31,    // net purchase price of the last receipt
  kStockVK = 32,       // net sales price
  kStockBrutto = 33,   // gross sales price
  kStockMWST2 = 34,    // second VAT rate: "1" or "0"
  kStockEinzel = 35,   // single item: "1" or "0", "Wahr" or "Falsch" after a change of the article
  kStockStatus = 36,   // the last event only: one phrase with its date
};
inline constexpr int kStockColumnCount = 36;

// The phrases of column 36, each followed by a date.
inline constexpr std::string_view kStatusReceipt = "Wareneingang am ";
inline constexpr std::string_view kStatusSale = "Warenausgang am ";
inline constexpr std::string_view kStatusChange = "Letzte Änderung am "_t;

// One stock record by columns. Fields behind column 36, as a separator inside a text makes them, are carried along.
class StockRecord {
 public:
  StockRecord() : fields_(kStockColumnCount) {}
  // Columns that an older, shorter record lacks are empty.
  explicit StockRecord(std::string_view row);

  [[nodiscard]] const std::string& operator[](StockColumn column) const { return fields_[At(column)]; }
  [[nodiscard]] std::string& operator[](StockColumn column) { return fields_[At(column)]; }
  // True for "1", "Wahr" and "True" in any case: the writers of column 35 differ.
  [[nodiscard]] bool SingleItem() const;
  // The line without its end. Line breaks inside a field become marks, so that a field never splits the line.
  [[nodiscard]] std::string Row() const;

 private:
  static std::size_t At(StockColumn column) { return static_cast<std::size_t>(column) - 1; }

  std::vector<std::string> fields_;
};

// True if column 35 of the row says that it is a single item.
[[nodiscard]] bool IsSingleItem(std::string_view stockRow);

// The number behind that of the last non-empty line, not behind the highest one; "#01001" for an empty table.
[[nodiscard]] std::string NextStockNumber(std::string_view tableText);

// The first row whose column 1 equals the number; empty without one. The view lives as long as `tableText`.
[[nodiscard]] std::string_view FindStockRow(std::string_view tableText, std::string_view stockNumber);
// The first and the last row of an article in file order; empty without one.
[[nodiscard]] std::string_view FirstRowOfArticle(std::string_view tableText, std::string_view articleNumber);
[[nodiscard]] std::string_view LastRowOfArticle(std::string_view tableText, std::string_view articleNumber);

// Every row whose stock number is that of the record is replaced by it; the table gains one blank line. Without such
// a row the table is rewritten as it was. False if nothing was written.
bool ReplaceStockRecord(RecordStore& store, const StockRecord& record);
// The row of the number is left out; the table gains one blank line.
bool RemoveStockRecord(RecordStore& store, std::string_view stockNumber);
// All rows of the article take over the minimum and target quantity and the status; column 35 becomes "1" or "0".
bool RewriteMinimum(RecordStore& store, std::string_view articleNumber, std::string_view minimum,
                    std::string_view target, std::string_view status);

// What the search screens ask of the stock table. Case does not matter; empty terms find every row.
struct StockQuery {
  std::string category = {};     // part of the article number
  std::string digits = {};       // part of the article number
  std::string freeText = {};     // any part of the row, looked for only if category and digits are empty
  std::string stockNumber = {};  // begins with "#": part of the stock number, and the other terms are passed over
};
// The rows that the query finds, in the order of the file. The views live as long as `tableText`.
[[nodiscard]] std::vector<std::string_view> FindStockRows(std::string_view tableText, const StockQuery& query);
[[nodiscard]] bool MatchesQuery(std::string_view stockRow, const StockQuery& query);

// A line of the list of items below their minimum.
struct Shortfall {
  std::string_view row;  // the stock row, of single items the first one of the article
  bool single = false;   // stands for all pieces of the article
  int pieces = 0;        // number of pieces, of single items only
};
// Multiple items whose quantity is below their minimum, and once for each article the single items whose number of
// pieces is below it, in file order. A row without a minimum is never short. One pass over the table and one over its
// articles.
[[nodiscard]] std::vector<Shortfall> FindShortfalls(std::string_view tableText);

// The quantity behind a receipt: old and received as numbers; a text that is none counts as 0.
[[nodiscard]] std::string QuantityAfterReceipt(std::string_view oldQuantity, std::string_view received);

// "7% MWST" for the rate "0,07", "7,5% MWST" for "0,075".
[[nodiscard]] std::string RateCaption(std::string_view rate);

}  // namespace kontorwerk
