// The mask of the two stock searches. Its search fields show the chosen record as well: while a record is shown, the
// first letter typed into one of them empties all the others, so that what stands in the fields is always what is
// looked for.
#pragma once

#include <functional>
#include <vector>

#include "stock/StockMask.h"

namespace kontorwerk {

class StockSearchMask : public StockMask {
 protected:
  explicit StockSearchMask(Screen& owner);
  ~StockSearchMask() = default;

  // Shows the record with its purchase prices hidden.
  void ShowRecord(const StockRecord& record);
  // Empties all fields; purchase prices hidden.
  void EmptyMask();
  void ShowPurchasePrices() { SetPurchasePricesVisible(true); }
  // What the search fields ask for.
  [[nodiscard]] StockQuery Query() const;
  // `search` runs when Enter is pressed in one of the search fields.
  void SearchOnEnter(std::function<void()> search);

 private:
  [[nodiscard]] std::vector<TextBox*> SearchFields() { return {&Kat, &ArtikelNr, &Bezeichnung, &LagerNr, &EANNr}; }
  void Fill(const StockRecord& record);
  void StartNewSearchWith(TextBox& field);
  void SetPurchasePricesVisible(bool visible);

  bool recordShown_ = false;
  bool filling_ = false;
};

}  // namespace kontorwerk
