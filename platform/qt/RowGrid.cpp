// The elements of each array are collected once after a change of size; scrolling only ties anew.
#include "platform/qt/RowGrid.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QTimer>
#include <algorithm>

#include "platform/ChoiceControls.h"
#include "platform/Screen.h"
#include "platform/qt/FormLoader.h"
#include "platform/qt/QtText.h"

namespace kontorwerk {
namespace {

constexpr int kSpacing = 4;
constexpr int kIconSide = 16;

}  // namespace

RowGrid::RowGrid(Screen& screen, QWidget& place, const RowTemplate& row, FormLoader& loader, BindingHost& host)
    : screen_(screen), rows_(row.rows) {
  if (Control* scroll = screen.Find(FromQt(row.scrollBar).value_or(std::string())))
    if (scroll->Kind() == ControlKind::ScrollBar) scroll_ = static_cast<RangeControl*>(scroll);
  delete place.layout();
  auto* grid = new QGridLayout(&place);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kSpacing);
  grid->setVerticalSpacing(kSpacing / 2);
  for (int i = 0; i < rows_; ++i) BuildRow(i, place, row, loader, host);
  grid->setRowStretch(rows_ + 1, 1);
  elements_.resize(names_.size());
  Settle();
}

// Each row is built from the form and its widgets set into the common grid, so that the columns stand in line.
void RowGrid::BuildRow(int row, QWidget& place, const RowTemplate& description, FormLoader& loader, BindingHost& host) {
  const std::unique_ptr<QWidget> built = loader.Build(description.form);
  auto* box = built ? qobject_cast<QBoxLayout*>(built->layout()) : nullptr;
  auto* grid = static_cast<QGridLayout*>(place.layout());
  if (box == nullptr) return;
  for (int column = 0; box->count() > 0; ++column) {
    const int stretch = box->stretch(0);
    const std::unique_ptr<QLayoutItem> item(box->takeAt(0));
    QWidget* widget = item->widget();
    if (widget == nullptr) continue;
    const QString header = widget->property("header").toString();
    if (row == 0 && !header.isEmpty()) {
      auto* label = new QLabel(header, &place);
      label->setProperty("role", QStringLiteral("list-title"));
      grid->addWidget(label, 0, column);
    }
    // Rows that do not exist keep their room: the window stands still while rows come and go.
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    widget->setProperty("rowCell", true);
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) button->setIconSize({kIconSide, kIconSide});
    grid->addWidget(widget, row + 1, column);
    grid->setColumnStretch(column, stretch);
    std::unique_ptr<Binding> binding = MakeBinding(widget, host);
    if (!binding || widget->objectName().startsWith(QLatin1String("deco"))) continue;
    if (row == 0) names_.push_back(FromQt(widget->objectName()).value_or(std::string()));
    cells_.push_back(std::move(binding));
  }
}

bool RowGrid::Holds(std::string_view array) const {
  return std::find(names_.begin(), names_.end(), array) != names_.end();
}

Binding* RowGrid::BindingOf(const Control& element) const {
  const int row = element.Index() - top_;
  const auto found = std::find(names_.begin(), names_.end(), element.Name());
  if (row < 0 || row >= rows_ || found == names_.end()) return nullptr;
  Binding& cell = Cell(row, static_cast<int>(found - names_.begin()));
  return cell.Bound() == &element ? &cell : nullptr;
}

void RowGrid::OnArray(std::string_view name, int count) {
  const auto found = std::find(names_.begin(), names_.end(), name);
  if (found == names_.end()) return;
  const int column = static_cast<int>(found - names_.begin());
  for (int row = std::max(0, count - top_); row < rows_; ++row) Cell(row, column).Attach(nullptr);
  elements_[static_cast<std::size_t>(column)].clear();
  if (!stale_) QTimer::singleShot(0, this, [this] { Settle(); });
  stale_ = true;
}

void RowGrid::OnScroll(const Control& control) {
  if (&control != scroll_ || top_ == scroll_->Value()) return;
  top_ = scroll_->Value();
  if (stale_)
    Settle();
  else
    Tie();
}

void RowGrid::Reveal(const Control& element) {
  Settle();
  const int first = std::clamp(top_, element.Index() - rows_ + 1, element.Index());
  if (first == top_) return;
  top_ = first;
  Tie();
}

void RowGrid::Settle() {
  if (!stale_) return;
  stale_ = false;
  ReadElements();
  Tie();
}

void RowGrid::ReadElements() {
  std::unordered_map<std::string_view, std::size_t> columns;
  for (std::size_t i = 0; i < names_.size(); ++i) {
    columns.emplace(names_[i], i);
    elements_[i].clear();
  }
  for (Control* control : screen_.Controls()) {
    if (control->Index() < 0) continue;
    const auto column = columns.find(control->Name());
    if (column == columns.end()) continue;
    auto& elements = elements_[column->second];
    const auto index = static_cast<std::size_t>(control->Index());
    if (elements.size() <= index) elements.resize(index + 1, nullptr);
    elements[index] = control;
  }
}

void RowGrid::Tie() {
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < static_cast<int>(names_.size()); ++column) {
      const auto& elements = elements_[static_cast<std::size_t>(column)];
      const auto index = static_cast<std::size_t>(top_ + row);
      Control* element = index < elements.size() ? elements[index] : nullptr;
      Binding& cell = Cell(row, column);
      if (cell.Bound() != element) cell.Attach(element);
      // The place of a row that does not exist stays empty.
      if (element == nullptr) cell.Widget()->setVisible(false);
    }
  }
  if (onTied) onTied();
}

}  // namespace kontorwerk
