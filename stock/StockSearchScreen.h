// What the stock search and the minimum-stock list have in common: the mask of the chosen record, their menus, and the
// ways out of them that do not depend on their lists.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/Context.h"
#include "platform/ControlCentre.h"
#include "platform/ListView.h"
#include "platform/Screen.h"
#include "stock/Artikelanlegen.h"
#include "stock/GoodsReceipt.h"
#include "stock/LGArtikelbearbeiten.h"
#include "stock/StockCaller.h"
#include "stock/StockSearchMask.h"

namespace kontorwerk {

class StockSearchScreen : public Screen, public StockSearchMask, public StockCaller {
 public:
  CommandButton Command5, Command7, Command8, Command9;
  MenuEntry NEWArtikelanlegen, LeereMaske, Datenübernahme, LGArtikel_löschen;
  MenuEntry aktSuchergebnis, Artikeldruck;
  StatusBar StatusBar1;

  void CloseSearch() override { Unload(); }

 protected:
  StockSearchScreen(Context& context, ControlCentre& centre, GoodsReceipt& receipt, LGArtikelbearbeiten& editor,
                    Artikelanlegen& articleScreen, std::string_view name);

  void OnLoad() override { EmptyMask(); }
  void OnUnload() override { receipt_.Cancel(*this); }
  void OnCloseRequest() override { Cancel(); }

  virtual void Search() = 0;
  virtual void Cancel() { Unload(); }
  virtual void TakeOver() = 0;
  // Number of the chosen stock item; empty if none is chosen.
  [[nodiscard]] virtual std::string ChosenStockNumber() const = 0;
  virtual void RemoveChosenRow() = 0;
  // Tells the article screen what a new article is wanted for.
  virtual void MarkArticleCall(Artikelanlegen& articleScreen) { articleScreen.GoodsReceiptCall = GoodsReceiptMode; }

  // A double click and Enter take the selected row over.
  void WireList(ListView& list, std::function<void()> showRow);
  // The chosen item goes to the edit screen; false if its record is gone or the edit screen keeps another one.
  bool Edit(std::string_view stockNumber);
  void TellToChooseStockItem() { context_.platform.Tell("Bitte erst einen Lagerartikel auswählen!"_t); }
  void SetStatus(std::string_view text) { StatusBar1.SetPanel(4, text); }

  Context& context_;
  ControlCentre& centre_;
  GoodsReceipt& receipt_;
  LGArtikelbearbeiten& editor_;

 private:
  void NewArticle();
  void TakeDataOver();
  void DeleteItem();

  Artikelanlegen& articleScreen_;
};

// A list row of these fields of a record.
[[nodiscard]] ListRow ListRowOf(std::string_view record, std::initializer_list<int> columns);

}  // namespace kontorwerk
