// "Lagerartikel suchen / bearbeiten": finds stock items and the stock-kept articles of the master, and hands the chosen
// one to a goods receipt, to the edit screen or to a document, as it was opened for.
#pragma once

#include <string>
#include <string_view>

#include "stock/PositionReceiver.h"
#include "stock/StockSearchScreen.h"

namespace kontorwerk {

class LGArtikelSuche final : public StockSearchScreen, public GoodsReceiptSearch {
 public:
  LGArtikelSuche(Context& context, ControlCentre& centre, GoodsReceipt& receipt, LGArtikelbearbeiten& editor,
                 Artikelanlegen& articleScreen);

  ListView Suchergebnis;   // stock-kept articles of the master
  ListView Suchergebnis2;  // stock items
  MenuEntry kplLagerbestand;

  // The list that was clicked last; at most one of the two.
  bool MasterRowSelected = false;
  bool StockRowSelected = false;
  bool DocumentCall = false;      // a document position waits for a stock item
  bool GoodsReceiptCall = false;  // the article screen was opened to create what is to be received

  void OpenForGoodsReceipt();
  void OpenForEditing();
  void OpenForDocument();
  void SetPositionReceiver(PositionReceiver* receiver) { positions_ = receiver; }

  void ShowForGoodsReceipt() override { OpenForGoodsReceipt(); }
  void StartGoodsReceipt(std::string_view category, std::string_view digits) override;
  void ShowSearchAgain() override;

 private:
  void OnLoad() override;
  void Search() override;
  void Cancel() override;
  void TakeOver() override;
  void ForgetResults();
  [[nodiscard]] std::string ChosenStockNumber() const override;
  void RemoveChosenRow() override;
  void MarkArticleCall(Artikelanlegen& articleScreen) override;

  void OpenIn(std::string_view caption);
  [[nodiscard]] std::string_view DesignCaption() const;
  void SearchByTerms();
  void SearchByEan();
  void RefuseEan(std::string_view message);
  void ShowArticle(std::string_view row);
  void ShowStockItem(std::string_view row);
  void ShowMasterRow();
  void ShowStockRow();
  void Receive();
  void TakeIntoDocument();
  void PlaySound(std::string_view file);

  PositionReceiver* positions_ = nullptr;
};

}  // namespace kontorwerk
