// Builds and ties the window, and sorts the events of its widgets: presses, keys, wheel, hover, close.
#include "platform/qt/ScreenWindow.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>

#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "platform/qt/CaptionLabel.h"
#include "platform/qt/FormLoader.h"
#include "platform/qt/Keys.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtText.h"

namespace kontorwerk {
namespace {

constexpr QSize kMemoryScreen{1920, 1080};
constexpr int kTitleBar = 32;
constexpr int kNotch = 120;  // eighths of a degree

std::string NameOf(const QString& name) { return FromQt(name).value_or(std::string()); }

}  // namespace

ScreenWindow::ScreenWindow(Screen& screen, QtDesktop& desktop) : ScreenWindow(screen, desktop, FormFile::Of(screen)) {}

ScreenWindow::ScreenWindow(Screen& screen, QtDesktop& desktop, const FormFile& form)
    : screen_(screen), desktop_(desktop) {
  Build(form);
  CollectFollowers();
  VisibilityChanged();
  ShowCaption();
  window_->installEventFilter(this);
}

ScreenWindow::~ScreenWindow() {
  window_->removeEventFilter(this);
  byWidget_.clear();
  byControl_.clear();
  grids_.clear();
  bindings_.clear();
}

void ScreenWindow::Build(const FormFile& form) {
  FormLoader loader;
  std::unique_ptr<QWidget> root = form.Error().isEmpty() ? loader.Build(form.Xml()) : nullptr;
  if (auto* window = qobject_cast<QMainWindow*>(root.get())) {
    (void)root.release();
    window_.reset(window);
  } else {
    // A form that does not fit is reported before any window is made; the screen then stays empty.
    window_ = std::make_unique<QMainWindow>();
  }
  for (const FormWidget& described : form.Widgets()) {
    if (described.inRow) continue;
    Control* control = screen_.Find(NameOf(described.control), described.index);
    if (control == nullptr) continue;
    if (auto* widget = window_->findChild<QWidget*>(described.name)) {
      Bind(MakeBinding(widget, *this), *control);
    } else if (auto* action = window_->findChild<QAction*>(described.name)) {
      Bind(MakeBinding(action, *this), *control);
    }
  }
  BuildGrids(form, loader);
  ShowPictures();
}

// Those of the decoration as well, which is bound to nothing.
void ScreenWindow::ShowPictures() {
  for (QLabel* label : window_->findChildren<QLabel*>())
    if (auto* caption = dynamic_cast<CaptionLabel*>(label)) caption->LoadPicture();
}

void ScreenWindow::Bind(std::unique_ptr<Binding> binding, Control& control) {
  if (!binding) return;
  binding->Attach(&control);
  byControl_.emplace(&control, binding.get());
  Watch(*binding);
  bindings_.push_back(std::move(binding));
}

void ScreenWindow::Watch(Binding& binding) {
  for (QWidget* widget : binding.InputWidgets()) {
    byWidget_.insert(widget, &binding);
    widget->installEventFilter(this);
    widget->setMouseTracking(true);
  }
}

void ScreenWindow::BuildGrids(const FormFile& form, FormLoader& loader) {
  for (const RowTemplate& row : form.Rows()) {
    auto* place = window_->findChild<QWidget*>(row.name);
    if (place == nullptr) continue;
    auto grid = std::make_unique<RowGrid>(screen_, *place, row, loader, *this);
    for (const auto& cell : grid->Cells()) Watch(*cell);
    grid->onTied = [this] { OnRowsTied(); };
    grids_.push_back(std::move(grid));
  }
}

// Decoration that is shown while one of its controls is, or while none is.
void ScreenWindow::CollectFollowers() {
  for (QWidget* widget : window_->findChildren<QWidget*>()) {
    for (const bool shownWith : {true, false}) {
      const QString names = widget->property(shownWith ? "follows" : "followsNot").toString();
      if (names.isEmpty()) continue;
      Follower follower{widget, {}, shownWith};
      for (const Control* control : screen_.Controls())
        if (names.split(QLatin1Char('|')).contains(ToQt(control->Name()))) follower.followed.push_back(control);
      followers_.push_back(std::move(follower));
    }
  }
}

void ScreenWindow::VisibilityChanged() {
  for (const Follower& follower : followers_) {
    const bool any = std::any_of(follower.followed.begin(), follower.followed.end(),
                                 [](const Control* control) { return control->Visible(); });
    follower.widget->setVisible(any == follower.shownWith);
  }
}

void ScreenWindow::Appear() {
  Settle();
  if (!placed_) PlaceOnScreen();
  window_->show();
  if (Control* first = screen_.FocusedControl() != nullptr ? screen_.FocusedControl() : screen_.FirstInTabOrder())
    FocusOn(*first);
}

void ScreenWindow::Disappear() { window_->hide(); }

// As large as the form says and its texts need, within the screen.
void ScreenWindow::PlaceOnScreen() {
  placed_ = true;
  window_->ensurePolished();
  QRect room = window_->screen()->availableGeometry();
  // Windows that are drawn in memory alone have a screen of a size that means nothing.
  if (QGuiApplication::platformName() == QLatin1String("offscreen")) room.setSize(kMemoryScreen);
  room.setHeight(room.height() - kTitleBar);
  const QSize wanted = window_->size().expandedTo(window_->sizeHint()).boundedTo(room.size());
  window_->resize(wanted);
  const QWidget* before = QApplication::activeWindow();
  QRect place(QPoint(), wanted);
  place.moveCenter(before != nullptr ? before->geometry().center() : room.center());
  place.moveTopLeft({std::clamp(place.left(), room.left(), std::max(room.left(), room.right() - place.width())),
                     std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() - place.height()))});
  window_->move(place.topLeft());
}

