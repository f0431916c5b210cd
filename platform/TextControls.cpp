#include "platform/TextControls.h"

#include "platform/FormDesign.h"

namespace kontorwerk {

void TextBox::SetText(std::string_view text) {
  if (text_ == text) return;
  text_ = text;
  Notify(Aspect::Text);
  Raise(OnChange);
}

void TextBox::SetLocked(bool locked) {
  if (locked_ == locked) return;
  locked_ = locked;
  Notify(Aspect::Enabled);
}

void TextBox::UserText(std::string_view text) {
  if (text_ != text) {
    text_ = text;
    Notify(Aspect::Text);
  }
  Raise(OnChange);
}

bool TextBox::Usable() const { return Control::Usable() && !locked_; }

void TextBox::ResetToDesign(const ControlDesign* design) {
  Control::ResetToDesign(design);
  SetLocked(design && design->locked);
  // The form's text is a state, not a change: no handler runs.
  const std::string_view text = design ? std::string_view(design->text) : std::string_view();
  if (text_ == text) return;
  text_ = text;
  Notify(Aspect::Text);
}

void RichTextBox::SetRtf(std::string_view rtf) {
  if (rtf_ == rtf) return;
  rtf_ = rtf;
  Notify(Aspect::Rtf);
}

void RichTextBox::ResetToDesign(const ControlDesign* design) {
  TextBox::ResetToDesign(design);
  SetRtf({});
}

void CaptionControl::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Notify(Aspect::Caption);
}

void CaptionControl::ResetToDesign(const ControlDesign* design) {
  Control::ResetToDesign(design);
  SetCaption(design ? std::string_view(design->caption) : std::string_view());
}

void CommandButton::UseKey(Key& key) {
  if (!key.Is(KeyCode::Enter) && !key.Is(KeyCode::Space)) return;
  key.handled = true;
  UserClick();
}

void MenuEntry::SetChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  Notify(Aspect::Value);
}

void MenuEntry::ResetToDesign(const ControlDesign* design) {
  CaptionControl::ResetToDesign(design);
  SetChecked(design && design->checked);
}

}  // namespace kontorwerk
