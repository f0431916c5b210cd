// "Bestandsanzeige": everything that lies below its minimum quantity, with the way to its receipt and to its edit
// screen. The list fills itself when the screen opens; the search narrows it. Single items of an article share one row.
#pragma once

#include <string>
#include <string_view>

#include "stock/StockSearchScreen.h"

namespace kontorwerk {

class MindestbestandSuche final : public StockSearchScreen {
 public:
  MindestbestandSuche(Context& context, ControlCentre& centre, GoodsReceipt& receipt, LGArtikelbearbeiten& editor,
                      Artikelanlegen& articleScreen);

  ListView Suchergebnis;
  CommandButton Command1, Command2;

  void ShowSearchAgain() override;

 private:
  void OnLoad() override;
  void OnActivate() override { Suchergebnis.SetFocus(); }
  void Search() override;
  void TakeOver() override;
  [[nodiscard]] std::string ChosenStockNumber() const override;
  void RemoveChosenRow() override { Suchergebnis.RemoveRow(Suchergebnis.Selected()); }

  void FillList(const StockQuery& query, std::string_view ean);
  // Stock row of the selected list row, of single items the article's first.
  [[nodiscard]] std::string_view ChosenRow(std::string_view stock) const;
  void ShowRow();
  void Receive();
};

}  // namespace kontorwerk
