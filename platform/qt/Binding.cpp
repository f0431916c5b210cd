// What all ties share: visibility, use, tool tip and colours of the widget; and which tie a widget of a form gets.
#include "platform/qt/Binding.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>

#include "platform/Screen.h"
#include "platform/qt/CaptionBindings.h"
#include "platform/qt/ChoiceBindings.h"
#include "platform/qt/FormClasses.h"
#include "platform/qt/ListBinding.h"
#include "platform/qt/MonthCalendar.h"
#include "platform/qt/QtText.h"
#include "platform/qt/RowsView.h"
#include "platform/qt/TextBindings.h"
#include "platform/qt/Theme.h"

namespace kontorwerk {

Binding::Binding(QWidget* widget, BindingHost& host) : widget_(widget), host_(host) {}

Binding::~Binding() = default;

void Binding::Attach(Control* control) {
  control_ = control;
  if (control_ == nullptr) return;
  ShowVisible(control_->Visible());
  ShowEnabled();
  ShowToolTip(ToQtLines(control_->ToolTip()));
  ShowColours();
  ShowAgain();
}

void Binding::ShowAgain() {
  ++showing_;
  ShowAll();
  --showing_;
}

void Binding::Update(Aspect aspect, int detail) {
  if (control_ == nullptr) return;
  ++showing_;
  switch (aspect) {
    case Aspect::Visible:
      ShowVisible(control_->Visible());
      host_.VisibilityChanged();
      break;
    case Aspect::Enabled:
      ShowEnabled();
      break;
    case Aspect::ToolTip:
      ShowToolTip(ToQtLines(control_->ToolTip()));
      break;
    case Aspect::Colour:
    case Aspect::BackColour:
      ShowColours();
      break;
    default:
      ShowState(aspect, detail);
      break;
  }
  --showing_;
}

void Binding::ThemeChanged() {
  if (control_ == nullptr) return;
  ++showing_;
  ShowColours();
  --showing_;
}

QList<QWidget*> Binding::InputWidgets() const {
  if (widget_ == nullptr) return {};
  return QList<QWidget*>{widget_} + widget_->findChildren<QWidget*>();
}

void Binding::ShowVisible(bool visible) { widget_->setVisible(visible); }

void Binding::ShowEnabled() { widget_->setEnabled(control_->Enabled()); }

// As plain text in paragraphs: a name that looks like markup is shown as it stands.
void Binding::ShowToolTip(const QString& toolTip) {
  widget_->setToolTip(toolTip.isEmpty() ? QString() : Qt::convertFromPlainText(toolTip, Qt::WhiteSpaceNormal));
}

void Binding::ShowColours() {
  QString rules;
  if (control_->ForeColour())
    rules += QStringLiteral("color: %1;").arg(Theme::ShownText(*control_->ForeColour()).name());
  if (control_->BackColour())
    rules += QStringLiteral("background-color: %1;").arg(Theme::ShownBackground(*control_->BackColour()).name());
  if (rules != widget_->styleSheet()) widget_->setStyleSheet(rules);
}

CaptionText::CaptionText(QString text) : own_(std::move(text)), plain_(WithoutMnemonic(own_)) {}

QString CaptionText::Shown(std::string_view caption) const {
  QString text = ToQtLines(caption);
  return text == plain_ ? own_ : text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

std::unique_ptr<Binding> MakeBinding(QWidget* widget, BindingHost& host) {
  if (auto* field = qobject_cast<QLineEdit*>(widget)) return std::make_unique<LineBinding>(field, host);
  if (auto* area = qobject_cast<QPlainTextEdit*>(widget)) return std::make_unique<AreaBinding>(area, host);
  if (auto* area = qobject_cast<QTextEdit*>(widget)) return std::make_unique<DocumentBinding>(area, host);
  if (auto* bar = qobject_cast<QStatusBar*>(widget)) return std::make_unique<StatusBarBinding>(bar, host);
  if (auto* label = dynamic_cast<CaptionLabel*>(widget)) return std::make_unique<LabelBinding>(label, host);
  if (auto* button = qobject_cast<QAbstractButton*>(widget)) return std::make_unique<ButtonBinding>(button, host);
  if (auto* combo = qobject_cast<QComboBox*>(widget)) return std::make_unique<ComboBinding>(combo, host);
  if (auto* list = qobject_cast<QListWidget*>(widget)) return std::make_unique<ListBoxBinding>(list, host);
  if (auto* rows = dynamic_cast<RowsView*>(widget)) return std::make_unique<ListBinding>(rows, host);
  if (auto* calendar = dynamic_cast<MonthCalendar*>(widget)) return std::make_unique<CalendarBinding>(calendar, host);
  if (auto* progress = qobject_cast<QProgressBar*>(widget)) return std::make_unique<ProgressBinding>(progress, host);
  if (auto* bar = qobject_cast<QScrollBar*>(widget)) return std::make_unique<ScrollBinding>(bar, host);
  if (auto* tabs = qobject_cast<QTabWidget*>(widget)) return std::make_unique<TabBinding>(tabs, host);
  if (auto* menu = qobject_cast<QMenu*>(widget)) return std::make_unique<ActionBinding>(menu->menuAction(), host);
  return nullptr;
}

std::unique_ptr<Binding> MakeBinding(QAction* action, BindingHost& host) {
  return std::make_unique<ActionBinding>(action, host);
}

}  // namespace kontorwerk
