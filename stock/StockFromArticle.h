// Between the article master and the stock: the record that a first receipt of an article starts from, and the article
// that a stock item is a copy of.
#pragma once

#include "stock/ArticleRecords.h"
#include "stock/StockRecords.h"

namespace kontorwerk {

// Copies everything that the two tables share, the notes, the prices and the EAN included. The stock item's own columns
// (number, quantities, place, serial numbers, current purchase price, status) are empty.
[[nodiscard]] StockRecord StockFromArticle(const Article& article);
// The other way: a stock-kept article of the item's number and everything that the two tables share. Without a date.
[[nodiscard]] Article ArticleFromStock(const StockRecord& record);

}  // namespace kontorwerk
