// Numbers, money and durations as German text.
#include "store/Numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

#include "store/Text.h"

namespace kontorwerk {
namespace {

TEST(ToNumber, ReadsGermanNumbers) {
  EXPECT_EQ(ToNumber("12"), 12.0);
  EXPECT_EQ(ToNumber("12,5"), 12.5);
  EXPECT_EQ(ToNumber("1.234,5"), 1234.5);
  EXPECT_EQ(ToNumber("1.234.567,89"), 1234567.89);
  EXPECT_EQ(ToNumber("-3,5"), -3.5);
  EXPECT_EQ(ToNumber("+7"), 7.0);
  EXPECT_EQ(ToNumber(" 19 "), 19.0);
  EXPECT_EQ(ToNumber("0,1"), 0.1);
  EXPECT_EQ(ToNumber("007"), 7.0);
}

TEST(ToNumber, CommaNeedsDigitsOnOneSideOnly) {
  EXPECT_EQ(ToNumber(",5"), 0.5);
  EXPECT_EQ(ToNumber("5,"), 5.0);
  EXPECT_EQ(ToNumber("-,5"), -0.5);
}

TEST(ToNumber, PointsAreThousandsMarksWhereverTheyStandBeforeTheComma) {
  EXPECT_EQ(ToNumber("1.5"), 15.0);
  EXPECT_EQ(ToNumber("1..0"), 10.0);
  EXPECT_EQ(ToNumber(".5"), 5.0);
  EXPECT_EQ(ToNumber("1."), 1.0);
  EXPECT_FALSE(ToNumber("1,2.3"));
}

TEST(ToNumber, ReadsExponents) {
  EXPECT_EQ(ToNumber("1e3"), 1000.0);
  EXPECT_EQ(ToNumber("1E3"), 1000.0);
  EXPECT_EQ(ToNumber("1d3"), 1000.0);
  EXPECT_EQ(ToNumber("1D+3"), 1000.0);
  EXPECT_EQ(ToNumber("1,5E-05"), 1.5e-5);
  EXPECT_EQ(ToNumber("1E+15"), 1e15);
}

TEST(ToNumber, RefusesWhatIsNoNumber) {
  for (const char* text : {"",      " ",     ",",    "-",    "+",       ".",     "-,",  "abc", "12a", "a12",
                           "5-",    "--5",   "+-5",  "- 5",  "1 2",     "1,2,3", "1e",  "1e+", "e3",  ",e3",
                           "1e3,5", "1e1e1", "0x10", "&H10", "12 \x80", "\t5",   "1/2", "inf", "nan"})
    EXPECT_FALSE(IsNumeric(text)) << text;
}

TEST(ToNumber, TooLargeIsNotNumericAndTooSmallIsZero) {
  EXPECT_FALSE(IsNumeric("1e309"));
  EXPECT_FALSE(IsNumeric("-1e309"));
  EXPECT_FALSE(IsNumeric("1e99999999999999999999"));
  EXPECT_FALSE(IsNumeric(std::string(400, '9')));
  EXPECT_EQ(ToNumber("1,7976931348623157E308"), std::numeric_limits<double>::max());
  EXPECT_EQ(ToNumber("1e-400"), 0.0);
  EXPECT_EQ(ToNumber("1e-99999999999999999999"), 0.0);
  EXPECT_EQ(ToNumber("0e99999"), 0.0);
  EXPECT_EQ(ToNumber("0," + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(ToNumber("0," + std::string(400, '0') + "1e401"), 1.0);
  EXPECT_EQ(ToNumber("1" + std::string(400, '0') + "e-400"), 1.0);
}

TEST(NumberText, HasACommaAndNoThousandsMarks) {
  EXPECT_EQ(NumberText(12.5), "12,5");
  EXPECT_EQ(NumberText(1234567.89), "1234567,89");
  EXPECT_EQ(NumberText(100.0), "100");
  EXPECT_EQ(NumberText(-0.25), "-0,25");
}

TEST(NumberText, ShowsAtMostFifteenDigits) {
  EXPECT_EQ(NumberText(0.1 + 0.2), "0,3");
  EXPECT_EQ(NumberText(1.0 / 3.0), "0,333333333333333");
  EXPECT_EQ(NumberText(2.0 / 3.0), "0,666666666666667");
  EXPECT_EQ(NumberText(123456789012345.0), "123456789012345");
}

TEST(NumberText, TurnsToExponentsForVeryLargeAndVerySmall) {
  EXPECT_EQ(NumberText(1e15), "1E+15");
  EXPECT_EQ(NumberText(1.5e300), "1,5E+300");
  EXPECT_EQ(NumberText(0.0001), "0,0001");
  EXPECT_EQ(NumberText(0.00001), "1E-05");
}

TEST(NumberText, ZeroHasNoSign) {
  EXPECT_EQ(NumberText(0.0), "0");
  EXPECT_EQ(NumberText(-0.0), "0");
  EXPECT_EQ(NumberText(Round(-0.001, 2)), "0");
}

TEST(NumberText, InfinityIsEmpty) {
  EXPECT_EQ(NumberText(std::numeric_limits<double>::infinity()), "");
  EXPECT_EQ(NumberText(std::nan("")), "");
}

TEST(NumberText, IntegersKeepAllDigits) {
  EXPECT_EQ(NumberText(std::int64_t{0}), "0");
  EXPECT_EQ(NumberText(std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
  EXPECT_EQ(NumberText(std::int64_t{-12}), "-12");
}

TEST(NumberText, EveryCentUpToAThousandComesBack) {
  for (int cents = -100'000; cents <= 100'000; ++cents) {
    const double value = cents / 100.0;
    ASSERT_EQ(ToNumber(NumberText(value)), value);
  }
}

TEST(Round, ExactHalvesGoToTheEvenNeighbour) {
  EXPECT_EQ(Round(2.125, 2), 2.12);
  EXPECT_EQ(Round(2.375, 2), 2.38);
  EXPECT_EQ(Round(0.125, 2), 0.12);
  EXPECT_EQ(Round(-0.125, 2), -0.12);
  EXPECT_EQ(Round(0.375, 2), 0.38);
  EXPECT_EQ(Round(0.5, 0), 0.0);
  EXPECT_EQ(Round(1.5, 0), 2.0);
  EXPECT_EQ(Round(2.5, 0), 2.0);
  EXPECT_EQ(Round(3.5, 0), 4.0);
  EXPECT_EQ(Round(-2.5, 0), -2.0);
  EXPECT_EQ(Round(1000000.125, 2), 1000000.12);
}

TEST(Round, AllExactTiesOfEighthsAndWholes) {
  // k + 1/8, 3/8, 5/8, 7/8 are exact in a double: the third decimal is a five with nothing behind it.
  for (int eighth = 1; eighth < 80'000; eighth += 2) {
    const int thousandths = eighth * 125;
    int cents = thousandths / 10;
    if (cents % 2 != 0) ++cents;
    ASSERT_EQ(Round(eighth / 8.0, 2), cents / 100.0) << eighth;
    ASSERT_EQ(Round(-eighth / 8.0, 2), -cents / 100.0) << eighth;
  }
}

TEST(Round, TakesWhatTheDoubleHolds) {
  EXPECT_EQ(Round(1.005, 2), 1.0) << "the double lies below the half";
  EXPECT_EQ(Round(2.675, 2), 2.67) << "the double lies below the half";
  EXPECT_EQ(Round(2.345, 2), 2.35) << "the double lies above the half";
  EXPECT_EQ(Round(0.285, 2), 0.28) << "the double lies below the half";
  EXPECT_EQ(Round(0.145, 2), 0.14) << "the double lies below the half";
}

TEST(Round, KeepsLargeValuesAndWhatIsNoNumber) {
  EXPECT_EQ(Round(1e300, 2), 1e300);
  EXPECT_EQ(Round(std::numeric_limits<double>::max(), 2), std::numeric_limits<double>::max());
  EXPECT_TRUE(std::isinf(Round(std::numeric_limits<double>::infinity(), 2)));
  EXPECT_TRUE(std::isnan(Round(std::nan(""), 2)));
}

TEST(Round, NegativeZeroDoesNotArise) { EXPECT_FALSE(std::signbit(Round(-0.001, 2))); }

struct MoneyCase {
  const char* argument;
  const char* result;
};

class MoneyTextTable : public testing::TestWithParam<MoneyCase> {};

TEST_P(MoneyTextTable, CompletesTheDecimals) { EXPECT_EQ(MoneyText(GetParam().argument), GetParam().result); }

INSTANTIATE_TEST_SUITE_P(Examples, MoneyTextTable,
                         testing::Values(MoneyCase{"", ""}, MoneyCase{"12", "12,00"}, MoneyCase{"12,5", "12,50"},
                                         MoneyCase{"12,50", "12,50"}, MoneyCase{"12,", "12,00"},
                                         MoneyCase{"-3,5", "-3,50"}, MoneyCase{"12,345", ""},
                                         MoneyCase{"1.234,5", "1.234,50"}));

TEST(MoneyText, OfLessThanOneEuro) {
  EXPECT_EQ(MoneyText("0,1"), "0,10");
  EXPECT_EQ(MoneyText(",5"), ",50");
  EXPECT_EQ(MoneyText(",05"), ",05");
  EXPECT_EQ(MoneyText(","), ",00");
}

TEST(MoneyText, OfThreeAndMoreDecimalsIsEmpty) {
  EXPECT_EQ(MoneyText("1,234"), "");
  EXPECT_EQ(MoneyText("1,2345"), "");
}

TEST(MoneyText, LooksAtTheCommaOnlyAndNotAtTheNumber) {
  EXPECT_EQ(MoneyText("abc"), "abc,00");
  EXPECT_EQ(MoneyText("a,b"), "a,b0");
  EXPECT_EQ(MoneyText("1,2,"), "1,2,") << "the third character from the end is tested first";
  EXPECT_EQ(MoneyText("12.50"), "12.50,00");
}

TEST(RoundedMoneyText, RoundsAndCompletes) {
  EXPECT_EQ(RoundedMoneyText(2.125), "2,12");
  EXPECT_EQ(RoundedMoneyText(12), "12,00");
  EXPECT_EQ(RoundedMoneyText(12.5), "12,50");
  EXPECT_EQ(RoundedMoneyText(-3.456), "-3,46");
  EXPECT_EQ(RoundedMoneyText(-0.001), "0,00");
  EXPECT_EQ(RoundedMoneyText(0.1 + 0.2), "0,30");
}

TEST(RoundedMoneyText, OfEveryCentIsItself) {
  for (int cents = 0; cents <= 200'000; ++cents) {
    const std::string expected = Concat(std::to_string(cents / 100), ",", PadZeros(std::to_string(cents % 100), 2));
    ASSERT_EQ(RoundedMoneyText(cents / 100.0), expected);
  }
}

TEST(Numbers, DoNotDependOnTheLocaleOfTheMachine) {
  for (const char* locale : {"de_DE.UTF-8", "en_US.UTF-8", "C.UTF-8"}) {
    if (std::setlocale(LC_ALL, locale) == nullptr) continue;
    EXPECT_EQ(ToNumber("1.234,5"), 1234.5) << locale;
    EXPECT_EQ(NumberText(1234.5), "1234,5") << locale;
    EXPECT_EQ(RoundedMoneyText(2.125), "2,12") << locale;
  }
  std::setlocale(LC_ALL, "C");
}

struct DurationCase {
  const char* minutes;
  const char* result;
};

class DurationTextTable : public testing::TestWithParam<DurationCase> {};

TEST_P(DurationTextTable, ReadsTheLastTwoCharactersAsHundredths) {
  EXPECT_EQ(DurationText(GetParam().minutes), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Examples, DurationTextTable,
                         testing::Values(DurationCase{"", ""}, DurationCase{"2,25", "2:15"},
                                         DurationCase{"2,5", "2:00"}, DurationCase{"2", "2:01"},
                                         DurationCase{"0,75", "0:45"}, DurationCase{"0", "0:00"},
                                         DurationCase{"2,254", "2:15"}, DurationCase{"2,9", "2:01"},
                                         DurationCase{"2,499", "2:00"}, DurationCase{"12", "12:07"},
                                         DurationCase{"100", "100:00"}, DurationCase{"0,05", "0:03"},
                                         DurationCase{"0,99", "0:59"}, DurationCase{",5", "0:00"},
                                         DurationCase{"99,999", "100:00"}, DurationCase{"-2,25", "-2:15"}));

TEST(DurationText, OfATextThatIsNoNumberIsEmpty) {
  EXPECT_EQ(DurationText("bald"), "");
  EXPECT_EQ(DurationText("1e999"), "");
}

TEST(Currency, ComesFromTextExactly) {
  EXPECT_EQ(Currency::FromText("12,5")->TenThousandths(), 125'000);
  EXPECT_EQ(Currency::FromText("1.234,5678")->TenThousandths(), 12'345'678);
  EXPECT_EQ(Currency::FromText("-0,0001")->TenThousandths(), -1);
  EXPECT_EQ(Currency::FromText("1e3")->TenThousandths(), 10'000'000);
  EXPECT_EQ(Currency::FromText("0")->TenThousandths(), 0);
  EXPECT_EQ(Currency::FromText("1e-99999")->TenThousandths(), 0);
  EXPECT_FALSE(Currency::FromText(""));
  EXPECT_FALSE(Currency::FromText("abc"));
}

TEST(Currency, FromTextRoundsHalfToEven) {
  EXPECT_EQ(Currency::FromText("0,00005")->TenThousandths(), 0);
  EXPECT_EQ(Currency::FromText("0,00015")->TenThousandths(), 2);
  EXPECT_EQ(Currency::FromText("0,00025")->TenThousandths(), 2);
  EXPECT_EQ(Currency::FromText("0,000250001")->TenThousandths(), 3);
  EXPECT_EQ(Currency::FromText("-0,00015")->TenThousandths(), -2);
  EXPECT_EQ(Currency::FromText("0,00006")->TenThousandths(), 1);
  EXPECT_EQ(Currency::FromText("0,000005")->TenThousandths(), 0);
}

TEST(Currency, EndsAtTheRangeOfSixtyFourBits) {
  EXPECT_EQ(Currency::FromText("922337203685477,5807")->TenThousandths(), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(Currency::FromText("-922337203685477,5808")->TenThousandths(), std::numeric_limits<std::int64_t>::min());
  EXPECT_FALSE(Currency::FromText("922337203685477,5808"));
  EXPECT_FALSE(Currency::FromText("922337203685477,58075"));
  EXPECT_FALSE(Currency::FromText("1e300"));
  EXPECT_FALSE(Currency::FromDouble(1e15));
  EXPECT_FALSE(Currency::FromDouble(1e300));
  EXPECT_FALSE(Currency::FromDouble(std::numeric_limits<double>::infinity()));
  EXPECT_FALSE(Currency::FromDouble(std::nan("")));
}

TEST(Currency, ComesFromADoubleRounded) {
  EXPECT_EQ(Currency::FromDouble(12.5)->TenThousandths(), 125'000);
  EXPECT_EQ(Currency::FromDouble(0.1 + 0.2)->TenThousandths(), 3'000);
  EXPECT_EQ(Currency::FromDouble(-1.23456)->TenThousandths(), -12'346);
  EXPECT_EQ(Currency::FromDouble(0.03125)->TenThousandths(), 312) << "an exact half goes to the even neighbour";
  EXPECT_EQ(Currency::FromDouble(-0.00001)->TenThousandths(), 0);
}

TEST(Currency, RoundsToCentsHalfToEven) {
  const auto cents = [](std::int64_t units) {
    return Currency::FromTenThousandths(units).RoundedToCents().TenThousandths();
  };
  EXPECT_EQ(cents(21'250), 21'200);
  EXPECT_EQ(cents(21'350), 21'400);
  EXPECT_EQ(cents(21'251), 21'300);
  EXPECT_EQ(cents(21'249), 21'200);
  EXPECT_EQ(cents(-21'250), -21'200);
  EXPECT_EQ(cents(-21'350), -21'400);
  EXPECT_EQ(cents(50), 0);
  EXPECT_EQ(cents(-150), -200);
}

TEST(Currency, TextHasUpToFourDecimals) {
  EXPECT_EQ(Currency::FromTenThousandths(125'000).ToText(), "12,5");
  EXPECT_EQ(Currency::FromTenThousandths(120'000).ToText(), "12");
  EXPECT_EQ(Currency::FromTenThousandths(-1).ToText(), "-0,0001");
  EXPECT_EQ(Currency::FromTenThousandths(0).ToText(), "0");
  EXPECT_EQ(Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::min()).ToText(), "-922337203685477,5808");
}

TEST(Currency, TextComesBack) {
  for (std::int64_t units = -123'456; units < 123'456; units += 7)
    ASSERT_EQ(Currency::FromText(Currency::FromTenThousandths(units).ToText())->TenThousandths(), units);
}

TEST(Currency, TenThousandTenthsMakeAThousand) {
  Currency sum;
  for (int i = 0; i < 10'000; ++i) sum += *Currency::FromText("0,1");
  EXPECT_EQ(sum.ToText(), "1000");
}

TEST(Currency, SumBeyondTheRangeLeavesTheAmount) {
  const Currency most = Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::max());
  const Currency least = Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(most + Currency::FromTenThousandths(1), most);
  EXPECT_EQ(least + Currency::FromTenThousandths(-1), least);
  EXPECT_EQ((most + least).TenThousandths(), -1);
}

TEST(TruthTexts, OneWahrAndTrueAreTrueInAnyCase) {
  for (const char* text : {"1", "Wahr", "WAHR", "wahr", "True", "TRUE", "true"}) EXPECT_TRUE(IsTrueText(text)) << text;
  for (const char* text : {"", "0", "Falsch", "False", "2", "1 ", "ja", "-1"}) EXPECT_FALSE(IsTrueText(text)) << text;
}

TEST(TruthTexts, AreWrittenByKindOfControl) {
  EXPECT_EQ(BooleanText(true), "Wahr");
  EXPECT_EQ(BooleanText(false), "Falsch");
  EXPECT_EQ(TickText(true), "1");
  EXPECT_EQ(TickText(false), "0");
}

}  // namespace
}  // namespace kontorwerk
