#include "stock/PositionReceiver.h"

#include <optional>

#include "stock/ArticleRecords.h"
#include "store/Numbers.h"

namespace kontorwerk {

namespace {

std::string SinglePrice(const PositionReceiver& receiver, const PositionContent& content, std::optional<double> rate) {
  if (receiver.IsNetDocument()) return content.netPrice;
  const std::optional<double> net = ToNumber(content.netPrice);
  return net && rate ? RoundedMoneyText(*net + *net * *rate) : std::string();
}

}  // namespace

int FillPosition(PositionReceiver& receiver, const Settings& settings, int row, const PositionContent& content) {
  receiver.ClearRow(row);
  receiver.SetStockNumber(row, content.stockNumber);
  receiver.SetArticleNumber(row, content.articleNumber);
  receiver.SetDescription(row, content.description[0]);
  int last = row;
  for (std::size_t line = 1; line < content.description.size(); ++line) {
    if (content.description[line].empty()) continue;
    last = receiver.FreeRowBehind(last);
    receiver.SetDescription(last, content.description[line]);
  }
  receiver.SetSinglePrice(row, SinglePrice(receiver, content, VatRate(settings, content.secondRate)));
  if (content.secondRate) receiver.TickSecondRate(row);
  return last;
}

}  // namespace kontorwerk
