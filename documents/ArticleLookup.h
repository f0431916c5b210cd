// Looking up an article by its number, a stock item by its number and either by an EAN, and putting it into a position
// row. Prices come from the columns for net and gross documents as they are stored. Messages, sounds and the focus
// after a failure are the screen's.
#pragma once

#include <string_view>

#include "stock/PositionReceiver.h"
#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {

inline constexpr std::string_view kLookupRunning = "suche Lagerartikel...";
inline constexpr std::string_view kArticleNotFound =
    "Keinen Artikel mit dieser Artikel-Nr. gefunden, oder Artikel ist ein LagerArtikel!";
inline constexpr std::string_view kStockItemNotFound = "Keinen Lagerartikel mit dieser Lager-Nr. gefunden!";
inline constexpr std::string_view kEanNotFound = "Keinen Artikel bzw. Lagerartikel mit dieser EAN-Nr. gefunden!";

enum class LookupResult {
  Filled,    // the row is filled and the focus is set
  NotFound,  // no line matches
  Refused,   // the article is kept in stock and the document is no quotation: the row's six texts are empty
};

// True if the text of a field that is being left is taken as an EAN.
[[nodiscard]] bool IsEanInStockNumber(std::string_view text);    // longer than 6 characters, not beginning with "#"
[[nodiscard]] bool IsEanInArticleNumber(std::string_view text);  // 9 characters or more

// A line of the master counts when its number equals the text, case aside. The row is emptied and filled: number, first
// description line, single price (net or gross column), the second rate's mark where the article has it; each
// further description line that is not empty takes the next row. Ends with the focus on the quantity. Without success
// the article number of the row is empty.
LookupResult LookupByArticleNumber(PositionReceiver& receiver, RecordStore& store, int row, std::string_view text);

// A line of the stock counts when its number equals the text exactly. Both numbers, description and price as above, the
// quantity stays; serial and IMEI number take a further row each. A single item gets the quantity 1 and the focus goes
// to the next row without a description. Without success the stock number of the row is empty.
LookupResult LookupByStockNumber(PositionReceiver& receiver, RecordStore& store, int row, std::string_view text);

// First the master by its EAN, then the stock by EAN, serial or IMEI number. Of several lines the last one fills the
// row, and the stock goes before the master. Not found: the texts of the row stay; refused by the master and not in
// stock either: as Refused says.
LookupResult LookupByEAN(PositionReceiver& receiver, RecordStore& store, int row, std::string_view text);

}  // namespace kontorwerk
