#include "platform/ListView.h"

#include <algorithm>
#include <utility>

#include "platform/FormDesign.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

constexpr int kRowsOfAPage = 10;

// Orders texts as a German reader does: case and umlauts count only between texts that are alike otherwise.
std::string SortKey(std::string_view text) {
  std::string key = LCase(text);
  for (char& c : key) {
    if (c == "ä"_t[0]) c = 'a';
    if (c == "ö"_t[0]) c = 'o';
    if (c == "ü"_t[0]) c = 'u';
    if (c == "ß"_t[0]) c = 's';
  }
  return key;
}

}  // namespace

void ListView::SetColumns(std::vector<ListColumn> columns) {
  columns_ = std::move(columns);
  Notify(Aspect::Columns);
}

void ListView::SetEmptyText(std::string_view text) {
  if (emptyText_ == text) return;
  emptyText_ = text;
  Notify(Aspect::RowLook);
}

const std::string& ListView::Cell(int row, int column) const {
  static const std::string kEmpty;
  if (!Has(row) || column < 1) return kEmpty;
  const auto& cells = rows_[static_cast<std::size_t>(row - 1)].cells;
  return static_cast<std::size_t>(column) <= cells.size() ? cells[static_cast<std::size_t>(column - 1)] : kEmpty;
}

void ListView::SetCell(int row, int column, std::string_view text) {
  if (!Has(row) || column < 1) return;
  auto& cells = At(row).cells;
  if (cells.size() < static_cast<std::size_t>(column)) cells.resize(static_cast<std::size_t>(column));
  cells[static_cast<std::size_t>(column - 1)] = text;
  Notify(Aspect::RowLook, row);
}

int ListView::AddRow(std::initializer_list<std::string_view> cells) {
  ListRow row;
  row.cells.assign(cells.begin(), cells.end());
  return AddRow(std::move(row));
}

int ListView::AddRow(ListRow row) {
  rows_.push_back(std::move(row));
  Notify(Aspect::Rows, RowCount());
  return RowCount();
}

void ListView::SetRows(std::vector<ListRow> rows) {
  rows_ = std::move(rows);
  selected_ = 0;
  sorted_ = false;
  Notify(Aspect::Rows);
  Notify(Aspect::Selection);
}

void ListView::RemoveRow(int row) {
  if (!Has(row)) return;
  rows_.erase(rows_.begin() + (row - 1));
  if (selected_ == row) selected_ = 0;
  if (selected_ > row) --selected_;
  Notify(Aspect::Rows);
  Notify(Aspect::Selection);
}

void ListView::SetRowColour(int row, std::optional<Colour> colour) {
  if (!Has(row)) return;
  At(row).colour = colour;
  Notify(Aspect::RowLook, row);
}

bool ListView::Ticked(int row) const { return Has(row) && rows_[static_cast<std::size_t>(row - 1)].ticked; }

void ListView::SetTicked(int row, bool ticked) {
  if (!Has(row)) return;
  At(row).ticked = ticked;
  Notify(Aspect::RowLook, row);
}

void ListView::SetHasTicks(bool hasTicks) {
  if (hasTicks_ == hasTicks) return;
  hasTicks_ = hasTicks;
  Notify(Aspect::Columns);
}

void ListView::Select(int row) {
  if (!Has(row)) row = 0;
  if (selected_ == row) return;
  selected_ = row;
  Notify(Aspect::Selection);
}

void ListView::EnsureVisible(int row) {
  if (Has(row)) Notify(Aspect::EnsureVisible, row);
}

void ListView::Sort(int column, bool ascending) {
  std::vector<std::pair<std::string, int>> order;
  order.reserve(rows_.size());
  for (int row = 1; row <= RowCount(); ++row) order.emplace_back(SortKey(Cell(row, column)), row);
  std::stable_sort(order.begin(), order.end(),
                   [&](const auto& a, const auto& b) { return ascending ? a.first < b.first : b.first < a.first; });
  std::vector<ListRow> sorted;
  sorted.reserve(rows_.size());
  int selected = 0;
  for (const auto& [key, row] : order) {
    sorted.push_back(std::move(At(row)));
    if (row == selected_) selected = static_cast<int>(sorted.size());
  }
  rows_ = std::move(sorted);
  selected_ = selected;
  Notify(Aspect::Rows);
  Notify(Aspect::Selection);
}

void ListView::ToggleSort(int column) {
  Sort(column, !sorted_);
  sorted_ = !sorted_;
}

void ListView::UserClick(int row) {
  if (Has(row)) {
    Select(row);
    Raise(OnSelect);
  }
  Raise(OnClick);
}

void ListView::UserDoubleClick(int row) {
  if (Has(row)) UserClick(row);
  Raise(OnDoubleClick);
}

void ListView::UserTick(int row, bool ticked) {
  if (!Has(row)) return;
  SetTicked(row, ticked);
  if (OnTick) OnTick(row);
}

void ListView::UserSort(int column) {
  if (OnColumnClick) OnColumnClick(column);
}

void ListView::UseKey(Key& key) {
  if (key.ctrl || key.alt || key.shift || rows_.empty()) return;
  int row = selected_;
  switch (key.code) {
    case KeyCode::Up:
      row -= 1;
      break;
    case KeyCode::Down:
      row += 1;
      break;
    case KeyCode::PageUp:
      row -= kRowsOfAPage;
      break;
    case KeyCode::PageDown:
      row += kRowsOfAPage;
      break;
    case KeyCode::Home:
      row = 1;
      break;
    case KeyCode::End:
      row = RowCount();
      break;
    default:
      return;
  }
  key.handled = true;
  row = std::clamp(row, 1, RowCount());
  if (row == selected_) return;
  Select(row);
  EnsureVisible(row);
  Raise(OnSelect);
}

void ListView::ResetToDesign(const ControlDesign* design) {
  Control::ResetToDesign(design);
  std::vector<ListColumn> columns;
  if (design) {
    for (const std::string& header : design->columns) {
      const bool hidden = header.starts_with('!');
      columns.push_back({hidden ? header.substr(1) : header, hidden});
    }
  }
  hasTicks_ = design && design->checked;
  SetColumns(std::move(columns));
  SetEmptyText(design ? std::string_view(design->text) : std::string_view());
  SetRows({});
}

}  // namespace kontorwerk
