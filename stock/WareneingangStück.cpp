#include "stock/WareneingangStück.h"

#include "store/Numbers.h"
#include "store/Text.h"

namespace kontorwerk {

WareneingangStück::WareneingangStück(Context& context)
    : ReceiptDialog(context, "WareneingangStück"_t), Stück(*this, "Stück"_t) {
  Stück.OnKey = [this](Key& key) {
    if (!key.Is(KeyCode::Enter)) return;
    key.handled = true;
    if (Option1.Value())
      Confirm();
    else
      aktEK.SetFocus();
  };
}

// Any number passes: a negative quantity lowers the stock.
bool WareneingangStück::FieldsValid() {
  if (IsNumeric(Stück.Text())) return true;
  context_.platform.Tell("Bitte Menge der eingegangenen Ware angeben!");
  Stück.Clear();
  Stück.SetFocus();
  return false;
}

}  // namespace kontorwerk
