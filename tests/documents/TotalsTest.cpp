// What the document screen computes, cent by cent and for the odd cases.
#include "documents/Totals.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <random>

#include "store/Numbers.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

using Rows = std::vector<PositionRow>;

PositionRow Item(std::string_view quantity, std::string_view price, bool secondRate = false) {
  PositionRow row;
  row.S = quantity;
  row.E = price;
  row.secondRate = secondRate;
  return row;
}

Settings Rates(std::string_view first = "0,19", std::string_view second = "0,07") {
  Settings settings;
  settings.MWSTSatz = first;
  settings.MWSTSatz2 = second;
  return settings;
}

DocumentTotals NetTotals(Rows rows) { return Berechnen(rows, PriceBase::Net, Rates()); }

std::string CentText(std::int64_t cents) {
  return Concat(cents < 0 ? "-" : "", std::to_string(std::abs(cents) / 100), ",",
                PadZeros(std::to_string(std::abs(cents) % 100), 2));
}

std::int64_t CentsOf(std::string_view text) { return Currency::FromText(text)->TenThousandths() / 100; }

// Half to even, of ten-thousandths.
std::int64_t HalfEvenCents(std::int64_t units) {
  std::int64_t cents = units / 100;
  const std::int64_t rest = units % 100;
  if (rest > 50 || (rest == 50 && cents % 2 != 0)) ++cents;
  return cents;
}

TEST(ComputeRow, MultipliesAndGivesMoneyTexts) {
  PositionRow row = Item("1,5", "10");
  ComputeRow(row);
  EXPECT_EQ(row.G, "15,00");
  EXPECT_EQ(row.E, "10,00");
  EXPECT_EQ(row.S, "1,5");
}

TEST(ComputeRow, TotalComesFromThePriceBeforeItsRounding) {
  PositionRow row = Item("100", "0,126");
  ComputeRow(row);
  EXPECT_EQ(row.G, "12,60");
  EXPECT_EQ(row.E, "0,13");
}

TEST(ComputeRow, QuantityWithoutPriceClearsTheTotal) {
  PositionRow row = Item("2", "");
  row.G = "5,00";
  ComputeRow(row);
  EXPECT_EQ(row.G, "");
  row = Item("2 Stck", "");
  row.G = "5,00";
  ComputeRow(row);
  EXPECT_EQ(row.G, "");
}

TEST(ComputeRow, RowThatIsNoNumberKeepsItsStaleTotal) {
  for (const auto& [quantity, price] : {std::pair{"2 Stck", "10,00"}, std::pair{"", "10,00"}, std::pair{"2", "x"}}) {
    PositionRow row = Item(quantity, price);
    row.G = "77,00";
    ComputeRow(row);
    EXPECT_EQ(row.G, "77,00");
    EXPECT_EQ(row.E, price);
  }
}

TEST(Berechnen, NetDocumentAddsBothRoundedTaxes) {
  EXPECT_EQ(NetTotals({Item("1", "100"), Item("1", "50", true)}),
            (DocumentTotals{"150,00", "19,00", "3,50", "172,50"}));
}

TEST(Berechnen, GrossDocumentShowsTaxLikeANetOneAndDoesNotAddIt) {
  Rows rows = {Item("1", "100"), Item("1", "50", true)};
  EXPECT_EQ(Berechnen(rows, PriceBase::Gross, Rates()), (DocumentTotals{"150,00", "19,00", "3,50", "150,00"}));
}

TEST(Berechnen, EmptyDocumentIsZero) {
  EXPECT_EQ(NetTotals(Rows(17)), (DocumentTotals{"0,00", "0,00", "0,00", "0,00"}));
}

TEST(Berechnen, SevenRowsOfOneCentGiveOneCentOfTax) {
  EXPECT_EQ(NetTotals(Rows(7, Item("1", "0,01"))), (DocumentTotals{"0,07", "0,01", "0,00", "0,08"}));
}

TEST(Berechnen, StaleTotalStaysInTheSum) {
  PositionRow stale = Item("2 Stck", "10,00");
  stale.G = "77,00";
  EXPECT_EQ(NetTotals({Item("1", "23"), stale}).Gesamt, "100,00");
}

TEST(Berechnen, TotalThatIsNoNumberAddsNothingAndTheNextRowsCount) {
  PositionRow broken;
  broken.G = "siehe oben";
  EXPECT_EQ(NetTotals({Item("1", "1"), broken, Item("1", "2")}), (DocumentTotals{"3,00", "0,57", "0,00", "3,57"}));
}

TEST(Berechnen, RateThatIsNoNumberGivesNoTax) {
  Rows rows = {Item("1", "100"), Item("1", "100", true)};
  EXPECT_EQ(Berechnen(rows, PriceBase::Net, Rates("", "0,07")), (DocumentTotals{"200,00", "0,00", "7,00", "207,00"}));
}

TEST(Berechnen, NegativeRowsAreTakenOff) {
  EXPECT_EQ(NetTotals({Item("1", "100"), Item("-1", "30")}), (DocumentTotals{"70,00", "13,30", "0,00", "83,30"}));
  EXPECT_EQ(NetTotals({Item("1", "-0,50")}).Gesamt, "-0,50");
}

TEST(Berechnen, ThousandsMarksAreRead) { EXPECT_EQ(NetTotals({Item("2", "1.234,50")}).Gesamt, "2469,00"); }

