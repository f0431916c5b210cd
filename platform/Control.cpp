#include "platform/Control.h"

#include <array>

#include "platform/Desktop.h"
#include "platform/FormDesign.h"
#include "platform/Screen.h"

namespace kontorwerk {

std::string_view KindName(ControlKind kind) {
  constexpr std::array<std::string_view, 17> kNames = {
      "TextBox",   "RichTextBox", "Label",     "CommandButton", "CheckBox",  "OptionButton",
      "ComboBox",  "ListBox",     "ListView",  "MonthView",     "StatusBar", "ProgressBar",
      "ScrollBar", "TabStrip",    "MenuEntry", "Timer",         "Image"};
  return kNames[static_cast<std::size_t>(kind)];
}

Control::Control(Screen& owner, ControlKind kind, std::string_view name, int index)
    : owner_(owner), kind_(kind), name_(name), index_(index) {
  owner_.Register(*this);
}

Control::~Control() { owner_.Unregister(*this); }

void Control::Notify(Aspect aspect, int detail) const { owner_.Owner().NotifyControl(*this, aspect, detail); }

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Notify(Aspect::Visible);
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Notify(Aspect::Enabled);
}

void Control::SetToolTip(std::string_view toolTip) {
  if (toolTip_ == toolTip) return;
  toolTip_ = toolTip;
  Notify(Aspect::ToolTip);
}

void Control::SetForeColour(std::optional<Colour> colour) {
  if (foreColour_ == colour) return;
  foreColour_ = colour;
  Notify(Aspect::Colour);
}

void Control::SetBackColour(std::optional<Colour> colour) {
  if (backColour_ == colour) return;
  backColour_ = colour;
  Notify(Aspect::BackColour);
}

bool Control::TakesFocus() const {
  switch (kind_) {
    case ControlKind::Label:
    case ControlKind::Image:
    case ControlKind::MenuEntry:
    case ControlKind::StatusBar:
    case ControlKind::ProgressBar:
    case ControlKind::Timer:
      return false;
    default:
      return enabled_;
  }
}

bool Control::Usable() const { return owner_.Visible() && visible_ && enabled_; }

void Control::SetFocus() {
  if (!TakesFocus()) return;
  if (!owner_.Visible()) {
    owner_.focused_ = this;
    return;
  }
  owner_.Owner().MoveFocus(*this);
}

bool Control::HasFocus() const { return owner_.Owner().Focus() == this; }

void Control::ResetToDesign(const ControlDesign* design) {
  const ControlDesign fallback;
  const ControlDesign& form = design ? *design : fallback;
  SetVisible(form.visible);
  SetEnabled(form.enabled);
  SetToolTip(form.toolTip);
  SetForeColour(std::nullopt);
  SetBackColour(std::nullopt);
}

void Control::UseKey(Key& key) { (void)key; }

}  // namespace kontorwerk
