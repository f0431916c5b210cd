// Ties of combo boxes, list boxes, tabs, bars with a value, and the calendar.
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QProgressBar>
#include <QScrollBar>
#include <QTabWidget>

#include "platform/qt/Binding.h"
#include "platform/qt/MonthCalendar.h"

namespace kontorwerk {

class ComboBinding final : public Binding {
 public:
  ComboBinding(QComboBox* combo, BindingHost& host);

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  void ShowItems();
  void ShowChoice();
  QComboBox* combo_;
};

class ListBoxBinding final : public Binding {
 public:
  ListBoxBinding(QListWidget* list, BindingHost& host);

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  void ShowItems();
  void ShowChoice();
  QListWidget* list_;
};

class TabBinding final : public Binding {
 public:
  TabBinding(QTabWidget* tabs, BindingHost& host);
  [[nodiscard]] QList<QWidget*> InputWidgets() const override { return {tabs_->tabBar()}; }
  [[nodiscard]] QWidget* FocusWidget() const override { return tabs_->tabBar(); }

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  QTabWidget* tabs_;
};

class ProgressBinding final : public Binding {
 public:
  ProgressBinding(QProgressBar* bar, BindingHost& host) : Binding(bar, host), bar_(bar) {}
  [[nodiscard]] QList<QWidget*> InputWidgets() const override { return {}; }

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  QProgressBar* bar_;
};

class ScrollBinding final : public Binding {
 public:
  ScrollBinding(QScrollBar* bar, BindingHost& host);

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  QScrollBar* bar_;
};

class CalendarBinding final : public Binding {
 public:
  CalendarBinding(MonthCalendar* calendar, BindingHost& host);

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  void ShowDate();
  MonthCalendar* calendar_;
};

}  // namespace kontorwerk
