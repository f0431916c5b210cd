// A goods receipt from the chosen article to the filled edit screen: a dialog asks for the quantity or the serial
// numbers and for the price, then the stock item stands ready for its place and the save. Nothing is written here.
#pragma once

#include <string>
#include <string_view>

#include "platform/Context.h"
#include "stock/ArticleRecords.h"
#include "stock/LGArtikelbearbeiten.h"
#include "stock/WareneingangSerNr.h"
#include "stock/WareneingangStück.h"

namespace kontorwerk {

class GoodsReceipt {
 public:
  GoodsReceipt(Context& context, WareneingangStück& quantityDialog, WareneingangSerNr& serialDialog,
               LGArtikelbearbeiten& editor);

  // `stockNumber` is that of the chosen stock item, empty if an article of the master was chosen. Without an article
  // number, without the article in the master, or if the dialog is cancelled, nothing changes. While a dialog of an
  // earlier receipt is open, that dialog comes to the front instead.
  void Run(std::string_view articleNumber, std::string_view stockNumber, StockCaller& caller);
  // Closes the dialog if it waits for this caller.
  void Cancel(const StockCaller& caller);

 private:
  void ReceiveMultiple(const Article& article, std::string_view stockNumber, StockCaller& caller);
  void ReceiveSingle(const Article& article, StockCaller& caller);

  Context& context_;
  WareneingangStück& quantityDialog_;
  WareneingangSerNr& serialDialog_;
  LGArtikelbearbeiten& editor_;
  const StockCaller* waitingFor_ = nullptr;
};

}  // namespace kontorwerk
