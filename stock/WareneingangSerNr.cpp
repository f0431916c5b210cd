#include "stock/WareneingangSerNr.h"

namespace kontorwerk {
namespace {

void MoveOnAtEnter(TextBox& from, TextBox& to) {
  from.OnKey = [&to](Key& key) {
    if (!key.Is(KeyCode::Enter)) return;
    key.handled = true;
    to.SetFocus();
  };
}

}  // namespace

WareneingangSerNr::WareneingangSerNr(Context& context)
    : ReceiptDialog(context, "WareneingangSerNr"),
      Label3(*this, "Label3"),
      SerNr(*this, "SerNr"),
      IMEINr(*this, "IMEINr"),
      EAN(*this, "EAN") {
  MoveOnAtEnter(EAN, SerNr);
  MoveOnAtEnter(SerNr, IMEINr);
  MoveOnAtEnter(IMEINr, aktEK);
}

bool WareneingangSerNr::Run(const std::array<std::string, 3>& knownPrices, std::string_view ean) {
  Load();
  EAN.SetText(ean);
  return ReceiptDialog::Run(knownPrices);
}

}  // namespace kontorwerk
