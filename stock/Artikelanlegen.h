// The screen that makes and changes an article of the master. The search Artikelsuchen hands it records; it reaches
// the supplier search, the goods receipt and the document editor only through what the program gives it.
//
//   state     entered by                                      number    a save
//   new       loading, "Leere Artikelmaske", a copy           open      appends, and the state is existing
//   existing  ShowExisting, a completed save                  locked    replaces the row and asks about stock rows
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Context.h"
#include "platform/ControlCentre.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "stock/ArticleMask.h"

namespace kontorwerk {

// What the article screen asks of the stock search in which goods are received.
class GoodsReceiptSearch {
 public:
  virtual ~GoodsReceiptSearch() = default;
  // Shown with the caption of a goods receipt.
  virtual void ShowForGoodsReceipt() = 0;
  // Shown as well; the article is searched for, the first hit is chosen and its receipt begins.
  virtual void StartGoodsReceipt(std::string_view category, std::string_view digits) = 0;
};

class Artikelanlegen final : public Screen, public ArticleMask {
 public:
  // The supplier field that waits, as the supplier search sees it.
  struct SupplierTaker {
    std::function<void(std::string_view name)> take;
    // False once the field no longer waits, because the screen was closed meanwhile.
    std::function<bool()> waits;
  };
  // Opens the supplier search for the field; a chosen name comes later or never.
  using SupplierChooser = std::function<void(SupplierTaker)>;

  Artikelanlegen(Context& context, ControlCentre& controlCentre, SupplierChooser chooseSupplier);
  // Null while there is none.
  void SetGoodsReceiptSearch(GoodsReceiptSearch* search) { goodsReceipt_ = search; }
  void SetPositionReceiver(PositionReceiver* receiver) { receiver_ = receiver; }

  // Opens the screen for a new article. Where it is open already, its content is dropped as by its own menu, question
  // included.
  void ShowNew();
  // Opens the screen for the record; the next save replaces it.
  void ShowExisting(const Article& article);
  // Opens the screen for a new article with the data of this one, number left open.
  void ShowCopyOf(const Article& article);

  // Writes the name into the supplier field that waits; false if none does.
  bool TakeSupplier(std::string_view name);
  [[nodiscard]] bool WaitsForSupplier() const { return SupplierTarget1 || SupplierTarget2 || SupplierTarget3; }

  // Checks and saves; false, with the focus on the culprit and nothing written, if the number is not in order.
  bool Save();

  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};
  CommandButton Command3{*this, "Command3"};
  CommandButton Command4{*this, "Command4"};
  CommandButton Command5{*this, "Command5"};
  CommandButton Command6{*this, "Command6"};
  CommandButton Command7{*this, "Command7"};
  CommandButton Command8{*this, "Command8"};
  CommandButton Command9{*this, "Command9"};
  Label Label6{*this, "Label6"};
  Label Label7{*this, "Label7"};
  Label Label8{*this, "Label8"};
  Label Label36{*this, "Label36"};
  Label Label37{*this, "Label37"};
  MenuEntry Neuanlegen{*this, "Neuanlegen"};
  MenuEntry Neu_Datenübernahme;
  MenuEntry SpÜbernahme;
  MenuEntry Artikeldruck{*this, "Artikeldruck"};

  // True: the record on the screen exists and a save replaces it. Shared with the search, which sets it.
  bool ArticleEditMode = false;
  bool Changed = false;
  // Who has opened the screen; set before it is shown, cleared when it closes.
  bool DocumentCall = false;
  bool GoodsReceiptCall = false;
  // Which supplier field the supplier search was opened for; cleared when the screen closes.
  bool SupplierTarget1 = false;
  bool SupplierTarget2 = false;
  bool SupplierTarget3 = false;

 private:
  // How the question about unsaved changes went.
  enum class Leaving { Stay, Discard, Saved, SaveRefused };

  void OnLoad() override;
  void OnUnload() override;
  void OnCloseRequest() override { End(); }

  void WireCommands();
  void WireFields();
  void WireDescription(TextBox& line);
  void WireWarning(TextBox& field, std::vector<std::string> (*warnings)(std::string_view, std::string_view));

  void LeaveNumber();
  void RefuseNumber(std::string_view why);
  void ShowRemaining(const TextBox& line);
  void ShowItemKind();
  void ComputeGross();
  void ComputeNet();
  void ChooseSupplierFor(bool& target);

  [[nodiscard]] bool NumberInOrder();
  bool WriteArticle(Article article);
  void PassOnToStock(Article article);
  void SaveAndClear();
  void SaveAndTakeOver();

  Leaving AskToLeave(std::string_view question);
  void End();
  void BackToSearch();
  void NewMask();
  void NewFromThis();
  void StartNewRecord();
  void SetNumberOpen(bool open);
  void CloseForGoodsReceipt();

  Context& context_;
  ControlCentre& controlCentre_;
  SupplierChooser chooseSupplier_;
  GoodsReceiptSearch* goodsReceipt_ = nullptr;
  PositionReceiver* receiver_ = nullptr;
};

}  // namespace kontorwerk
