// The tie between one control and its widget, in both directions: what the control tells is shown, what the user does
// at the widget goes to the control as the user's act. A tie can go on to another control, as rows of a grid do when
// they scroll.
//
// The control has the last word: after each act of the user the widget is put back to what the control says.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Control.h"

class QAction;

namespace kontorwerk {

// What a tie asks of the window it belongs to.
class BindingHost {
 public:
  virtual ~BindingHost() = default;
  // The user turns to the control: the focus moves there. False if it is somewhere else afterwards; the act then ends.
  virtual bool Take(Control& control) = 0;
  // Something that decoration may follow is shown or hidden now.
  virtual void VisibilityChanged() = 0;
};

class Binding : public QObject {
 public:
  ~Binding() override;

  // Shows another control from now on, or none. All of it is shown at once.
  void Attach(Control* control);
  [[nodiscard]] Control* Bound() const { return control_; }
  // The control has told a change.
  void Update(Aspect aspect, int detail);
  // Shows what waits to be shown together.
  virtual void Settle() {}
  // The colours of the theme are others.
  virtual void ThemeChanged();

  [[nodiscard]] QWidget* Widget() const { return widget_; }
  // Where keys and mouse presses for the control arrive.
  [[nodiscard]] virtual QList<QWidget*> InputWidgets() const;
  // What takes the toolkit's focus.
  [[nodiscard]] virtual QWidget* FocusWidget() const { return widget_; }
  // True if the widget itself goes on with a key that the control has left.
  [[nodiscard]] virtual bool WantsKey(const Key& key) const {
    (void)key;
    return true;
  }
  // The text that was last given to the control as typed; for the operator's hands.
  [[nodiscard]] const std::string& LastTyped() const { return lastTyped_; }
  // The user clicks the widget's main part.
  virtual void Click() {}

 protected:
  Binding(QWidget* widget, BindingHost& host);

  virtual void ShowState(Aspect aspect, int detail) = 0;
  // The aspects that make up the whole state of the kind.
  virtual void ShowAll() = 0;
  virtual void ShowVisible(bool visible);
  virtual void ShowEnabled();
  virtual void ShowToolTip(const QString& toolTip);
  virtual void ShowColours();

  template <typename ControlType>
  [[nodiscard]] ControlType* As() const {
    return static_cast<ControlType*>(control_);
  }
  // True while the widget is being put into the control's state: its signals are no acts then.
  [[nodiscard]] bool Showing() const { return showing_ > 0; }
  [[nodiscard]] BindingHost& Host() const { return host_; }
  // Runs an act of the user with the focus on the control, then shows the control's state.
  template <typename Act>
  void UserAct(Act&& act) {
    if (Showing() || control_ == nullptr) return;
    const Control* const before = control_;
    if (host_.Take(*control_) && control_ == before) act();
    if (control_ != nullptr) ShowAgain();
  }
  void ShowAgain();

  std::string lastTyped_;

 private:
  QWidget* widget_;
  BindingHost& host_;
  Control* control_ = nullptr;
  int showing_ = 0;
};

// Captions with mnemonics: a caption of the program that is the form's own shows the form's underlined letter.
class CaptionText {
 public:
  // `text` is the widget's own as the form has it.
  explicit CaptionText(QString text);
  // What the widget shows for the caption.
  [[nodiscard]] QString Shown(std::string_view caption) const;

 private:
  QString own_;
  QString plain_;
};

// The tie for a widget of a form, by the widget's class; null for one that only decorates.
[[nodiscard]] std::unique_ptr<Binding> MakeBinding(QWidget* widget, BindingHost& host);
[[nodiscard]] std::unique_ptr<Binding> MakeBinding(QAction* action, BindingHost& host);

}  // namespace kontorwerk
