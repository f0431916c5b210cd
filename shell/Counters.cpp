#include "shell/Counters.h"

#include "store/RecordLine.h"
#include "store/RecordStore.h"

namespace kontorwerk {
namespace {

constexpr int kOrderStatusColumn = 24;

}  // namespace

int CountRecords(std::string_view tableText) {
  int count = 0;
  ForEachRow(tableText, [&count](std::string_view) { ++count; });
  return count;
}

OrderCounts CountOrders(std::string_view ordersText) {
  OrderCounts counts;
  ForEachRow(ordersText, [&counts](std::string_view row) {
    ++counts.all;
    const std::string_view status = RecordField(row, kOrderStatusColumn);
    if (status != "erledigt" && status != "abgebrochen") ++counts.unfinished;
  });
  return counts;
}

DraftCounts CountDrafts(std::string_view draftsText) {
  DraftCounts counts;
  ForEachRow(draftsText, [&counts](std::string_view row) {
    ++counts.all;
    if (row.starts_with("AB")) ++counts.quotations;
    if (row.starts_with("EF")) ++counts.invoices;
  });
  return counts;
}

}  // namespace kontorwerk
