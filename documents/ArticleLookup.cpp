// A search runs over the whole table and the last line that counts fills the row: what the rows of one EAN have in
// common is entered once, however many pieces lie in the stock.
#include "documents/ArticleLookup.h"

#include <array>
#include <string>

#include "stock/ArticleRecords.h"
#include "stock/StockRecords.h"
#include "store/RecordLine.h"

namespace kontorwerk {
namespace {

constexpr int kStockNumberLength = 6;  // "#" and five digits
constexpr int kShortestEanInArticleNumber = 9;
constexpr int kDescriptionLines = 4;

// The last line for which `matches(line)` holds; empty without one.
template <typename Matches>
std::string_view LastLine(std::string_view tableText, Matches&& matches) {
  std::string_view found;
  ForEachRow(tableText, [&](std::string_view line) {
    if (matches(line)) found = line;
  });
  return found;
}

// An article that is kept in stock has to be taken by its stock number; a quotation may name it anyway.
bool IsOffered(const PositionReceiver& receiver, std::string_view articleRow) {
  return RecordField(articleRow, kArticleStockKept) == "0" || receiver.IsQuotation();
}

struct MasterHit {
  std::string_view row;  // the last line that may be taken
  bool refused = false;  // at least one line may not
};

template <typename Matches>
MasterHit FindInMaster(const PositionReceiver& receiver, std::string_view tableText, Matches&& matches) {
  MasterHit hit;
  ForEachRow(tableText, [&](std::string_view line) {
    if (!matches(line)) return;
    if (IsOffered(receiver, line)) {
      hit.row = line;
    } else {
      hit.refused = true;
    }
  });
  return hit;
}

std::string DocumentArticleNumber(std::string_view number) { return Concat(CategoryOf(number), DigitsOf(number)); }

// The four lines that begin at column `first`: the first into the row, the others without gaps behind it. The last row
// that was filled.
int FillDescription(PositionReceiver& receiver, int row, std::string_view line, int first) {
  receiver.SetDescription(row, RecordField(line, first));
  int last = row;
  for (int column = first + 1; column < first + kDescriptionLines; ++column) {
    const std::string_view text = RecordField(line, column);
    if (text.empty()) continue;
    last = receiver.FreeRowBehind(last);
    receiver.SetDescription(last, text);
  }
  return last;
}

void FillFromMaster(PositionReceiver& receiver, int row, std::string_view line) {
  receiver.ClearRow(row);
  receiver.SetArticleNumber(row, DocumentArticleNumber(RecordField(line, kArticleNumber)));
  FillDescription(receiver, row, line, kArticleDescription1);
  receiver.SetSinglePrice(row, RecordField(line, receiver.IsNetDocument() ? kArticleNetPrice : kArticleGrossPrice));
  if (RecordField(line, kArticleSecondRate) == "1") receiver.TickSecondRate(row);
  receiver.FocusQuantity(row);
}

void AddLine(PositionReceiver& receiver, int& last, std::string_view caption, std::string_view number) {
  if (number.empty()) return;
  last = receiver.FreeRowBehind(last);
  receiver.SetDescription(last, Concat(caption, number));
}

void FillFromStock(PositionReceiver& receiver, int row, std::string_view line) {
  receiver.SetArticleNumber(row, DocumentArticleNumber(RecordField(line, kStockArtNr)));
  receiver.SetStockNumber(row, RecordField(line, kStockLagerNr));
  int last = FillDescription(receiver, row, line, kStockB1);
  receiver.SetSinglePrice(row, RecordField(line, receiver.IsNetDocument() ? kStockVK : kStockBrutto));
  if (RecordField(line, kStockMWST2) == "1") receiver.TickSecondRate(row);
  AddLine(receiver, last, "SerienNr. ", RecordField(line, kStockSerNr));
  AddLine(receiver, last, "IMEINr ", RecordField(line, kStockIMEINr));
  if (IsSingleItem(line)) {
    receiver.SetQuantity(row, "1");
    receiver.FocusNextFreeRow(row);
  } else {
    receiver.FocusQuantity(row);
  }
}

LookupResult Refuse(PositionReceiver& receiver, int row) {
  receiver.ClearRow(row);
  return LookupResult::Refused;
}

}  // namespace

bool IsEanInStockNumber(std::string_view text) {
  return static_cast<int>(text.size()) > kStockNumberLength && text.front() != '#';
}

bool IsEanInArticleNumber(std::string_view text) {
  return static_cast<int>(text.size()) >= kShortestEanInArticleNumber;
}

LookupResult LookupByArticleNumber(PositionReceiver& receiver, RecordStore& store, int row, std::string_view text) {
  const std::string articles = store.ReadTableText(table::kArticles);
  const std::string number = UCase(text);
  const MasterHit hit = FindInMaster(
      receiver, articles, [&](std::string_view line) { return UCase(RecordField(line, kArticleNumber)) == number; });
  if (!hit.row.empty()) {
    FillFromMaster(receiver, row, hit.row);
    return LookupResult::Filled;
  }
  if (hit.refused) return Refuse(receiver, row);
  receiver.SetArticleNumber(row, "");
  return LookupResult::NotFound;
}

LookupResult LookupByStockNumber(PositionReceiver& receiver, RecordStore& store, int row, std::string_view text) {
  const std::string stock = store.ReadTableText(table::kStock);
  std::string_view line;
  // A number that occurs nowhere is told apart without looking at the lines.
  if (InStr(stock, text) > 0)
    line = LastLine(stock, [text](std::string_view row) { return RecordField(row, kStockLagerNr) == text; });
  if (line.empty()) {
    receiver.SetStockNumber(row, "");
    return LookupResult::NotFound;
  }
  FillFromStock(receiver, row, line);
  return LookupResult::Filled;
}

LookupResult LookupByEAN(PositionReceiver& receiver, RecordStore& store, int row, std::string_view text) {
  const std::string articles = store.ReadTableText(table::kArticles);
  const MasterHit master = FindInMaster(
      receiver, articles, [text](std::string_view line) { return RecordField(line, kArticleEan) == text; });
  const std::string stock = store.ReadTableText(table::kStock);
  const std::string_view stockLine = LastLine(stock, [text](std::string_view line) {
    return RecordField(line, kStockEANNr) == text || RecordField(line, kStockSerNr) == text ||
           RecordField(line, kStockIMEINr) == text;
  });
  if (!stockLine.empty()) {
    // A hit in the master empties the row, even where the stock then fills it.
    if (!master.row.empty() || master.refused) receiver.ClearRow(row);
    FillFromStock(receiver, row, stockLine);
    return LookupResult::Filled;
  }
  if (!master.row.empty()) {
    FillFromMaster(receiver, row, master.row);
    return LookupResult::Filled;
  }
  return master.refused ? Refuse(receiver, row) : LookupResult::NotFound;
}

}  // namespace kontorwerk
