// What the search screens and the article screen need of the document editor to put an article into the position row
// that waits for it. The editor implements it; which row waits and what the document is are its own knowledge.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "store/Settings.h"

namespace kontorwerk {

// The position rows of the open document, counted from 0.
class PositionReceiver {
 public:
  virtual ~PositionReceiver() = default;

  // The row that the take-over is for.
  [[nodiscard]] virtual int CurrentRow() const = 0;
  [[nodiscard]] virtual bool IsQuotation() const = 0;
  // True while the document carries net prices.
  [[nodiscard]] virtual bool IsNetDocument() const = 0;

  // Empties stock number, article number, quantity, description and both prices; the mark of the second rate stays.
  virtual void ClearRow(int row) = 0;
  virtual void SetStockNumber(int row, std::string_view text) = 0;
  virtual void SetArticleNumber(int row, std::string_view text) = 0;
  virtual void SetQuantity(int row, std::string_view text) = 0;
  virtual void SetDescription(int row, std::string_view text) = 0;
  virtual void SetSinglePrice(int row, std::string_view text) = 0;
  virtual void TickSecondRate(int row) = 0;
  // Makes the row behind `row` free for a further line: a page is added if it lies behind the last row, a row is
  // inserted if it holds text. The number of the free row.
  virtual int FreeRowBehind(int row) = 0;

  // The document comes to the front with the focus on the row's quantity.
  virtual void FocusQuantity(int row) = 0;
  // ... with the focus on the stock number of the first row from `row` on that has no description.
  virtual void FocusNextFreeRow(int row) = 0;
};

struct PositionContent {
  std::string stockNumber;  // empty for an article of the master
  std::string articleNumber;
  std::array<std::string, 4> description;
  std::string netPrice;  // VK
  bool secondRate = false;
};

// Empties the row and fills it: numbers, first description line, single price, mark of the second rate. Each further
// description line that is not empty takes the next row, without gaps. A gross document gets the net price plus tax;
// a net price that is no number leaves its single price empty. The last row that was filled.
int FillPosition(PositionReceiver& receiver, const Settings& settings, int row, const PositionContent& content);

}  // namespace kontorwerk
