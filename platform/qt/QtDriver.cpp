// Sends the events that hands would cause, after everything that waits to be drawn has been drawn.
#include "platform/qt/QtDriver.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTabBar>
#include <QWheelEvent>
#include <cstdio>

#include "platform/ChoiceControls.h"
#include "platform/ListView.h"
#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/headless/HeadlessDriver.h"
#include "platform/qt/Keys.h"
#include "platform/qt/ListBinding.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"

namespace kontorwerk {
namespace {

constexpr int kEventMs = 5;
constexpr int kNotch = 120;
constexpr int kRoundsBeforeShot = 5;

void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& point) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, point, widget.mapToGlobal(QPointF(point)), button, held, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void ClickAt(QWidget& widget, const QPoint& point) {
  const QPointer<QWidget> guard(&widget);
  SendMouse(widget, QEvent::MouseButtonPress, point);
  if (guard) SendMouse(widget, QEvent::MouseButtonRelease, point);
}

void DoubleClickAt(QWidget& widget, const QPoint& point) {
  const QPointer<QWidget> guard(&widget);
  ClickAt(widget, point);
  if (guard) SendMouse(widget, QEvent::MouseButtonDblClick, point);
  if (guard) SendMouse(widget, QEvent::MouseButtonRelease, point);
}

// Keeps what the drawing in memory cannot do, and says with each window, out of the error output.
void FilterMessages(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

class QtDriver final : public Driver {
 public:
  QtDriver(int& argc, char** argv, Desktop& desktop)
      : application_(argc, argv), theme_(application_), windows_(desktop), core_(desktop), direct_(desktop) {
    QApplication::setQuitOnLastWindowClosed(false);
    windows_.SetOperated(true);
  }

  bool MoveFocus(Control& control) override;
  void Click(Control& control) override;
  void DoubleClick(Control& control, int row) override;
  void SetText(Control& control, std::string_view text) override;
  void Choose(ChoiceControl& control, int index) override;
  void Tick(ListView& list, int row, bool ticked) override;
  void Select(ListView& list, int row) override;
  void Sort(ListView& list, int column) override;
  void PickDate(MonthView& calendar, const Date& date) override;
  void PressKey(Control& control, const Key& key) override;
  void Wheel(Screen& screen, int notches) override;
  void CloseScreen(Screen& screen) override;
  bool Shot(Screen& screen, const std::string& file) override;
  void RunEvents() override { QCoreApplication::processEvents(QEventLoop::AllEvents, kEventMs); }

 private:
  // The control's tie if its widget can be reached by hand now.
  Binding* Reach(Control& control);
  ListBinding* ReachList(ListView& list) { return static_cast<ListBinding*>(Reach(list)); }
  void Settle();

  QApplication application_;
  Theme theme_;
  QtDesktop windows_;
  Desktop& core_;
  HeadlessDriver direct_;
};

void QtDriver::Settle() {
  windows_.Settle();
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  windows_.Settle();
}

Binding* QtDriver::Reach(Control& control) {
  Settle();
  ScreenWindow* window = windows_.WindowOf(control.Owner());
  if (window == nullptr) return nullptr;
  Binding* binding = window->Reveal(control);
  if (binding == nullptr) return nullptr;
  // Entries of menus have no widget of their own.
  if (binding->Widget() == nullptr) return binding;
  return binding->Widget()->isVisible() && binding->Widget()->isEnabled() ? binding : nullptr;
}

bool QtDriver::MoveFocus(Control& control) {
  if (!control.TakesFocus()) return true;
  Binding* binding = Reach(control);
  if (binding == nullptr || binding->FocusWidget() == nullptr) return core_.MoveFocus(control);
  binding->Widget()->window()->activateWindow();
  binding->FocusWidget()->setFocus(Qt::MouseFocusReason);
  return windows_.Take(control);
}

void QtDriver::Click(Control& control) {
  Binding* binding = Reach(control);
  switch (control.Kind()) {
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::CommandButton:
    case ControlKind::MenuEntry:
      if (binding != nullptr) return binding->Click();
      break;
    case ControlKind::Label:
    case ControlKind::Image:
    case ControlKind::TextBox:
      if (binding != nullptr) return ClickAt(*binding->Widget(), binding->Widget()->rect().center());
      break;
    default:
      break;
  }
  direct_.Click(control);
}

void QtDriver::DoubleClick(Control& control, int row) {
  Binding* binding = Reach(control);
  if (binding != nullptr && control.Kind() == ControlKind::ListView && row > 0) {
    RowsView& view = static_cast<ListBinding*>(binding)->View();
    if (const QPoint point = view.RowPoint(row); !point.isNull()) return DoubleClickAt(*view.viewport(), point);
  }
  if (binding != nullptr && (control.Kind() == ControlKind::Label || control.Kind() == ControlKind::Image))
    return SendMouse(*binding->Widget(), QEvent::MouseButtonDblClick, binding->Widget()->rect().center());
  direct_.DoubleClick(control, row);
}

void QtDriver::SetText(Control& control, std::string_view text) {
  Binding* binding = Reach(control);
  const QString typed = ToQt(text);
  bool changed = false;
  if (binding != nullptr) {
    const auto mark = [&changed] { changed = true; };
    QWidget* widget = binding->Widget();
    auto* combo = qobject_cast<QComboBox*>(widget);
    auto* field = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(widget);
    if (field != nullptr) {
      const auto watch = QObject::connect(field, &QLineEdit::textEdited, field, mark);
      field->selectAll();
      field->insert(typed);
      QObject::disconnect(watch);
    } else if (auto* area = qobject_cast<QPlainTextEdit*>(widget)) {
      const auto watch = QObject::connect(area, &QPlainTextEdit::textChanged, area, mark);
      area->selectAll();
      area->insertPlainText(typed);
      QObject::disconnect(watch);
    }
  }
  // What a widget cannot hold exactly, or already holds, is put in as typed all the same.
  if (!changed || binding->LastTyped() != text) direct_.SetText(control, text);
}

void QtDriver::Choose(ChoiceControl& control, int index) {
  Binding* binding = Reach(control);
  if (binding == nullptr) return direct_.Choose(control, index);
  if (auto* combo = qobject_cast<QComboBox*>(binding->Widget()); combo != nullptr && index < combo->count()) {
    combo->setCurrentIndex(index);
    emit combo->activated(index);
  } else if (auto* list = qobject_cast<QListWidget*>(binding->Widget()); list != nullptr && index < list->count()) {
    list->scrollToItem(list->item(index));
    ClickAt(*list->viewport(), list->visualItemRect(list->item(index)).center());
  } else {
    direct_.Choose(control, index);
  }
}

void QtDriver::Tick(ListView& list, int row, bool ticked) {
  ListBinding* binding = ReachList(list);
  const QPoint point = binding == nullptr ? QPoint() : binding->View().TickPoint(row);
  // A box that is in the wanted state already is still told so, as if it were set anew.
  if (point.isNull() || list.Ticked(row) == ticked) return direct_.Tick(list, row, ticked);
  ClickAt(*binding->View().viewport(), point);
}

void QtDriver::Select(ListView& list, int row) {
  ListBinding* binding = ReachList(list);
  const QPoint point = binding == nullptr ? QPoint() : binding->View().RowPoint(row);
  if (point.isNull()) return direct_.Select(list, row);
  ClickAt(*binding->View().viewport(), point);
}

void QtDriver::Sort(ListView& list, int column) {
  ListBinding* binding = ReachList(list);
  const QPoint point = binding == nullptr ? QPoint() : binding->HeaderPoint(column);
  if (point.isNull()) return direct_.Sort(list, column);
  ClickAt(*binding->View().header()->viewport(), point);
}

void QtDriver::PickDate(MonthView& calendar, const Date& date) {
  Binding* binding = Reach(calendar);
  if (binding == nullptr) return direct_.PickDate(calendar, date);
  emit static_cast<QCalendarWidget*>(binding->Widget())->clicked(QDate(date.year, date.month, date.day));
}

void QtDriver::PressKey(Control& control, const Key& key) {
  Binding* binding = Reach(control);
  if (binding == nullptr || binding->FocusWidget() == nullptr) return direct_.PressKey(control, key);
  QWidget* widget = binding->FocusWidget();
  while (widget->focusProxy() != nullptr) widget = widget->focusProxy();
  const QtKey qt = ToQtKey(key);
  const QPointer<QWidget> guard(widget);
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, qt.code, qt.modifiers);
    if (guard) QApplication::sendEvent(widget, &event);
  }
}

void QtDriver::Wheel(Screen& screen, int notches) {
  Settle();
  ScreenWindow* window = windows_.WindowOf(screen);
  if (window == nullptr || !window->HasRows()) return direct_.Wheel(screen, notches);
  const QPointF point(1, 1);
  QWheelEvent event(point, window->Window().mapToGlobal(point), {}, QPoint(0, notches * kNotch), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&window->Window(), &event);
}

void QtDriver::CloseScreen(Screen& screen) {
  Settle();
  if (ScreenWindow* window = windows_.WindowOf(screen))
    window->Window().close();
  else
    direct_.CloseScreen(screen);
}

bool QtDriver::Shot(Screen& screen, const std::string& file) {
  ScreenWindow* window = windows_.WindowOf(screen);
  if (window == nullptr) return false;
  for (int round = 0; round < kRoundsBeforeShot; ++round) Settle();
  return window->Window().grab().save(QString::fromStdString(file), "PNG");
}

}  // namespace

std::unique_ptr<Driver> MakeQtDriver(int& argc, char** argv, Desktop& desktop) {
  // Without any display the windows are drawn in memory.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY") &&
      !qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(FilterMessages);
  return std::make_unique<QtDriver>(argc, argv, desktop);
}

}  // namespace kontorwerk
