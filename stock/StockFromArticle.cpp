#include "stock/StockFromArticle.h"

#include <array>
#include <string>
#include <string_view>

#include "store/Numbers.h"
#include "store/RecordLine.h"

namespace kontorwerk {
namespace {

template <std::size_t N>
void CopyFrom(StockRecord& record, StockColumn first, const std::array<std::string, N>& texts) {
  for (std::size_t i = 0; i < N; ++i) record[static_cast<StockColumn>(first + static_cast<int>(i))] = texts[i];
}

template <std::size_t N>
void CopyTo(std::array<std::string, N>& texts, const StockRecord& record, StockColumn first) {
  for (std::size_t i = 0; i < N; ++i) texts[i] = record[static_cast<StockColumn>(first + static_cast<int>(i))];
}

}  // namespace

StockRecord StockFromArticle(const Article& article) {
  StockRecord record;
  record[kStockArtNr] = article.number;
  record[kStockBezeichnung] = article.name;
  record[kStockEANNr] = article.ean;
  CopyFrom(record, kStockB1, article.description);
  record[kStockMengeneinheit] = article.unit;
  record[kStockVerpackungseinheit] = article.packingUnit;
  record[kStockGewicht] = article.weight;
  record[kStockGröße] = article.size;
  record[kStockHersteller] = article.manufacturer;
  CopyFrom(record, kStockLieferant1, article.suppliers);
  CopyFrom(record, kStockBestNr1, article.orderNumbers);
  CopyFrom(record, kStockEK1, article.purchasePrices);
  record[kStockNotizen] = LineBreaksToMarks(article.notes);
  record[kStockVK] = article.netPrice;
  record[kStockBrutto] = article.grossPrice;
  record[kStockMWST2] = TickText(article.secondRate);
  record[kStockEinzel] = TickText(article.singleItem);
  return record;
}

Article ArticleFromStock(const StockRecord& record) {
  Article article;
  article.number = record[kStockArtNr];
  article.name = record[kStockBezeichnung];
  CopyTo(article.description, record, kStockB1);
  article.stockKept = true;
  article.singleItem = record.SingleItem();
  article.multipleItem = !article.singleItem;
  article.unit = record[kStockMengeneinheit];
  article.packingUnit = record[kStockVerpackungseinheit];
  article.weight = record[kStockGewicht];
  article.size = record[kStockGröße];
  article.manufacturer = record[kStockHersteller];
  CopyTo(article.suppliers, record, kStockLieferant1);
  CopyTo(article.orderNumbers, record, kStockBestNr1);
  CopyTo(article.purchasePrices, record, kStockEK1);
  article.notes = MarksToLineBreaks(record[kStockNotizen]);
  article.netPrice = record[kStockVK];
  article.secondRate = IsTrueText(record[kStockMWST2]);
  article.grossPrice = record[kStockBrutto];
  article.ean = record[kStockEANNr];
  return article;
}

}  // namespace kontorwerk
