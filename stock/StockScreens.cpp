#include "stock/StockScreens.h"

namespace kontorwerk {

StockScreens::StockScreens(Context& context, ControlCentre& controlCentre)
    : articleScreen_(context, controlCentre,
                     [this](Artikelanlegen::SupplierTaker take) {
                       if (chooseSupplier_) chooseSupplier_(std::move(take));
                     }),
      articleSearch_(context, articleScreen_),
      quantityDialog_(context),
      serialDialog_(context),
      editor_(context, controlCentre),
      receipt_(context, quantityDialog_, serialDialog_, editor_),
      stockSearch_(context, controlCentre, receipt_, editor_, articleScreen_),
      minimumSearch_(context, controlCentre, receipt_, editor_, articleScreen_) {
  articleScreen_.SetGoodsReceiptSearch(&stockSearch_);
  for (Screen* screen :
       {static_cast<Screen*>(&articleScreen_), static_cast<Screen*>(&articleSearch_),
        static_cast<Screen*>(&quantityDialog_), static_cast<Screen*>(&serialDialog_), static_cast<Screen*>(&editor_),
        static_cast<Screen*>(&stockSearch_), static_cast<Screen*>(&minimumSearch_)})
    context.desktop.Add(*screen);
}

void StockScreens::SetPositionReceiver(PositionReceiver* receiver) {
  articleScreen_.SetPositionReceiver(receiver);
  articleSearch_.SetPositionReceiver(receiver);
  stockSearch_.SetPositionReceiver(receiver);
}

void StockScreens::OpenArticleSearchForDocument() {
  articleSearch_.DocumentCall = true;
  articleSearch_.Show();
}

}  // namespace kontorwerk
