// "Wareneingang Einzelartikel": serial number, IMEI number, EAN and purchase price of the receipt of a single item.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "stock/ReceiptDialog.h"

namespace kontorwerk {

class WareneingangSerNr final : public ReceiptDialog {
 public:
  explicit WareneingangSerNr(Context& context);

  Label Label3;
  TextBox SerNr, IMEINr, EAN;

  // As ReceiptDialog::Run, with the article's EAN filled in.
  [[nodiscard]] bool Run(const std::array<std::string, 3>& knownPrices, std::string_view ean);

 private:
  [[nodiscard]] Control& FirstField() override { return SerNr; }
};

}  // namespace kontorwerk
