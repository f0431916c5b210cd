// All screens of articles and stock, wired together and known to the desktop.
#pragma once

#include <string_view>
#include <utility>

#include "platform/Context.h"
#include "platform/ControlCentre.h"
#include "stock/Artikelanlegen.h"
#include "stock/Artikelsuchen.h"
#include "stock/GoodsReceipt.h"
#include "stock/LGArtikelSuche.h"
#include "stock/LGArtikelbearbeiten.h"
#include "stock/MindestbestandSuche.h"
#include "stock/PositionReceiver.h"
#include "stock/WareneingangSerNr.h"
#include "stock/WareneingangStück.h"

namespace kontorwerk {

class StockScreens {
 public:
  // Both must outlive the screens.
  StockScreens(Context& context, ControlCentre& controlCentre);
  StockScreens(const StockScreens&) = delete;
  StockScreens& operator=(const StockScreens&) = delete;

  // How a supplier field of an article finds its supplier; without it the choice does nothing.
  void SetSupplierChooser(Artikelanlegen::SupplierChooser chooseSupplier) {
    chooseSupplier_ = std::move(chooseSupplier);
  }
  // The document editor, which must outlive these screens or be set to null before it goes.
  void SetPositionReceiver(PositionReceiver* receiver);

  void OpenNewArticle() { articleScreen_.ShowNew(); }
  void OpenForGoodsReceipt() { stockSearch_.OpenForGoodsReceipt(); }
  void OpenForEditing() { stockSearch_.OpenForEditing(); }
  // For the position row that waits: a stock item, or an article of the master.
  void OpenStockSearchForDocument() { stockSearch_.OpenForDocument(); }
  void OpenArticleSearchForDocument();

 private:
  Artikelanlegen::SupplierChooser chooseSupplier_;
  Artikelanlegen articleScreen_;
  Artikelsuchen articleSearch_;
  WareneingangStück quantityDialog_;
  WareneingangSerNr serialDialog_;
  LGArtikelbearbeiten editor_;
  GoodsReceipt receipt_;
  LGArtikelSuche stockSearch_;
  MindestbestandSuche minimumSearch_;
};

}  // namespace kontorwerk
