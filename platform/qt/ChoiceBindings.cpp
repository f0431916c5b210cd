// Entries and choices both ways; changes by the control are shown with the widgets' signals held back.
#include "platform/qt/ChoiceBindings.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QTabBar>

#include "platform/ChoiceControls.h"
#include "platform/MonthView.h"
#include "platform/qt/FormClasses.h"
#include "platform/qt/QtText.h"
#include "platform/qt/TextWidgets.h"

namespace kontorwerk {
namespace {

QStringList ItemsOf(const ChoiceControl& control) {
  QStringList items;
  items.reserve(control.Count());
  for (const std::string& item : control.Items()) items.append(ToQt(item));
  return items;
}

QDate ToQtDate(const Date& date) { return {date.year, date.month, date.day}; }

Date FromQtDate(const QDate& date) { return {date.year(), date.month(), date.day()}; }

}  // namespace

ComboBinding::ComboBinding(QComboBox* combo, BindingHost& host) : Binding(combo, host), combo_(combo) {
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->setMaxVisibleItems(20);
  connect(combo, &QComboBox::activated, this,
          [this](int index) { UserAct([&] { As<ComboBox>()->UserChoose(index); }); });
  if (!combo->isEditable()) return;
  combo->setCompleter(nullptr);
  GuardCharacters(*combo->lineEdit());
  connect(combo->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
    const auto typed = FromQt(text);
    if (typed) UserAct([&] { As<ComboBox>()->UserText(lastTyped_ = *typed); });
  });
}

void ComboBinding::ShowItems() {
  const QSignalBlocker blocker(combo_);
  combo_->clear();
  combo_->addItems(ItemsOf(*As<ComboBox>()));
}

void ComboBinding::ShowChoice() {
  const QSignalBlocker blocker(combo_);
  const ComboBox& control = *As<ComboBox>();
  const QString text = ToQt(control.Text());
  if (combo_->currentIndex() != control.ListIndex()) combo_->setCurrentIndex(control.ListIndex());
  if (combo_->isEditable()) {
    if (combo_->lineEdit()->text() != text) combo_->setEditText(text);
  } else {
    // A text that is none of the entries is shown all the same.
    combo_->setPlaceholderText(control.ListIndex() < 0 ? text : QString());
  }
}

void ComboBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Items) ShowItems();
  if (aspect == Aspect::Items || aspect == Aspect::ListIndex) ShowChoice();
}

void ComboBinding::ShowAll() {
  if (combo_->count() != As<ComboBox>()->Count()) ShowItems();
  ShowChoice();
}

ListBoxBinding::ListBoxBinding(QListWidget* list, BindingHost& host) : Binding(list, host), list_(list) {
  list->setUniformItemSizes(true);
  connect(list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    const int row = list_->row(item);
    UserAct([&] { As<ListBox>()->UserChoose(row); });
  });
  connect(list, &QListWidget::itemDoubleClicked, this, [this] {
    UserAct([this] {
      if (As<ListBox>()->OnDoubleClick) As<ListBox>()->OnDoubleClick();
    });
  });
}

void ListBoxBinding::ShowItems() {
  const QSignalBlocker blocker(list_);
  list_->clear();
  list_->addItems(ItemsOf(*As<ListBox>()));
}

void ListBoxBinding::ShowChoice() {
  const QSignalBlocker blocker(list_);
  list_->setCurrentRow(As<ListBox>()->ListIndex());
}

void ListBoxBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Items) ShowItems();
  if (aspect == Aspect::Items || aspect == Aspect::ListIndex) ShowChoice();
}

void ListBoxBinding::ShowAll() {
  if (list_->count() != As<ListBox>()->Count()) ShowItems();
  ShowChoice();
}

TabBinding::TabBinding(QTabWidget* tabs, BindingHost& host) : Binding(tabs, host), tabs_(tabs) {
  connect(tabs, &QTabWidget::tabBarClicked, this, [this](int index) {
    if (index >= 0) UserAct([&] { As<TabStrip>()->UserChoose(index); });
  });
  connect(tabs, &QTabWidget::currentChanged, this, [this](int index) {
    if (index >= 0 && Bound() != nullptr && As<TabStrip>()->ListIndex() != index)
      UserAct([&] { As<TabStrip>()->UserChoose(index); });
  });
}

void TabBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Items || aspect == Aspect::ListIndex) ShowAll();
}

void TabBinding::ShowAll() {
  const TabStrip& control = *As<TabStrip>();
  for (int i = 0; i < tabs_->count() && i < control.Count(); ++i) {
    const QString text = ToQt(control.Items()[static_cast<std::size_t>(i)]);
    if (WithoutMnemonic(tabs_->tabText(i)) != text) tabs_->setTabText(i, QString(text).replace('&', "&&"));
  }
  if (control.ListIndex() >= 0) tabs_->setCurrentIndex(control.ListIndex());
}

void ProgressBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Value || aspect == Aspect::Range) ShowAll();
}

void ProgressBinding::ShowAll() {
  const ProgressBar& control = *As<ProgressBar>();
  // An empty range would turn into the picture of a work without end.
  bar_->setRange(control.Minimum(), qMax(control.Minimum() + 1, control.Maximum()));
  bar_->setValue(control.Value());
}

ScrollBinding::ScrollBinding(QScrollBar* bar, BindingHost& host) : Binding(bar, host), bar_(bar) {
  connect(bar, &QScrollBar::valueChanged, this, [this](int value) {
    if (!Showing() && Bound() != nullptr) As<ScrollBar>()->SetValue(value);
  });
}

void ScrollBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Value || aspect == Aspect::Range) ShowAll();
}

void ScrollBinding::ShowAll() {
  const ScrollBar& control = *As<ScrollBar>();
  bar_->setRange(control.Minimum(), qMax(control.Minimum(), control.Maximum()));
  bar_->setValue(control.Value());
}

CalendarBinding::CalendarBinding(MonthCalendar* calendar, BindingHost& host)
    : Binding(calendar, host), calendar_(calendar) {
  calendar->isBold = [this](QDate date) { return Bound() != nullptr && As<MonthView>()->Bold(FromQtDate(date)); };
  connect(calendar, &QCalendarWidget::clicked, this,
          [this](QDate date) { UserAct([&] { As<MonthView>()->UserDate(FromQtDate(date)); }); });
  // The mouse tells the day with its click; by the arrow keys it changes without one.
  connect(calendar, &QCalendarWidget::selectionChanged, this, [this] {
    if (!Showing() && QGuiApplication::mouseButtons() == Qt::NoButton)
      UserAct([&] { As<MonthView>()->UserDate(FromQtDate(calendar_->selectedDate())); });
  });
  connect(calendar, &QCalendarWidget::currentPageChanged, this, [this](int year, int month) {
    if (!Showing() && Bound() != nullptr) As<MonthView>()->UserMonth(year, month);
  });
}

void CalendarBinding::ShowDate() {
  const QDate date = ToQtDate(As<MonthView>()->Value());
  if (calendar_->selectedDate() == date) return;
  const QSignalBlocker blocker(calendar_);
  calendar_->setSelectedDate(date);
}

void CalendarBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Date) {
    // The shown month follows, also where the day was chosen already.
    ShowDate();
    const QSignalBlocker blocker(calendar_);
    calendar_->setCurrentPage(As<MonthView>()->Value().year, As<MonthView>()->Value().month);
  }
  if (aspect == Aspect::BoldDays) calendar_->Redraw();
}

void CalendarBinding::ShowAll() { ShowDate(); }

}  // namespace kontorwerk
