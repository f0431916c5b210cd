#include "documents/LFRGForm.h"

#include <utility>

namespace kontorwerk {

LFRGForm::LFRGForm(Context& context) : Screen(context.desktop, "LFRGForm"), context_(context) {
  OKButton.OnClick = [this] { Accept(); };
  CancelButton.OnClick = [this] { Unload(); };
  Label2.OnClick = [this] { Check1.SetChecked(!Check1.Checked()); };
  Combo.OnKey = [this](Key& key) { UseDialogKey(key); };
  Check1.OnKey = [this](Key& key) { UseDialogKey(key); };
}

void LFRGForm::Open(std::string_view caption, std::vector<std::string> entries) {
  Load();
  result_.clear();
  SetCaption(caption);
  Combo.SetItems(std::move(entries));
  Combo.SetListIndex(0);
  Combo.Enable();
  Check1.Hide();
  Label2.Hide();
  Show();
  Combo.SetFocus();
}

void LFRGForm::OfferTick(std::string_view text) {
  Check1.SetChecked(false);
  Check1.Show();
  Label2.SetCaption(text);
  Label2.Show();
}

std::string LFRGForm::WaitForResult() {
  if (!context_.platform.WaitUntil([this] { return !result_.empty(); })) return {};
  return result_;
}

// Hidden only: the caller still reads the tick box.
void LFRGForm::Accept() {
  result_ = std::to_string(Combo.ListIndex() + 1);
  Hide();
}

void LFRGForm::UseDialogKey(Key& key) {
  if (key.Is(KeyCode::Enter)) {
    key.handled = true;
    Accept();
  } else if (key.Is(KeyCode::Escape)) {
    key.handled = true;
    Unload();
  }
}

// However the dialog goes, nobody waits for an answer that can no longer come.
void LFRGForm::OnUnload() {
  if (result_.empty()) result_ = kCancelled;
}

}  // namespace kontorwerk
