// What the two goods-receipt dialogs have in common: the choice of the purchase price and the way out. A dialog ends by
// exactly one of its two truth values; the receipt that has opened it waits for them.
//
//   Option1, ComboEK   one of the article's known prices
//   Option2, aktEK     a price typed now; the only way if no price is known
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/ChoiceControls.h"
#include "platform/Context.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

class ReceiptDialog : public Screen {
 public:
  Label Label1;
  OptionButton Option1, Option2;
  ComboBox ComboEK;
  TextBox aktEK;
  CommandButton OKButton;

  bool Confirmed = false;
  bool Cancelled = false;

  // Shows the dialog and waits for its end. True if it was confirmed; its fields keep their values after it has closed.
  [[nodiscard]] bool Run(const std::array<std::string, 3>& knownPrices);
  [[nodiscard]] const std::string& Price() const { return Option1.Value() ? ComboEK.Text() : aktEK.Text(); }

 protected:
  ReceiptDialog(Context& context, std::string_view name);

  // Where typing begins.
  [[nodiscard]] virtual Control& FirstField() = 0;
  // True if the fields of the dialog itself are in order; tells the user what is not.
  [[nodiscard]] virtual bool FieldsValid() { return true; }
  void Confirm();

  Context& context_;

 private:
  void OnUnload() override { Cancelled = !Confirmed; }
  void Prepare(const std::array<std::string, 3>& knownPrices);
  void ChooseTypedPrice();
  void EnterTypedPrice();
  void LeaveTypedPrice();

  // The typed price was chosen by entering its field with the keyboard, not by a click or by typing.
  bool chosenByEntering_ = false;
};

}  // namespace kontorwerk
