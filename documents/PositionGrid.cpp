#include "documents/PositionGrid.h"

#include <algorithm>
#include <cstddef>

namespace kontorwerk {

bool IsFilled(const PositionRow& row) {
  return !row.LGNr.empty() || !row.ArtNr.empty() || !row.S.empty() || !row.B.empty() || !row.E.empty() ||
         !row.G.empty();
}

int LastFilledRow(const std::vector<PositionRow>& rows) {
  const auto last = std::find_if(rows.rbegin(), rows.rend(), IsFilled);
  return static_cast<int>(rows.rend() - last) - 1;
}

int StoredRowCount(const std::vector<PositionRow>& rows) {
  const int last = LastFilledRow(rows);
  // Kept: a document without any position is stored with all rows of its grid; the readers count on at least one page.
  return last < 0 ? static_cast<int>(rows.size()) : last + 1;
}

int PageCount(int storedRows) { return std::max(1, (storedRows + kRowsPerPage - 1) / kRowsPerPage); }

int RowsOfWholePages(int rows) { return PageCount(rows) * kRowsPerPage; }

std::string PosLabel(int row) {
  const bool beginsNewPage = row > 0 && row % kRowsPerPage == 0;
  return std::to_string(row + 1) + (beginsNewPage ? "*" : "");
}

int ScrollMaximum(int rowCount) { return rowCount - kRowsInView; }

int ScrollValueOfNewPage(int rowCount) {
  // The new page's first row stands in the fifth line of the view, the end of the old page above it.
  constexpr int kRowsShownOfOldPage = 4;
  return rowCount - kRowsPerPage - kRowsShownOfOldPage;
}

void InsertRow(std::vector<PositionRow>& rows, int currentRow) {
  if (!rows.empty() && IsFilled(rows.back())) AddPage(rows);
  const auto at = [&rows](int row) -> PositionRow& { return rows[static_cast<std::size_t>(row)]; };
  ShiftRowsDown(
      static_cast<int>(rows.size()), currentRow, [&](int from, int to) { at(to) = at(from); },
      [&](int row) { at(row) = PositionRow(); });
}

void DeleteRow(std::vector<PositionRow>& rows, int currentRow) {
  if (rows.empty()) return;
  const auto at = [&rows](int row) -> PositionRow& { return rows[static_cast<std::size_t>(row)]; };
  ShiftRowsUp(
      static_cast<int>(rows.size()), currentRow, [&](int from, int to) { at(to) = at(from); },
      [&](int row) { at(row) = PositionRow(); });
}

void AddPage(std::vector<PositionRow>& rows) { rows.resize(rows.size() + kRowsPerPage); }

}  // namespace kontorwerk
