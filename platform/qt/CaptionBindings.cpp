// Captions, clicks and values of labels, buttons and menu entries; a caption that the program sets is never read as
// markup.
#include "platform/qt/CaptionBindings.h"

#include <QStyle>

#include "platform/ChoiceControls.h"
#include "platform/TextControls.h"
#include "platform/qt/Icons.h"
#include "platform/qt/QtText.h"

namespace kontorwerk {
namespace {

IconTone ToneOf(const QString& role) {
  if (role == QLatin1String("primary")) return IconTone::OnAccent;
  return role == QLatin1String("danger") ? IconTone::Danger : IconTone::Text;
}

}  // namespace

LabelBinding::LabelBinding(CaptionLabel* label, BindingHost& host)
    : Binding(label, host), label_(label), caption_(label->text()) {
  label->LoadPicture();
  label->onClick = [this] { UserAct([this] { As<CaptionControl>()->UserClick(); }); };
  label->onDoubleClick = [this] {
    UserAct([this] {
      if (As<CaptionControl>()->OnDoubleClick) As<CaptionControl>()->OnDoubleClick();
    });
  };
  label->isClickable = [this] { return Bound() != nullptr && As<CaptionControl>()->OnClick; };
}

void LabelBinding::Click() { label_->onClick(); }

void LabelBinding::ThemeChanged() {
  Binding::ThemeChanged();
  label_->LoadPicture();
}

void LabelBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Caption) ShowAll();
}

// Only beside a field does the toolkit take an ampersand of a label for a mnemonic.
void LabelBinding::ShowAll() {
  if (!label_->property("picture").toString().isEmpty()) return;
  const std::string& caption = As<CaptionControl>()->Caption();
  const QString text = label_->buddy() != nullptr ? caption_.Shown(caption) : ToQtLines(caption);
  if (label_->text() != text) label_->setText(text);
}

ButtonBinding::ButtonBinding(QAbstractButton* button, BindingHost& host)
    : Binding(button, host), button_(button), caption_(button->text()) {
  button->setAutoExclusive(false);
  const QString picture = button->property("picture").toString();
  if (!picture.isEmpty()) button->setIcon(ThemeIcon(picture, ToneOf(button->property("role").toString())));
  connect(button, &QAbstractButton::clicked, this, [this] { UserAct([this] { Act(); }); });
}

void ButtonBinding::Act() {
  switch (Bound()->Kind()) {
    case ControlKind::CheckBox:
      As<CheckBox>()->UserToggle();
      break;
    case ControlKind::OptionButton:
      As<OptionButton>()->UserChoose();
      break;
    default:
      MarkCurrent();
      As<CaptionControl>()->UserClick();
      break;
  }
}

// Of the centres beside each other the one that was opened last looks open.
void ButtonBinding::MarkCurrent() {
  if (button_->property("role").toString() != QLatin1String("centre")) return;
  for (QAbstractButton* other : button_->window()->findChildren<QAbstractButton*>()) {
    if (other->property("role").toString() != QLatin1String("centre")) continue;
    other->setProperty("current", other == button_);
    other->style()->unpolish(other);
    other->style()->polish(other);
    other->update();
  }
}

void ButtonBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Caption) ShowCaption();
  if (aspect == Aspect::Value) ShowValue();
}

void ButtonBinding::ShowAll() {
  ShowCaption();
  ShowValue();
}

void ButtonBinding::ShowCaption() {
  const QString text = caption_.Shown(As<CaptionControl>()->Caption());
  if (button_->text() != text) button_->setText(text);
}

void ButtonBinding::ShowValue() {
  if (Bound()->Kind() == ControlKind::CheckBox) button_->setChecked(As<CheckBox>()->Checked());
  if (Bound()->Kind() == ControlKind::OptionButton) button_->setChecked(As<OptionButton>()->Value());
}

ActionBinding::ActionBinding(QAction* action, BindingHost& host)
    : Binding(nullptr, host), action_(action), caption_(action->text()) {
  const QString picture = action->property("picture").toString();
  if (!picture.isEmpty()) action->setIcon(ThemeIcon(picture));
  // The toolkit would move entries such as "Einstellungen" to another menu on some desktops.
  action->setMenuRole(QAction::NoRole);
  connect(action, &QAction::triggered, this, [this] { UserAct([this] { As<MenuEntry>()->UserClick(); }); });
}

void ActionBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Caption) ShowCaption();
  if (aspect == Aspect::Value) ShowValue();
}

void ActionBinding::ShowAll() {
  ShowCaption();
  ShowValue();
}

void ActionBinding::ShowEnabled() { action_->setEnabled(Bound()->Enabled()); }

void ActionBinding::ShowCaption() { action_->setText(caption_.Shown(As<MenuEntry>()->Caption())); }

void ActionBinding::ShowValue() {
  if (As<MenuEntry>()->Checked()) action_->setCheckable(true);
  action_->setChecked(As<MenuEntry>()->Checked());
}

StatusBarBinding::StatusBarBinding(QStatusBar* bar, BindingHost& host) : Binding(bar, host), bar_(bar) {
  bar->setSizeGripEnabled(false);
}

void StatusBarBinding::ShowState(Aspect aspect, int detail) {
  if (aspect != Aspect::Panel) return;
  if (detail < 1)
    ShowAll();
  else
    ShowPanel(detail);
}

void StatusBarBinding::ShowAll() {
  const auto count = static_cast<std::size_t>(As<StatusBar>()->PanelCount());
  while (panels_.size() < count) {
    auto* label = new QLabel(bar_);
    label->setTextFormat(Qt::PlainText);
    // A long text is cut at the window's edge instead of widening the window.
    label->setMinimumWidth(1);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    bar_->addWidget(label, panels_.size() + 1 == count ? 1 : 0);
    panels_.push_back(label);
  }
  for (int panel = 1; panel <= As<StatusBar>()->PanelCount(); ++panel) ShowPanel(panel);
}

void StatusBarBinding::ShowPanel(int panel) {
  if (panel > static_cast<int>(panels_.size())) return;
  QLabel* label = panels_[static_cast<std::size_t>(panel - 1)];
  const QString text = ToQt(As<StatusBar>()->Panel(panel)).replace(QLatin1String("\r\n"), QLatin1String(" "));
  label->setText(text);
  label->setToolTip(text.isEmpty() ? QString() : Qt::convertFromPlainText(text));
  label->setVisible(!text.isEmpty());
}

}  // namespace kontorwerk