TEST(Berechnen, EveryCentAtBothRates) {
  const Settings settings = Rates();
  for (const bool secondRate : {false, true}) {
    const std::int64_t percent = secondRate ? 7 : 19;
    for (std::int64_t cents = 0; cents <= 20'000; ++cents) {
      Rows rows = {Item("1", CentText(cents), secondRate)};
      const DocumentTotals totals = Berechnen(rows, PriceBase::Net, settings);
      const std::int64_t tax = HalfEvenCents(cents * percent);
      ASSERT_EQ(secondRate ? totals.MWST2 : totals.MWST, CentText(tax)) << cents;
      ASSERT_EQ(totals.Gesamt, CentText(cents));
      ASSERT_EQ(totals.Betrag, CentText(cents + tax)) << cents;
    }
  }
}

TEST(Berechnen, ManyRowsAgreeWithSumsOfWholeNumbers) {
  std::mt19937 random(20260705);
  const Settings settings = Rates();
  for (int round = 0; round < 200; ++round) {
    Rows rows;
    std::int64_t sum = 0, firstTax = 0, secondTax = 0;
    for (int row = 0; row < 51; ++row) {
      const auto quantity = static_cast<std::int64_t>(random() % 100);
      const auto cents = static_cast<std::int64_t>(random() % 100'000);
      const bool secondRate = random() % 2 == 0;
      rows.push_back(Item(std::to_string(quantity), CentText(cents), secondRate));
      sum += quantity * cents;
      (secondRate ? secondTax : firstTax) += quantity * cents * (secondRate ? 7 : 19);
    }
    const std::int64_t amount = sum + HalfEvenCents(firstTax) + HalfEvenCents(secondTax);
    ASSERT_EQ(Berechnen(rows, PriceBase::Net, settings),
              (DocumentTotals{CentText(sum), CentText(HalfEvenCents(firstTax)), CentText(HalfEvenCents(secondTax)),
                              CentText(amount)}));
  }
}

TEST(ConvertPrices, TurnsPriceAndTotalByTheRateOfTheirRow) {
  Rows rows = {Item("2", "119,00"), Item("1", "107,00", true)};
  rows[0].G = "238,00";
  rows[1].G = "107,00";
  ConvertPrices(rows, PriceBase::Net, Rates());
  EXPECT_EQ(rows[0].E, "100,00");
  EXPECT_EQ(rows[0].G, "200,00");
  EXPECT_EQ(rows[1].E, "100,00");
  EXPECT_EQ(rows[1].G, "100,00");
  ConvertPrices(rows, PriceBase::Gross, Rates());
  EXPECT_EQ(rows[0].E, "119,00");
  EXPECT_EQ(rows[0].G, "238,00");
  EXPECT_EQ(rows[1].G, "107,00");
}

TEST(ConvertPrices, LeavesEmptyPricesAndTextsAlone) {
  Rows rows = {Item("1", ""), Item("1", "auf Anfrage")};
  ConvertPrices(rows, PriceBase::Gross, Rates());
  EXPECT_EQ(rows[0].E, "");
  EXPECT_EQ(rows[0].G, "");
  EXPECT_EQ(rows[1].E, "auf Anfrage");
  rows = {Item("1", "10,00")};
  ConvertPrices(rows, PriceBase::Gross, Rates(""));
  EXPECT_EQ(rows[0].E, "10,00");
}

TEST(ConvertPrices, EveryCentGoesToTheNearestCent) {
  for (const bool secondRate : {false, true}) {
    const std::int64_t percent = secondRate ? 107 : 119;
    for (std::int64_t cents = 0; cents <= 20'000; ++cents) {
      Rows rows = {Item("1", CentText(cents), secondRate)};
      ConvertPrices(rows, PriceBase::Gross, Rates());
      ASSERT_LE(std::abs(CentsOf(rows[0].E) * 100 - cents * percent), 50) << cents;
      rows[0].E = CentText(cents);
      ConvertPrices(rows, PriceBase::Net, Rates());
      ASSERT_LE(std::abs(CentsOf(rows[0].E) * percent - cents * 100) * 2, percent) << cents;
    }
  }
}

TEST(HasPrices, SeesSinglePricesAndTotals) {
  EXPECT_FALSE(HasPrices({Item("2", "")}));
  EXPECT_TRUE(HasPrices({{}, Item("", "1,00")}));
  PositionRow total;
  total.G = "1,00";
  EXPECT_TRUE(HasPrices({total}));
}

TEST(ConversionQuestion, NamesTheWantedPrices) {
  EXPECT_EQ(ConversionQuestion(PriceBase::Net),
            "Sollen die vorhandenen Einzel- und Gesamtpreise in Nettopreise umgerechnet werden?");
  EXPECT_EQ(ConversionQuestion(PriceBase::Gross),
            "Sollen die vorhandenen Einzel- und Gesamtpreise in Bruttopreise umgerechnet werden?");
}

TEST(RateLabel, IsTheRateInPercent) {
  EXPECT_EQ(RateLabel("0,19"), "19%");
  EXPECT_EQ(RateLabel("0,07"), "7%");
  EXPECT_EQ(RateLabel("0,165"), "16,5%");
  EXPECT_EQ(RateLabel("0,055"), "5,5%");
  EXPECT_EQ(RateLabel("0,1625"), "16,25%");
  EXPECT_EQ(RateLabel(""), "%");
}

}  // namespace
}  // namespace kontorwerk
