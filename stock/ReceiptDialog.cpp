#include "stock/ReceiptDialog.h"

#include "store/Text.h"

namespace kontorwerk {

ReceiptDialog::ReceiptDialog(Context& context, std::string_view name)
    : Screen(context.desktop, name),
      Label1(*this, "Label1"),
      Option1(*this, "Option1"),
      Option2(*this, "Option2"),
      ComboEK(*this, "ComboEK"),
      aktEK(*this, "aktEK"),
      OKButton(*this, "OKButton"),
      context_(context) {
  OKButton.OnClick = [this] { Confirm(); };
  ComboEK.OnEnter = ComboEK.OnClick = [this] { Option1.SetValue(true); };
  aktEK.OnEnter = [this] { EnterTypedPrice(); };
  aktEK.OnClick = aktEK.OnChange = [this] { ChooseTypedPrice(); };
  aktEK.OnLeave = [this] { LeaveTypedPrice(); };
  aktEK.OnKey = [this](Key& key) {
    if (!key.Is(KeyCode::Enter)) return;
    key.handled = true;
    LeaveTypedPrice();
    Confirm();
  };
  Option2.OnClick = [this] { ChooseTypedPrice(); };
}

void ReceiptDialog::Prepare(const std::array<std::string, 3>& knownPrices) {
  Load();
  for (const std::string& price : knownPrices)
    if (!price.empty()) ComboEK.AddItem(price);
  const bool known = ComboEK.Count() > 0;
  ComboEK.SetListIndex(0);
  ComboEK.SetEnabled(known);
  Option1.SetEnabled(known);
  (known ? Option1 : Option2).SetValue(true);
  chosenByEntering_ = false;
  Confirmed = false;
  Cancelled = false;
}

bool ReceiptDialog::Run(const std::array<std::string, 3>& knownPrices) {
  Prepare(knownPrices);
  Show();
  FirstField().SetFocus();
  if (!context_.platform.WaitUntil([this] { return Confirmed || Cancelled; })) return false;
  const bool confirmed = Confirmed;
  if (confirmed) Unload();
  Confirmed = false;
  Cancelled = false;
  return confirmed;
}

// Whoever clicks or types there means it, even if he leaves the field empty.
void ReceiptDialog::ChooseTypedPrice() {
  chosenByEntering_ = false;
  Option2.SetValue(true);
}

void ReceiptDialog::EnterTypedPrice() {
  if (!Option1.Value()) return;
  chosenByEntering_ = true;
  Option2.SetValue(true);
}

// Who only passes through the field on his way with the Tab or Enter key keeps the known price.
void ReceiptDialog::LeaveTypedPrice() {
  if (!chosenByEntering_) return;
  chosenByEntering_ = false;
  if (aktEK.Text().empty()) Option1.SetValue(true);
}

void ReceiptDialog::Confirm() {
  if (!FieldsValid()) return;
  if (Option2.Value() && aktEK.Text().empty()) {
    context_.platform.Tell("Bitte aktuellen EK angeben!");
    aktEK.SetFocus();
    return;
  }
  Confirmed = true;
}

}  // namespace kontorwerk
