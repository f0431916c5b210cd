// "Wareneingang Menge": quantity and purchase price of a receipt of a multiple item.
#pragma once

#include "stock/ReceiptDialog.h"

namespace kontorwerk {

class WareneingangStück final : public ReceiptDialog {
 public:
  explicit WareneingangStück(Context& context);

  TextBox Stück;

 private:
  [[nodiscard]] Control& FirstField() override { return Stück; }
  [[nodiscard]] bool FieldsValid() override;
};

}  // namespace kontorwerk
