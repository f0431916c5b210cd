// A small choice dialog that does not block the other screens: the caller sets caption and entries, opens it and waits
// for the result. The document screen asks with it what a delivery note / invoice is to be printed as.
//
//   result   means
//   ""       open, nothing chosen yet
//   "1"...   the chosen entry, counted from 1; the dialog is hidden, its tick box stays readable until it is unloaded
//   "9"      cancelled, or closed in any other way
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ChoiceControls.h"
#include "platform/Context.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

class LFRGForm final : public Screen {
 public:
  static constexpr std::string_view kCancelled = "9";

  explicit LFRGForm(Context& context);

  // Shown with the entries, the first one chosen, without the tick box, and with an empty result.
  void Open(std::string_view caption, std::vector<std::string> entries);
  // Adds the tick box, off, with its text. To be called behind Open.
  void OfferTick(std::string_view text);
  // Opens the dialog and waits for the result; an empty one means that the program ends.
  [[nodiscard]] std::string WaitForResult();

  [[nodiscard]] const std::string& Result() const { return result_; }
  // Forgets an answer; the caller of the next question begins with an empty one.
  void ClearResult() { result_.clear(); }
  // The delivery note after a change is printed again as what it is.
  void SetResult(std::string_view result) { result_ = result; }

  ComboBox Combo{*this, "Combo"};
  CheckBox Check1{*this, "Check1"};
  Label Label2{*this, "Label2"};
  CommandButton OKButton{*this, "OKButton"};
  CommandButton CancelButton{*this, "CancelButton"};

 private:
  void OnUnload() override;
  void Accept();
  void UseDialogKey(Key& key);

  Context& context_;
  std::string result_;
};

}  // namespace kontorwerk