void ScreenWindow::ShowCaption() {
  window_->setWindowTitle(ToQtLines(screen_.Caption()).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void ScreenWindow::Update(const Control& control, Aspect aspect, int detail) {
  if (Binding* binding = BindingOf(control)) binding->Update(aspect, detail);
  if (aspect == Aspect::Value || aspect == Aspect::Range)
    for (const auto& grid : grids_) grid->OnScroll(control);
}

void ScreenWindow::OnArray(std::string_view name, int count) {
  for (const auto& grid : grids_) grid->OnArray(name, count);
}

void ScreenWindow::OnRowsTied() {
  const Control* focused = desktop_.Core().Focus();
  if (focused == nullptr || &focused->Owner() != &screen_ || focused->Index() < 0) return;
  if (BindingOf(*focused) != nullptr) {
    FocusOn(*focused);
  } else if (QWidget* widget = window_->focusWidget(); widget != nullptr && byWidget_.contains(widget)) {
    // The row with the focus is out of view: what is typed must not land in the row that took its place.
    widget->clearFocus();
  }
}

void ScreenWindow::ThemeChanged() {
  for (const auto& binding : bindings_) binding->ThemeChanged();
  for (const auto& grid : grids_)
    for (const auto& cell : grid->Cells()) cell->ThemeChanged();
  ShowPictures();
}

void ScreenWindow::Settle() {
  for (const auto& binding : bindings_) binding->Settle();
  for (const auto& grid : grids_) grid->Settle();
}

Binding* ScreenWindow::BindingOf(const Control& control) const {
  const auto found = byControl_.find(&control);
  if (found != byControl_.end()) return found->second;
  if (control.Index() < 0) return nullptr;
  for (const auto& grid : grids_)
    if (Binding* binding = grid->BindingOf(control)) return binding;
  return nullptr;
}

Binding* ScreenWindow::Reveal(const Control& control) {
  if (control.Index() >= 0)
    for (const auto& grid : grids_)
      if (grid->Holds(control.Name())) grid->Reveal(control);
  return BindingOf(control);
}

void ScreenWindow::FocusOn(const Control& control) {
  const Binding* binding = Reveal(control);
  if (binding == nullptr || binding->FocusWidget() == nullptr) return;
  QWidget* widget = binding->FocusWidget();
  const QWidget* now = window_->focusWidget();
  if (!widget->isVisibleTo(window_.get()) || !widget->isEnabled()) return;
  if (now != nullptr && (now == widget || widget->isAncestorOf(now))) return;
  widget->setFocus(Qt::OtherFocusReason);
  // What is typed next goes behind the text.
  if (auto* field = qobject_cast<QLineEdit*>(widget); field != nullptr && !field->hasSelectedText()) field->end(false);
}

bool ScreenWindow::Take(Control& control) { return desktop_.Take(control); }

bool ScreenWindow::eventFilter(QObject* object, QEvent* event) {
  if (object == window_.get()) return OnWindowEvent(*event);
  Binding* binding = byWidget_.value(object);
  if (binding == nullptr || binding->Bound() == nullptr) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return OnPress(*binding, static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
      OnRelease(*binding, *object, static_cast<QMouseEvent&>(*event));
      return false;
    case QEvent::KeyPress:
      return OnKeyPress(*binding, *object, static_cast<QKeyEvent&>(*event));
    case QEvent::FocusIn:
      // The letter of a label beside the field.
      if (static_cast<QFocusEvent*>(event)->reason() == Qt::ShortcutFocusReason) Take(*binding->Bound());
      return false;
    case QEvent::Enter:
    case QEvent::MouseMove:
      OnHover(*binding);
      return false;
    case QEvent::Wheel:
      return OnWheel(*object, static_cast<QWheelEvent&>(*event));
    default:
      return false;
  }
}

bool ScreenWindow::OnWindowEvent(QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      // What the window button does is the screen's decision.
      event.ignore();
      screen_.Close();
      return true;
    case QEvent::WindowActivate:
      desktop_.OnActivated(*this);
      return false;
    case QEvent::KeyPress:
      return OnLostKey(static_cast<QKeyEvent&>(event));
    case QEvent::Wheel:
      return OnWheel(*window_, static_cast<QWheelEvent&>(event));
    default:
      return false;
  }
}

bool ScreenWindow::OnPress(Binding& binding, QMouseEvent& event) {
  const Control* const control = binding.Bound();
  const int boxes = desktop_.ModalCount();
  if (!Take(*binding.Bound())) return true;
  if (binding.Bound() != control) return true;
  if (desktop_.ModalCount() != boxes && event.button() == Qt::LeftButton) {
    // A box came up while the old field was left, and the button was let go over it: the click itself is still due.
    if (auto* button = qobject_cast<QAbstractButton*>(binding.Widget()))
      QTimer::singleShot(0, button, &QAbstractButton::click);
    return true;
  }
  if (event.type() != QEvent::MouseButtonDblClick) return false;
  if (control->Kind() == ControlKind::TextBox || control->Kind() == ControlKind::RichTextBox)
    if (const auto& handler = static_cast<const TextBox*>(control)->OnDoubleClick) handler();
  return false;
}

void ScreenWindow::OnRelease(Binding& binding, QObject& object, const QMouseEvent& event) {
  const Control& control = *binding.Bound();
  if (control.Kind() != ControlKind::TextBox && control.Kind() != ControlKind::RichTextBox) return;
  const auto* area = qobject_cast<QAbstractScrollArea*>(binding.Widget());
  const QObject* face = area != nullptr ? area->viewport() : static_cast<QObject*>(binding.Widget());
  if (&object != face || event.button() != Qt::LeftButton) return;
  if (const auto& handler = static_cast<const TextBox&>(control).OnClick) handler();
}

bool ScreenWindow::OnKeyPress(Binding& binding, QObject& object, const QKeyEvent& event) {
  // A key that the focused widget has left comes up through its parents; it has been here before.
  const QWidget* focused = QApplication::focusWidget();
  if (focused != nullptr && focused != &object && static_cast<QWidget&>(object).isAncestorOf(focused)) return false;
  const std::optional<Key> key = FromQtKey(event);
  Control* const control = binding.Bound();
  if (!key && event.text().isEmpty()) return false;
  if (!Take(*control) || binding.Bound() != control) return true;
  if (!key) return desktop_.Operated();
  if (SendKey(*control, *key) || binding.Bound() != control) return true;
  return desktop_.Operated() || !binding.WantsKey(*key);
}

bool ScreenWindow::SendKey(Control& control, Key key) {
  if (control.OnKey) control.OnKey(key);
  if (key.handled) return true;
  control.UseKey(key);
  if (key.handled) return true;
  if (key.code != KeyCode::Tab || key.ctrl || key.alt) return false;
  Control* next = screen_.NextInTabOrder(control, key.shift);
  // What stands on a page that is not open is passed over.
  for (int i = 0; next != nullptr && i < static_cast<int>(screen_.Controls().size()); ++i) {
    const Binding* binding = BindingOf(*next);
    if (binding == nullptr || binding->Widget() == nullptr || binding->Widget()->isVisibleTo(window_.get())) break;
    next = screen_.NextInTabOrder(*next, key.shift);
  }
  if (next == nullptr || !Take(*next)) return true;
  // What is reached by Tab is ready to be typed over.
  const Binding* reached = BindingOf(*next);
  if (auto* field = reached == nullptr ? nullptr : qobject_cast<QLineEdit*>(reached->Widget())) field->selectAll();
  return true;
}

// A key while the focused row is scrolled out of view: the row comes back and takes the key.
bool ScreenWindow::OnLostKey(const QKeyEvent& event) {
  Control* focused = desktop_.Core().Focus();
  if (focused == nullptr || &focused->Owner() != &screen_ || focused->Index() < 0 || BindingOf(*focused) != nullptr)
    return false;
  FocusOn(*focused);
  Binding* binding = BindingOf(*focused);
  if (binding == nullptr) return false;
  QKeyEvent again(event.type(), event.key(), event.modifiers(), event.text(), event.isAutoRepeat());
  QApplication::sendEvent(binding->FocusWidget(), &again);
  return true;
}

bool ScreenWindow::OnWheel(QObject& object, QWheelEvent& event) {
  // Passing over a closed combo box with the wheel changes nothing.
  if (const auto* combo = qobject_cast<QComboBox*>(&object);
      combo != nullptr && (!combo->hasFocus() || !grids_.empty())) {
    event.ignore();
    return true;
  }
  const bool isPlace = &object == window_.get() || qobject_cast<QScrollBar*>(&object) != nullptr;
  if (grids_.empty() || !isPlace) return false;
  wheelAngle_ += event.angleDelta().y();
  const int notches = wheelAngle_ / kNotch;
  wheelAngle_ -= notches * kNotch;
  event.accept();
  if (notches != 0) screen_.OnWheel(notches);
  return true;
}

void ScreenWindow::OnHover(const Binding& binding) const {
  if (binding.Bound()->OnHover) binding.Bound()->OnHover();
}

}  // namespace kontorwerk
