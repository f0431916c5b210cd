#include "platform/ChoiceControls.h"

#include <algorithm>
#include <utility>

#include "platform/FormDesign.h"
#include "platform/Screen.h"

namespace kontorwerk {

void CheckBox::SetChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  Notify(Aspect::Value);
  Raise(OnChange);
}

void CheckBox::UserToggle() {
  SetChecked(!checked_);
  Raise(OnClick);
}

void CheckBox::UseKey(Key& key) {
  if (!key.Is(KeyCode::Space)) return;
  key.handled = true;
  UserToggle();
}

void CheckBox::ResetToDesign(const ControlDesign* design) {
  CaptionControl::ResetToDesign(design);
  const bool checked = design && design->checked;
  if (checked_ == checked) return;
  checked_ = checked;
  Notify(Aspect::Value);
}

void OptionButton::SetValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  Notify(Aspect::Value);
  if (!value) return;
  for (Control* control : Owner().Controls()) {
    if (control == this || control->Kind() != ControlKind::OptionButton) continue;
    auto* other = static_cast<OptionButton*>(control);
    if (other->group_ == group_) other->SetValue(false);
  }
}

void OptionButton::UserChoose() {
  SetValue(true);
  Raise(OnClick);
}

void OptionButton::UseKey(Key& key) {
  if (!key.Is(KeyCode::Space)) return;
  key.handled = true;
  UserChoose();
}

void OptionButton::ResetToDesign(const ControlDesign* design) {
  CaptionControl::ResetToDesign(design);
  group_ = design ? design->group : std::string();
  const bool value = design && design->checked;
  if (value_ == value) return;
  value_ = value;
  Notify(Aspect::Value);
}

void ChoiceControl::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  Notify(Aspect::Items);
  const bool changed = listIndex_ != kNone;
  listIndex_ = kNone;
  text_.clear();
  Notify(Aspect::ListIndex);
  if (changed) Raise(OnChange);
}

void ChoiceControl::AddItem(std::string_view item) {
  items_.emplace_back(item);
  Notify(Aspect::Items);
}

void ChoiceControl::SetItem(int index, std::string_view text) {
  if (index < 0 || index >= Count() || items_[static_cast<std::size_t>(index)] == text) return;
  items_[static_cast<std::size_t>(index)] = text;
  if (index == listIndex_) text_ = text;
  Notify(Aspect::Items, index);
}

void ChoiceControl::RemoveItem(int index) {
  if (index < 0 || index >= Count()) return;
  items_.erase(items_.begin() + index);
  Notify(Aspect::Items);
  if (index == listIndex_) {
    SetListIndex(kNone);
  } else if (index < listIndex_) {
    --listIndex_;
    Notify(Aspect::ListIndex);
  }
}

void ChoiceControl::SetListIndex(int index) {
  if (index < 0 || index >= Count()) index = kNone;
  std::string text = index == kNone ? std::string() : items_[static_cast<std::size_t>(index)];
  if (index == listIndex_ && text == text_) return;
  listIndex_ = index;
  text_ = std::move(text);
  Notify(Aspect::ListIndex);
  Raise(OnChange);
}

void ChoiceControl::SetText(std::string_view text) {
  const auto found = std::find(items_.begin(), items_.end(), text);
  const int index = found == items_.end() ? kNone : static_cast<int>(found - items_.begin());
  if (index == listIndex_ && text_ == text) return;
  listIndex_ = index;
  text_ = text;
  Notify(Aspect::ListIndex);
  Raise(OnChange);
}

void ChoiceControl::UserChoose(int index) {
  SetListIndex(index);
  Raise(OnClick);
}

void ChoiceControl::UserText(std::string_view text) {
  listIndex_ = kNone;
  const auto found = std::find(items_.begin(), items_.end(), text);
  if (found != items_.end()) listIndex_ = static_cast<int>(found - items_.begin());
  text_ = text;
  Notify(Aspect::ListIndex);
  Raise(OnChange);
}

void ChoiceControl::UseKey(Key& key) {
  int step = 0;
  if (key.Is(KeyCode::Up)) step = -1;
  if (key.Is(KeyCode::Down)) step = 1;
  if (step == 0) return;
  key.handled = true;
  const int next = listIndex_ == kNone ? 0 : std::clamp(listIndex_ + step, 0, std::max(0, Count() - 1));
  if (next != listIndex_ && next < Count()) UserChoose(next);
}

void ChoiceControl::ResetToDesign(const ControlDesign* design) {
  Control::ResetToDesign(design);
  items_ = design ? design->items : std::vector<std::string>();
  listIndex_ = kNone;
  text_ = design ? design->text : std::string();
  if (design && design->value >= 0 && design->value < Count()) {
    listIndex_ = design->value;
    text_ = items_[static_cast<std::size_t>(listIndex_)];
  }
  Notify(Aspect::Items);
  Notify(Aspect::ListIndex);
}

void RangeControl::SetValue(int value) {
  value = std::clamp(value, minimum_, std::max(minimum_, maximum_));
  if (value_ == value) return;
  value_ = value;
  Notify(Aspect::Value);
  Raise(OnChange);
}

void RangeControl::SetRange(int minimum, int maximum) {
  if (minimum_ == minimum && maximum_ == maximum) return;
  minimum_ = minimum;
  maximum_ = maximum;
  Notify(Aspect::Range);
  SetValue(value_);
}

void RangeControl::ResetToDesign(const ControlDesign* design) {
  Control::ResetToDesign(design);
  const ControlDesign fallback;
  const ControlDesign& form = design ? *design : fallback;
  minimum_ = form.minimum;
  maximum_ = form.maximum;
  value_ = std::clamp(form.value, minimum_, std::max(minimum_, maximum_));
  Notify(Aspect::Range);
  Notify(Aspect::Value);
}

const std::string& StatusBar::Panel(int panel) const {
  static const std::string kEmpty;
  return panel >= 1 && panel <= PanelCount() ? panels_[static_cast<std::size_t>(panel - 1)] : kEmpty;
}

void StatusBar::SetPanel(int panel, std::string_view text) {
  if (panel < 1 || panel > PanelCount() || panels_[static_cast<std::size_t>(panel - 1)] == text) return;
  panels_[static_cast<std::size_t>(panel - 1)] = text;
  Notify(Aspect::Panel, panel);
}

void StatusBar::ResetToDesign(const ControlDesign* design) {
  Control::ResetToDesign(design);
  panels_.assign(4, std::string());
  if (design && !design->items.empty()) panels_ = design->items;
  Notify(Aspect::Panel);
}

}  // namespace kontorwerk
