// Ties of what bears a caption: labels, pictures, buttons, ticks, options, menu entries; and of the status bar.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <vector>

#include "platform/qt/Binding.h"
#include "platform/qt/CaptionLabel.h"

namespace kontorwerk {

class LabelBinding final : public Binding {
 public:
  LabelBinding(CaptionLabel* label, BindingHost& host);
  void Click() override;
  void ThemeChanged() override;

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  CaptionLabel* label_;
  CaptionText caption_;
};

// Push buttons, tick boxes and option buttons.
class ButtonBinding final : public Binding {
 public:
  ButtonBinding(QAbstractButton* button, BindingHost& host);
  void Click() override { button_->click(); }
  [[nodiscard]] bool WantsKey(const Key&) const override { return false; }

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  void ShowCaption();
  void ShowValue();
  void Act();
  void MarkCurrent();

  QAbstractButton* button_;
  CaptionText caption_;
};

// Entries of menus, and submenus.
class ActionBinding final : public Binding {
 public:
  ActionBinding(QAction* action, BindingHost& host);
  void Click() override { action_->trigger(); }
  [[nodiscard]] QList<QWidget*> InputWidgets() const override { return {}; }
  void ThemeChanged() override {}

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;
  void ShowVisible(bool visible) override { action_->setVisible(visible); }
  void ShowEnabled() override;
  void ShowToolTip(const QString& toolTip) override { action_->setToolTip(toolTip); }
  void ShowColours() override {}

 private:
  void ShowCaption();
  void ShowValue();

  QAction* action_;
  CaptionText caption_;
};

// Panels without a text take no room.
class StatusBarBinding final : public Binding {
 public:
  StatusBarBinding(QStatusBar* bar, BindingHost& host);
  [[nodiscard]] QList<QWidget*> InputWidgets() const override { return {}; }

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  void ShowPanel(int panel);

  QStatusBar* bar_;
  std::vector<QLabel*> panels_;
};

}  // namespace kontorwerk
