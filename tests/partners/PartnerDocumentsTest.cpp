// The open documents of a customer: rows, sums of the kinds, the reminder that counts.
#include "partners/PartnerDocuments.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "store/RecordLine.h"

namespace kontorwerk {
namespace {

std::string Line(std::initializer_list<std::pair<int, std::string_view>> columns) {
  std::vector<std::string> fields(62);
  for (const auto& [column, text] : columns) fields[static_cast<std::size_t>(column - 1)] = text;
  return RecordLine(fields) + "\r\n";
}

TEST(PartnerDocuments, InvoiceCountsWithItsRestTheOthersGross) {
  const std::string table = Line({{1, "RG"},
                                  {2, "0301/2026"},
                                  {3, "01.10.2026"},
                                  {4, "00100"},
                                  {18, "119,00"},
                                  {19, "19,00"},
                                  {20, "100,00"}}) +
                            Line({{1, "LS"}, {2, "0200/2026"}, {4, "00100"}, {18, "10,50"}, {19, "99,00"}}) +
                            Line({{1, "AB"}, {2, "0100/2026"}, {4, "00100"}, {18, "0,10"}}) +
                            Line({{1, "AB"}, {2, "0101/2026"}, {4, "00100"}, {18, "0,20"}}) +
                            Line({{1, "GS"}, {2, "0050/2026"}, {4, "00100"}, {18, "-7,00"}}) +
                            Line({{1, "RG"}, {2, "0302/2026"}, {4, "00101"}, {18, "1,00"}, {19, "1,00"}});
  const PartnerDocuments open = PartnerDocumentsOf(table, "00100");
  ASSERT_EQ(open.documents.size(), 5U);
  EXPECT_EQ(open.documents[0].number, "0301/2026");
  EXPECT_EQ(open.documents[0].gross, "119,00");
  EXPECT_EQ(open.documents[0].paid, "100,00");
  EXPECT_EQ(open.documents[0].rest, "19,00");
  EXPECT_EQ(open.invoices, "19,00");
  EXPECT_EQ(open.deliveryNotes, "10,50");
  EXPECT_EQ(open.quotations, "0,30");
  EXPECT_EQ(open.creditNotes, "-7,00");
}

TEST(PartnerDocuments, NobodyElsesDocumentCounts) {
  const PartnerDocuments open =
      PartnerDocumentsOf(Line({{1, "RG"}, {4, "00101"}, {5, "00100"}, {19, "5,00"}}), "00100");
  EXPECT_TRUE(open.documents.empty());
  EXPECT_EQ(open.invoices, "0,00");
  EXPECT_EQ(open.quotations, "0,00");
}

TEST(PartnerDocuments, AmountThatIsNoNumberCountsNothing) {
  const std::string table = Line({{1, "RG"}, {4, "1"}, {19, "viel"}}) + Line({{1, "RG"}, {4, "1"}}) +
                            Line({{1, "RG"}, {4, "1"}, {19, "1.234,56"}});
  EXPECT_EQ(PartnerDocumentsOf(table, "1").invoices, "1234,56");
}

TEST(PartnerDocuments, LastReminderCounts) {
  const std::string table = Line({{1, "RG"}, {4, "1"}}) + Line({{4, "1"}, {59, "01.01.2026"}}) +
                            Line({{4, "1"}, {59, "01.01.2026"}, {60, "01.02.2026"}}) +
                            Line({{4, "1"}, {59, "01.01.2026"}, {60, "01.02.2026"}, {61, "01.03.2026"}});
  std::vector<std::string> dates;
  for (const PartnerDocument& document : PartnerDocumentsOf(table, "1").documents)
    dates.push_back(document.reminderDate);
  EXPECT_EQ(dates, (std::vector<std::string>{"", "01.01.2026", "01.02.2026", "01.03.2026"}));
}

}  // namespace
}  // namespace kontorwerk
