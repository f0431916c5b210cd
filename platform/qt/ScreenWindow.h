// The window of one screen: built from its form when the screen is loaded first, then kept. It ties every widget to its
// control and hands what the user does to the desktop of windows.
#pragma once

#include <QHash>
#include <QMainWindow>
#include <QObject>
#include <QStringList>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/Desktop.h"
#include "platform/qt/Binding.h"
#include "platform/qt/FormFile.h"
#include "platform/qt/RowGrid.h"

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace kontorwerk {

class QtDesktop;

class ScreenWindow final : public QObject, public BindingHost {
 public:
  // The form must fit the screen.
  ScreenWindow(Screen& screen, QtDesktop& desktop);
  // With another form than the screen's own.
  ScreenWindow(Screen& screen, QtDesktop& desktop, const FormFile& form);
  ~ScreenWindow() override;

  [[nodiscard]] QMainWindow& Window() const { return *window_; }
  [[nodiscard]] Screen& Of() const { return screen_; }

  void Appear();
  void Disappear();
  void ShowCaption();
  void Update(const Control& control, Aspect aspect, int detail);
  void OnArray(std::string_view name, int count);
  void ThemeChanged();
  // True if the wheel moves the rows of the window.
  [[nodiscard]] bool HasRows() const { return !grids_.empty(); }
  // Shows all that waits to be shown together.
  void Settle();
  // The tie that shows the control now; null if it has no widget or its row is scrolled out of view.
  [[nodiscard]] Binding* BindingOf(const Control& control) const;
  // The same, after its row has been brought into view.
  [[nodiscard]] Binding* Reveal(const Control& control);
  // The toolkit's focus goes to the control's widget, if that can be seen.
  void FocusOn(const Control& control);
  // A key for a control, as the user presses it. True if nothing is left of it for the widget.
  bool SendKey(Control& control, Key key);

  // BindingHost
  bool Take(Control& control) override;
  void VisibilityChanged() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Build(const FormFile& form);
  void BuildGrids(const FormFile& form, class FormLoader& loader);
  void Bind(std::unique_ptr<Binding> binding, Control& control);
  void Watch(Binding& binding);
  void CollectFollowers();
  void OnRowsTied();
  bool OnWindowEvent(QEvent& event);
  bool OnPress(Binding& binding, QMouseEvent& event);
  void OnRelease(Binding& binding, QObject& object, const QMouseEvent& event);
  bool OnKeyPress(Binding& binding, QObject& object, const QKeyEvent& event);
  bool OnLostKey(const QKeyEvent& event);
  bool OnWheel(QObject& object, QWheelEvent& event);
  void OnHover(const Binding& binding) const;
  void PlaceOnScreen();
  void ShowPictures();

  Screen& screen_;
  QtDesktop& desktop_;
  std::unique_ptr<QMainWindow> window_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::unordered_map<const Control*, Binding*> byControl_;
  QHash<QObject*, Binding*> byWidget_;
  std::vector<std::unique_ptr<RowGrid>> grids_;
  struct Follower {
    QWidget* widget;
    std::vector<const Control*> followed;
    bool shownWith;  // with them, or in their place
  };
  std::vector<Follower> followers_;
  int wheelAngle_ = 0;  // of a notch that is not complete yet
  bool placed_ = false;
};

}  // namespace kontorwerk
