// The reminders of the control centre: articles below their minimum, old open documents.
#include "shell/Reminders.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "store/Text.h"

namespace kontorwerk {
namespace {

// A stock row of 36 columns.
std::string Stock(const std::string& article, const std::string& quantity, const std::string& minimum,
                  const std::string& single) {
  std::string row = "'#01001','" + article + "','Name','" + quantity + "','" + minimum;
  for (int column = 6; column < 35; ++column) row += "','";
  return row + "','" + single + "','\r\n";
}

TEST(StockReminder, CountsAQuantityBelowItsMinimumAsNumbers) {
  EXPECT_EQ(CountArticlesBelowMinimum(""), 0);
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "4", "5", "0")), 1);
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "5", "5", "0")), 0);
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "9", "10", "0")), 1) << "not as text";
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "4,5", "4,75", "0")), 1);
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "-2", "0", "0")), 1);
}

TEST(StockReminder, AnEmptyMinimumNeverCounts) {
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "-5", "", "0")), 0);
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "", "", "1")), 0);
}

TEST(StockReminder, ATextThatIsNoNumberIsZero) {
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "", "1", "0")), 1);
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "viele", "1", "0")), 1);
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "3", "viele", "0")), 0);
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "-3", "viele", "0")), 1);
}

TEST(StockReminder, RowsOfOneArticleCountEachUnlessTheyAreSinglePieces) {
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "1", "3", "0") + Stock("ABC00001", "1", "3", "Falsch")), 2);
  for (const std::string single : {"1", "Wahr", "True", "wahr"})
    EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "1", "3", single) + Stock("ABC00001", "1", "3", single)), 1)
        << single;
}

TEST(StockReminder, SinglePiecesAreCountedByTheirRows) {
  const std::string piece = Stock("ABC00001", "1", "3", "1");
  EXPECT_EQ(CountArticlesBelowMinimum(piece + piece), 1);
  EXPECT_EQ(CountArticlesBelowMinimum(piece + piece + piece), 0);
  EXPECT_EQ(CountArticlesBelowMinimum(piece + piece + Stock("ABC00001", "7", "", "0")), 0)
      << "every row of the article is one, whatever its kind";
}

TEST(StockReminder, APieceWithAnotherMinimumIsLookedAtAgainUntilTheArticleHasCounted) {
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC00001", "1", "2", "1") + Stock("ABC00001", "1", "3", "1")), 1);
}

TEST(StockReminder, AnArticleIsSkippedWhereItsNumberIsPartOfOneThatHasCounted) {
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("XABC12", "1", "3", "1") + Stock("ABC1", "1", "3", "1")), 1);
  EXPECT_EQ(CountArticlesBelowMinimum(Stock("ABC1", "1", "3", "1") + Stock("XABC12", "1", "3", "1")), 2);
}

TEST(StockReminder, BlankLinesAreNoRows) {
  EXPECT_EQ(CountArticlesBelowMinimum("\r\n" + Stock("", "0", "1", "1") + "\r\n\r\n"), 0)
      << "one piece without a number, and its minimum is one";
}

// The count step by step, as slow as it is plain.
int PlainCount(const std::vector<std::array<int, 4>>& rows, const std::vector<std::string>& articles) {
  int count = 0;
  std::string seen;
  for (const auto& [article, quantity, minimum, single] : rows) {
    if (quantity >= minimum) continue;
    if (single == 0) {
      ++count;
      continue;
    }
    const std::string& number = articles[static_cast<std::size_t>(article)];
    if (seen.find(number) != std::string::npos) continue;
    int pieces = 0;
    for (const auto& row : rows)
      if (articles[static_cast<std::size_t>(row[0])] == number) ++pieces;
    if (pieces >= minimum) continue;
    ++count;
    seen += number;
  }
  return count;
}

TEST(StockReminder, AgreesWithThePlainCountOnRandomTables) {
  std::mt19937 random(11);
  const auto below = [&random](unsigned bound) { return static_cast<int>(random() % bound); };
  for (int round = 0; round < 200; ++round) {
    std::vector<std::string> articles;
    for (int i = 0; i < 30; ++i) {
      std::string number;
      for (int k = 2 + below(3); k > 0; --k) number += static_cast<char>('A' + below(3));
      articles.push_back(number);
    }
    std::vector<std::array<int, 4>> rows;
    std::string text;
    for (int i = 0; i < 40; ++i) {
      rows.push_back({below(30), below(3), below(6), below(4) == 0 ? 0 : 1});
      const auto& row = rows.back();
      text += Stock(articles[static_cast<std::size_t>(row[0])], std::to_string(row[1]), std::to_string(row[2]),
                    row[3] == 1 ? "1" : "0");
    }
    ASSERT_EQ(CountArticlesBelowMinimum(text), PlainCount(rows, articles)) << text;
  }
}

