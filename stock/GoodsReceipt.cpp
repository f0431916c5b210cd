#include "stock/GoodsReceipt.h"

#include "stock/StockFromArticle.h"

namespace kontorwerk {

GoodsReceipt::GoodsReceipt(Context& context, WareneingangStück& quantityDialog, WareneingangSerNr& serialDialog,
                           LGArtikelbearbeiten& editor)
    : context_(context), quantityDialog_(quantityDialog), serialDialog_(serialDialog), editor_(editor) {}

void GoodsReceipt::Run(std::string_view articleNumber, std::string_view stockNumber, StockCaller& caller) {
  for (ReceiptDialog* dialog :
       {static_cast<ReceiptDialog*>(&quantityDialog_), static_cast<ReceiptDialog*>(&serialDialog_)}) {
    if (!dialog->Visible()) continue;
    dialog->BringToFront();
    return;
  }
  if (articleNumber.empty()) return;
  const std::string articles = context_.store.ReadTableText(table::kArticles);
  const std::string_view row = FindArticleRow(articles, articleNumber);
  if (row.empty() || !editor_.ReadyForAnother()) return;
  const Article article = ReadArticle(row);
  waitingFor_ = &caller;
  if (article.singleItem)
    ReceiveSingle(article, caller);
  else if (article.multipleItem)
    ReceiveMultiple(article, stockNumber, caller);
  waitingFor_ = nullptr;
}

void GoodsReceipt::Cancel(const StockCaller& caller) {
  if (waitingFor_ != &caller) return;
  quantityDialog_.Unload();
  serialDialog_.Unload();
}

void GoodsReceipt::ReceiveMultiple(const Article& article, std::string_view stockNumber, StockCaller& caller) {
  // The caller's list may be refilled while the dialog is open.
  const std::string chosen(stockNumber);
  if (!quantityDialog_.Run(article.purchasePrices)) return;
  const std::string stock = context_.store.ReadTableText(table::kStock);
  std::string_view row;
  if (!chosen.empty()) row = FindStockRow(stock, chosen);
  if (row.empty()) row = FirstRowOfArticle(stock, article.number);
  const std::string& received = quantityDialog_.Stück.Text();

  StockRecord record = row.empty() ? StockFromArticle(article) : StockRecord(row);
  record[kStockLagerbestand] = row.empty() ? received : QuantityAfterReceipt(record[kStockLagerbestand], received);
  if (row.empty()) record[kStockEinzel] = "0";
  record[kStockAktEK] = quantityDialog_.Price();
  editor_.OpenForReceipt(caller, record, LGArtikelbearbeiten::Position::Existing);
}

void GoodsReceipt::ReceiveSingle(const Article& article, StockCaller& caller) {
  if (!serialDialog_.Run(article.purchasePrices, article.ean)) return;
  const std::string stock = context_.store.ReadTableText(table::kStock);
  StockRecord record = StockFromArticle(article);
  record[kStockLagerbestand] = "1";
  record[kStockEinzel] = "1";
  record[kStockSerNr] = serialDialog_.SerNr.Text();
  record[kStockIMEINr] = serialDialog_.IMEINr.Text();
  record[kStockEANNr] = serialDialog_.EAN.Text();
  // Minimum and target are the same for all pieces of an article.
  const StockRecord lastPiece(LastRowOfArticle(stock, article.number));
  record[kStockMindestMenge] = lastPiece[kStockMindestMenge];
  record[kStockSollMenge] = lastPiece[kStockSollMenge];
  record[kStockAktEK] = serialDialog_.Price();
  editor_.OpenForReceipt(caller, record, LGArtikelbearbeiten::Position::New);
}

}  // namespace kontorwerk
