// The article master Artikeldb.dbf: its columns, one article as a value, and everything that is asked of the table
// beside saving: the proposal of a number, duplicates, the search, the coupling of net and gross price, and what a
// changed article passes on to its stock rows. Functions over texts; boxes and screens lie elsewhere.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/Settings.h"

namespace kontorwerk {

// Columns of Artikeldb.dbf. There is no closing apostrophe: the EAN ends at the line's end.
enum ArticleColumn {
  kArticleNumber = 1,  // category of three characters and five digits
  kArticleName = 2,
  kArticleDescription1 = 3,  // four lines, columns 3 to 6
  kArticleStockKept = 7,     // "1" or "0"
  kArticleSingleItem = 8,    // "Wahr" or "Falsch"
  kArticleMultipleItem = 9,
  kArticleUnit = 10,
  kArticlePackingUnit = 11,
  kArticleWeight = 12,
  kArticleSize = 13,
  kArticleManufacturer = 14,
  kArticleSupplier1 = 15,       // three suppliers, columns 15 to 17
  kArticleOrderNumber1 = 18,    // columns 18 to 20
  kArticlePurchasePrice1 = 21,  // columns 21 to 23
  kArticleNotes = 24,           // line breaks as "*__*"
  kArticleNetPrice = 25,
  kArticleSecondRate = 26,  // "1" or "0"
  kArticleGrossPrice = 27,
  kArticleEntryDate = 28,
  kArticleEan = 29,
};

inline constexpr int kCategoryLength = 3;
inline constexpr int kArticleDigits = 5;

// One article as a screen shows it: notes with real line breaks.
struct Article {
  std::string number;
  std::string name;
  std::array<std::string, 4> description;
  bool stockKept = false;
  bool singleItem = false;
  bool multipleItem = true;
  std::string unit, packingUnit, weight, size, manufacturer;
  std::array<std::string, 3> suppliers, orderNumbers, purchasePrices;
  std::string notes;
  std::string netPrice;
  bool secondRate = false;
  std::string grossPrice;
  std::string entryDate;
  std::string ean;
};

[[nodiscard]] std::string_view CategoryOf(std::string_view articleNumber);  // its first three characters
[[nodiscard]] std::string_view DigitsOf(std::string_view articleNumber);    // its last five

// Columns that a shorter line does not have are empty.
[[nodiscard]] Article ReadArticle(std::string_view row);
// The line of 29 fields without line end. No field holds a line break: CR LF becomes "*__*" in all of them.
[[nodiscard]] std::string ArticleLine(const Article& article);

// The first row whose number is exactly `number`; empty if there is none.
[[nodiscard]] std::string_view FindArticleRow(std::string_view table, std::string_view number);

// A free number within the category, five digits (more behind 99999): one more than the number of the last row whose
// article number holds the category anywhere, and on from there while category and number together stand
// anywhere in the table. Case does not matter. A last number that is none counts as 0, so an empty category
// begins with "00001".
// Kept: the last row of the file decides, not the highest number, and any text of the table blocks a number. Firms
// steer their series by the order of the file.
[[nodiscard]] std::string ProposeArticleNumber(std::string_view table, std::string_view category);

// True if any row's article number holds `number`, case aside.
[[nodiscard]] bool ArticleNumberTaken(std::string_view table, std::string_view number);

// One warning text for each row that has the number in one of its three order number columns (or as its EAN). The
// article that is being edited is no exception.
[[nodiscard]] std::vector<std::string> OrderNumberWarnings(std::string_view table, std::string_view orderNumber);
[[nodiscard]] std::vector<std::string> EanWarnings(std::string_view table, std::string_view ean);

// What the search screens ask of the master. With a category or number, rows whose article number holds both;
// otherwise rows that hold the free text anywhere. Case does not matter; empty terms find every row.
struct ArticleQuery {
  std::string category;
  std::string digits;
  std::string freeText;
};
// The rows that the query finds, in the order of the file. The views live as long as `table`.
[[nodiscard]] std::vector<std::string_view> FindArticles(std::string_view table, const ArticleQuery& query);
// The status behind a search: "Suche beendet." and the number of hits.
[[nodiscard]] std::string SearchDoneText(int hits);

// The first or second tax rate as a fraction, and 1 + that rate; nothing if the setting is no number.
[[nodiscard]] std::optional<double> VatRate(const Settings& settings, bool secondRate);
[[nodiscard]] std::optional<double> VatFactor(const Settings& settings, bool secondRate);
// Money text of the price with tax added or taken off; nothing if the price or the factor is no number.
[[nodiscard]] std::optional<std::string> GrossPriceText(std::string_view netPrice, std::optional<double> factor);
[[nodiscard]] std::optional<std::string> NetPriceText(std::string_view grossPrice, std::optional<double> factor);
// A typed price as it is shown after leaving its field: money text if it is a number, otherwise as it stands.
[[nodiscard]] std::string PriceAsShown(std::string_view typed);

// The stock row of the article with everything taken from the article that the two tables share. Its own stay: stock
// number, quantities, place, serial numbers, notes, last purchase price and history.
[[nodiscard]] std::string StockRowOfArticle(std::string_view stockRow, const Article& article);

}  // namespace kontorwerk
