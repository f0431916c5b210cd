// A list with columns. Rows and columns count from 1. The text that an empty list shows is no row.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Control.h"

namespace kontorwerk {

struct ListColumn {
  std::string header;
  bool hidden = false;  // kept for the program, not shown
};

struct ListRow {
  std::vector<std::string> cells;
  std::optional<Colour> colour;  // of the text; nothing: the default
  bool ticked = false;
};

class ListView final : public Control {
 public:
  ListView(Screen& owner, std::string_view name, int index = kNoIndex)
      : Control(owner, ControlKind::ListView, name, index) {}

  [[nodiscard]] const std::vector<ListColumn>& Columns() const { return columns_; }
  // Replaces the columns of the form.
  void SetColumns(std::vector<ListColumn> columns);
  // What the list shows while it has no rows.
  [[nodiscard]] const std::string& EmptyText() const { return emptyText_; }
  void SetEmptyText(std::string_view text);

  [[nodiscard]] int RowCount() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] const std::vector<ListRow>& Rows() const { return rows_; }
  // Empty text outside the list.
  [[nodiscard]] const std::string& Cell(int row, int column) const;
  void SetCell(int row, int column, std::string_view text);
  // Appends a row; its number.
  int AddRow(std::initializer_list<std::string_view> cells);
  int AddRow(ListRow row);
  // Replaces all rows at once, the quick way to fill a long list; nothing is selected afterwards.
  void SetRows(std::vector<ListRow> rows);
  void RemoveRow(int row);
  void Clear() { SetRows({}); }
  void SetRowColour(int row, std::optional<Colour> colour);
  [[nodiscard]] bool Ticked(int row) const;
  void SetTicked(int row, bool ticked);
  // True if rows carry tick boxes.
  [[nodiscard]] bool HasTicks() const { return hasTicks_; }
  void SetHasTicks(bool hasTicks);

  // The selected row, 0 for none.
  [[nodiscard]] int Selected() const { return selected_; }
  // By program: raises no event.
  void Select(int row);
  // Cell of the selected row, empty without one.
  [[nodiscard]] const std::string& SelectedCell(int column) const { return Cell(selected_, column); }
  // Scrolls the row into view.
  void EnsureVisible(int row);

  // Sorts by a column as text, letters of either case alike; the selection stays with its row.
  void Sort(int column, bool ascending);
  // What a click on a header does: ascending when the list is unsorted, descending when it is sorted.
  void ToggleSort(int column);

  void UserClick(int row);        // row 0: beside the rows
  void UserDoubleClick(int row);  // row 0: on what is selected
  void UserTick(int row, bool ticked);
  void UserSort(int column);

  void UseKey(Key& key) override;  // up, down, page up, page down, home, end move the selection as clicks do
  void ResetToDesign(const ControlDesign* design) override;

  std::function<void()> OnClick;   // any click into the list, behind OnSelect
  std::function<void()> OnSelect;  // a row was clicked or reached by key; Selected() tells which
  std::function<void()> OnDoubleClick;
  std::function<void(int column)> OnColumnClick;
  std::function<void(int row)> OnTick;

 private:
  [[nodiscard]] bool Has(int row) const { return row >= 1 && row <= RowCount(); }
  [[nodiscard]] ListRow& At(int row) { return rows_[static_cast<std::size_t>(row - 1)]; }

  std::vector<ListColumn> columns_;
  std::vector<ListRow> rows_;
  std::string emptyText_;
  int selected_ = 0;
  bool hasTicks_ = false;
  bool sorted_ = false;
};

}  // namespace kontorwerk
