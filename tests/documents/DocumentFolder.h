// A data folder with tables for the operations of documents, and a grid of positions that lookups fill.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "documents/PositionGrid.h"
#include "stock/PositionReceiver.h"
#include "store/RecordStore.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk::testing_support {

class DocumentFolder : public ::testing::Test {
 protected:
  DocumentFolder() { settings_.DBPath = folder_.DataPath(); }

  // The lines with their ends.
  void PutTable(std::string_view fileName, const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    folder_.Put(std::string(fileName), text);
  }
  [[nodiscard]] std::string Table(std::string_view fileName) const {
    return folder_.Content(std::string(fileName)).value_or("(missing)");
  }
  // Blank lines left out.
  [[nodiscard]] std::vector<std::string> Lines(std::string_view fileName) const {
    std::vector<std::string> lines;
    ForEachRow(Table(fileName), [&lines](std::string_view line) { lines.emplace_back(line); });
    return lines;
  }

  TestFolder folder_;
  FaultyDisk disk_;
  FileSystemObject files_{disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
};

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
