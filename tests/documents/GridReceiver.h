// The position rows of a document as lookups see them, without a screen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "documents/PositionGrid.h"
#include "stock/PositionReceiver.h"

namespace kontorwerk::testing_support {

// The grid of a document that keeps where the focus went.
class GridReceiver final : public PositionReceiver {
 public:
  std::vector<PositionRow> rows{kRowsPerPage};
  bool quotation = false;
  bool net = true;
  std::string focus;

  [[nodiscard]] int CurrentRow() const override { return 0; }
  [[nodiscard]] bool IsQuotation() const override { return quotation; }
  [[nodiscard]] bool IsNetDocument() const override { return net; }
  void ClearRow(int row) override {
    const bool secondRate = At(row).secondRate;
    At(row) = PositionRow();
    At(row).secondRate = secondRate;
  }
  void SetStockNumber(int row, std::string_view text) override { At(row).LGNr = text; }
  void SetArticleNumber(int row, std::string_view text) override { At(row).ArtNr = text; }
  void SetQuantity(int row, std::string_view text) override { At(row).S = text; }
  void SetDescription(int row, std::string_view text) override { At(row).B = text; }
  void SetSinglePrice(int row, std::string_view text) override { At(row).E = text; }
  void TickSecondRate(int row) override { At(row).secondRate = true; }
  int FreeRowBehind(int row) override {
    if (row + 1 >= static_cast<int>(rows.size())) AddPage(rows);
    if (IsFilled(At(row + 1))) InsertRow(rows, row);
    return row + 1;
  }
  void FocusQuantity(int row) override { focus = "S" + std::to_string(row); }
  void FocusNextFreeRow(int row) override {
    while (row < static_cast<int>(rows.size()) && !At(row).B.empty()) ++row;
    focus = "LGNr" + std::to_string(row);
  }

  [[nodiscard]] PositionRow& At(int row) { return rows.at(static_cast<std::size_t>(row)); }
};

}  // namespace kontorwerk::testing_support
