#include "stock/StockSearchMask.h"

#include <string>

namespace kontorwerk {

StockSearchMask::StockSearchMask(Screen& owner) : StockMask(owner) {
  for (TextBox* field : SearchFields()) field->OnChange = [this, field] { StartNewSearchWith(*field); };
}

void StockSearchMask::ShowRecord(const StockRecord& record) {
  Fill(record);
  recordShown_ = true;
}

void StockSearchMask::EmptyMask() {
  Fill(StockRecord());
  recordShown_ = false;
}

void StockSearchMask::Fill(const StockRecord& record) {
  filling_ = true;
  FillMask(record);
  filling_ = false;
  SetPurchasePricesVisible(false);
}

void StockSearchMask::StartNewSearchWith(TextBox& field) {
  if (filling_ || !recordShown_) return;
  const std::string typed = field.Text();
  EmptyMask();
  filling_ = true;
  field.SetText(typed);
  filling_ = false;
}

void StockSearchMask::SetPurchasePricesVisible(bool visible) {
  for (TextBox* price : {&EK1, &EK2, &EK3}) price->SetVisible(visible);
}

StockQuery StockSearchMask::Query() const { return {Kat.Text(), ArtikelNr.Text(), Bezeichnung.Text(), LagerNr.Text()}; }

void StockSearchMask::SearchOnEnter(std::function<void()> search) {
  for (TextBox* field : SearchFields()) {
    field->OnKey = [search](Key& key) {
      if (!key.Is(KeyCode::Enter)) return;
      key.handled = true;
      search();
    };
  }
}

}  // namespace kontorwerk
