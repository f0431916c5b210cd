// The figures of the centres.
#include "shell/Counters.h"

#include <gtest/gtest.h>

#include <string>

namespace kontorwerk {
namespace {

std::string Order(const std::string& status) {
  std::string row = "'0001000";
  for (int column = 2; column < 24; ++column) row += "','x";
  return row + "','" + status + "\r\n";
}

TEST(Counters, LeaveBlankLinesOutEverywhere) {
  EXPECT_EQ(CountRecords(""), 0);
  EXPECT_EQ(CountRecords("\r\n\r\n"), 0);
  EXPECT_EQ(CountRecords("'a\r\n\r\n'b\r\n\r\n"), 2);
  EXPECT_EQ(CountRecords("'a\r\n'b"), 2) << "a last line without its end";
}

TEST(Counters, FinishedAndAbandonedOrdersAreNotUnfinished) {
  const OrderCounts orders = CountOrders(Order("offen") + "\r\n" + Order("erledigt") + Order("abgebrochen") +
                                         Order("Erledigt") + "'short row\r\n");
  EXPECT_EQ(orders.all, 5);
  EXPECT_EQ(orders.unfinished, 3) << "another spelling or no status at all is unfinished";
}

TEST(Counters, DraftsAreToldByTheirFirstTwoCharacters) {
  const DraftCounts drafts = CountDrafts("AB0101/2026=x\r\nEF0102/2026=y\r\n\r\nEF0103/2026\r\n'AB0104/2026\r\nab\r\n");
  EXPECT_EQ(drafts.all, 5);
  EXPECT_EQ(drafts.quotations, 1);
  EXPECT_EQ(drafts.invoices, 2);
}

}  // namespace
}  // namespace kontorwerk
