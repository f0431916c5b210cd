// The fields of a stock item as three screens show them: the edit screen and the two searches. What a screen does when
// one of them changes or is left is its own business.
#pragma once

#include <vector>

#include "platform/ChoiceControls.h"
#include "platform/TextControls.h"
#include "stock/StockRecords.h"

namespace kontorwerk {

class StockMask {
 public:
  TextBox LagerNr, Kat, ArtikelNr, Bezeichnung;
  TextBox Lagerbestand, MindestMenge, SollMenge, LagerOrt, Lagerplatz;
  TextBox EANNr, SerNr, IMEINr;
  TextBox B1, B2, B3, B4;
  TextBox Mengeneinheit, Verpackungseinheit, Gewicht, Größe, Hersteller;
  TextBox Lieferant1, Lieferant2, Lieferant3;
  TextBox BestNr1, BestNr2, BestNr3;
  TextBox EK1, EK2, EK3;
  TextBox Notizen;
  TextBox aktEK, VK, Brutto;
  CheckBox MWST2_Check, Einzel_Check;

 protected:
  explicit StockMask(Screen& owner);
  ~StockMask() = default;

  // Fills every field from the record; the status has no field.
  void FillMask(const StockRecord& record);
  void ClearMask();
  // The record of the fields, its status empty. The article number has its category in upper case.
  [[nodiscard]] StockRecord MaskRecord() const;
  // Category in upper case and number.
  [[nodiscard]] std::string ArticleNumber() const;
  [[nodiscard]] const std::vector<TextBox*>& TextFields() const { return textFields_; }

 private:
  struct Field {
    StockColumn column;
    TextBox* box;
  };
  // The fields that hold their column as it stands.
  std::vector<Field> plainFields_;
  std::vector<TextBox*> textFields_;
};

}  // namespace kontorwerk
