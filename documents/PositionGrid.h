// The position rows of a document: one row as a value, and the arithmetic of inserting and deleting rows, pages and row
// labels. It works on a list of rows; the document screen uses the templates on its arrays of controls.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

struct PositionRow {
  std::string LGNr;   // stock number
  std::string ArtNr;  // article number
  std::string S;      // quantity, free text
  std::string B;      // description, one printed line
  std::string E;      // single price
  std::string G;      // total price
  bool secondRate = false;

  friend bool operator==(const PositionRow&, const PositionRow&) = default;
};

inline constexpr int kRowsPerPage = 17;
// Rows of the grid that are in view at once.
inline constexpr int kRowsInView = 14;
// Characters that the printed form has room for in a description.
inline constexpr int kDescriptionWidth = 47;

// True if any of the six texts is not empty; the mark of the second rate alone fills no row.
[[nodiscard]] bool IsFilled(const PositionRow& row);
// Index of the last filled row, -1 without one.
[[nodiscard]] int LastFilledRow(const std::vector<PositionRow>& rows);
// Rows that a document stores: up to the last filled one. An empty grid is stored whole.
[[nodiscard]] int StoredRowCount(const std::vector<PositionRow>& rows);
// Printed pages of so many stored rows, at least 1.
[[nodiscard]] int PageCount(int storedRows);
// `rows` rounded up to whole pages, at least one page.
[[nodiscard]] int RowsOfWholePages(int rows);
// Label of the row with this index: its number from 1, with a star where a new printed page begins ("18*", "35*").
[[nodiscard]] std::string PosLabel(int row);
[[nodiscard]] int ScrollMaximum(int rowCount);
// The scroll bar's value after a page was added to now `rowCount` rows.
[[nodiscard]] int ScrollValueOfNewPage(int rowCount);

// Makes room behind `currentRow`: `moveRow(from, to)` copies a row onto another, `clearRow(row)` empties one. The last
// row must be free; its content is overwritten. Behind the last row nothing is cleared.
template <typename MoveRow, typename ClearRow>
void ShiftRowsDown(int rowCount, int currentRow, MoveRow&& moveRow, ClearRow&& clearRow) {
  for (int row = rowCount - 1; row >= currentRow + 2; --row) moveRow(row - 1, row);
  if (currentRow + 1 < rowCount) clearRow(currentRow + 1);
}

// Closes the gap of `currentRow`; the last row becomes empty.
template <typename MoveRow, typename ClearRow>
void ShiftRowsUp(int rowCount, int currentRow, MoveRow&& moveRow, ClearRow&& clearRow) {
  for (int row = currentRow; row < rowCount - 1; ++row) moveRow(row + 1, row);
  clearRow(rowCount - 1);
}

// An empty row behind `currentRow`. A filled last row gets a page of empty rows behind it first.
void InsertRow(std::vector<PositionRow>& rows, int currentRow);
void DeleteRow(std::vector<PositionRow>& rows, int currentRow);
void AddPage(std::vector<PositionRow>& rows);

}  // namespace kontorwerk