TEST(StockReminder, AHundredThousandSinglePiecesOfAsManyArticlesComeOutAtOnce) {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += Stock("ABC" + std::to_string(100000 + i), "1", "2", "1");
  EXPECT_GT(CountArticlesBelowMinimum(text), 90000) << "few numbers arise across two others";
}

constexpr Date kToday{2026, 11, 15};

std::string OpenDocument(const Date& date, const std::string& first = "", const std::string& second = "",
                         const std::string& third = "") {
  std::string row = "'RG','0101/2026','" + DateText(date);
  for (int column = 4; column < 59; ++column) row += "','";
  return row + "','" + first + "','" + second + "','" + third + "','\r\n";
}

std::string DaysAgo(int days) { return DateText(AddDays(kToday, -days)); }
int OldOf(const std::string& row) { return CountOpenDocuments(row, kToday).old; }

TEST(OpenDocumentReminder, CountsEveryNonEmptyLine) {
  const OpenDocumentFigures figures =
      CountOpenDocuments("\r\n" + OpenDocument(kToday) + "\r\n'AB','0101/2026','kein Datum\r\n", kToday);
  EXPECT_EQ(figures.total, 2);
  EXPECT_EQ(figures.old, 0);
}

TEST(OpenDocumentReminder, ADocumentIsOldFromThirtyDaysOn) {
  EXPECT_EQ(OldOf(OpenDocument(AddDays(kToday, -29))), 0);
  EXPECT_EQ(OldOf(OpenDocument(AddDays(kToday, -30))), 1);
  EXPECT_EQ(OldOf(OpenDocument(AddDays(kToday, -31))), 1);
  EXPECT_EQ(OldOf("'RG','0101/2026','" + DaysAgo(31) + "\r\n"), 1) << "a fresh line is short";
}

TEST(OpenDocumentReminder, AReminderOfTheLastThirtyDaysTakesItOut) {
  const Date old = AddDays(kToday, -200);
  EXPECT_EQ(OldOf(OpenDocument(old, DaysAgo(5))), 0);
  EXPECT_EQ(OldOf(OpenDocument(old, DaysAgo(29))), 0);
  EXPECT_EQ(OldOf(OpenDocument(old, DaysAgo(30))), 1);
  EXPECT_EQ(OldOf(OpenDocument(old, DaysAgo(40), DaysAgo(5))), 0);
  EXPECT_EQ(OldOf(OpenDocument(old, DaysAgo(70), DaysAgo(35))), 1);
  EXPECT_EQ(OldOf(OpenDocument(old, DaysAgo(90), DaysAgo(60), DaysAgo(1))), 0);
  EXPECT_EQ(OldOf(OpenDocument(old, DaysAgo(90), DaysAgo(60), DaysAgo(30))), 1);
}

TEST(OpenDocumentReminder, OnlyTheLastReminderOfAnUnbrokenRowIsLookedAt) {
  const Date old = AddDays(kToday, -200);
  EXPECT_EQ(OldOf(OpenDocument(old, DaysAgo(5), DaysAgo(40))), 1) << "the second counts, not the first";
  EXPECT_EQ(OldOf(OpenDocument(old, "", DaysAgo(5))), 1) << "a second without a first";
  EXPECT_EQ(OldOf(OpenDocument(old, DaysAgo(5), "", DaysAgo(5))), 1) << "a third without a second";
  EXPECT_EQ(OldOf(OpenDocument(old, "gestern")), 1) << "no date";
}

TEST(OpenDocumentReminder, AYoungDocumentThatWasRemindedOfTakesOneAway) {
  EXPECT_EQ(OldOf(OpenDocument(AddDays(kToday, -10), DaysAgo(5))), -1);
  EXPECT_EQ(OldOf(OpenDocument(AddDays(kToday, -31)) + OpenDocument(AddDays(kToday, -10), DaysAgo(5))), 0);
}

TEST(OpenDocumentReminder, SpeaksOfOneOrOfMany) {
  EXPECT_EQ(OpenDocumentCaption(0), "0 offene Belege");
  EXPECT_EQ(OpenDocumentCaption(1), "1 offene Belege");
  EXPECT_EQ(OldDocumentReminder(1), "1 offenen Beleg gefunden, der älter als 30 Tage ist!"_t);
  EXPECT_EQ(OldDocumentReminder(12), "12 offene Belege gefunden, die älter als 30 Tage sind!"_t);
}

}  // namespace
}  // namespace kontorwerk
