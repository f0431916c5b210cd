// "Lagerartikel bearbeiten": one stock item in full, and the only writer of new stock records. It has no record of its
// own: a search or a goods receipt fills it and shows it.
//
//   opened by                       LagerNr   save does
//   edit                            "#..."    rewrites the record
//   receipt, existing position      "#..."    rewrites the record with the new quantity
//   receipt, first of its article   empty     appends with a new number, then rewrites
//   receipt, single item            empty     appends with a new number (ForceNewPosition), then rewrites
#pragma once

#include <string>
#include <string_view>

#include "platform/Context.h"
#include "platform/ControlCentre.h"
#include "platform/Screen.h"
#include "stock/StockCaller.h"
#include "stock/StockMask.h"

namespace kontorwerk {

class LGArtikelbearbeiten final : public Screen, public StockMask {
 public:
  LGArtikelbearbeiten(Context& context, ControlCentre& centre);

  CommandButton Command5, Command7, Command8, Command9;
  MenuEntry Artikeldrucken;
  Label Label31;
  StatusBar StatusBar1;

  bool Changed = false;           // leaving asks
  bool MinSollChanged = false;    // minimum or target of a single item: a save passes them on to all its pieces
  bool ForceNewPosition = false;  // the next save gives a new number and appends
  bool RewriteExisting = false;   // set within a save of a receipt onto an existing number

  // True if another record may take the place of the one shown: asks if that one is changed.
  [[nodiscard]] bool ReadyForAnother();
  void OpenForEditing(StockCaller& caller, const StockRecord& record);
  enum class Position { Existing, New };
  // Leaving asks from the start, since nothing of the receipt is written yet.
  void OpenForReceipt(StockCaller& caller, const StockRecord& record, Position position);

 private:
  void OnLoad() override;
  void OnCloseRequest() override { End(); }

  void WireFields();
  void WirePrices();
  // What the shown record was opened for; decides how a save writes it and with which phrase. Kept by the screen
  // itself, since the search may be reopened for other work while a receipt still waits for its save.
  enum class Purpose { None, Edit, Receipt };

  void Open(StockCaller& caller, const StockRecord& record, Purpose purpose);
  void CheckQuantity();
  void NoteMinimumChange();
  void ComputeGross();
  void ComputeNet();

  void End();
  void BackToSearch();
  [[nodiscard]] bool LeavingAllowed();

  // False if the table could not be written: everything stays unsaved then.
  bool Save();
  bool Append();
  bool Rewrite(std::string_view phrase);
  void SpreadMinimum();
  void SetStatus(std::string_view text) { StatusBar1.SetPanel(4, text); }
  [[nodiscard]] std::string Dated(std::string_view phrase) const;
  [[nodiscard]] std::string NameAndNumber() const;

  Context& context_;
  ControlCentre& centre_;
  StockCaller* caller_ = nullptr;
  Purpose purpose_ = Purpose::None;
};

}  // namespace kontorwerk
