// Any bytes as a number, an amount, a duration or a date.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "store/CodePage.h"
#include "store/Dates.h"
#include "store/Numbers.h"
#include "store/Text.h"

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void CheckText(std::string_view text) {
  const auto number = kontorwerk::ToNumber(text);
  Require(!number || std::isfinite(*number));
  Require(kontorwerk::DurationText(text).empty() == !number);
  const std::string money = kontorwerk::MoneyText(text);
  Require(money.empty() || money[money.size() - 3] == ',');
  const auto currency = kontorwerk::Currency::FromText(text);
  Require(!currency || number);
  if (currency) Require(kontorwerk::Currency::FromText(currency->ToText()) == currency);
  if (currency && std::abs(*number) < 1e9) Require(std::abs(currency->ToDouble() - *number) < 0.0001);
  if (const auto date = kontorwerk::ParseDate(text))
    Require(kontorwerk::ParseDate(kontorwerk::DateText(*date)) == date);
  Require(kontorwerk::FromUtf8(kontorwerk::ToUtf8(text)) == text);
  if (const auto bytes = kontorwerk::FromUtf8(text)) Require(kontorwerk::ToUtf8(*bytes) == text);
  Require(kontorwerk::UCase(kontorwerk::LCase(text)) == kontorwerk::UCase(text));
}

void CheckDouble(double value) {
  const std::string text = kontorwerk::NumberText(value);
  Require(text.empty() == !std::isfinite(value));
  if (!std::isfinite(value)) return;
  // Fifteen digits of the largest doubles may round to more than a double holds.
  const auto again = kontorwerk::ToNumber(text);
  Require(again ? std::abs(*again - value) <= std::abs(value) * 1e-14 : std::abs(value) > 1.7e308);
  const double rounded = kontorwerk::Round(value, 2);
  Require(kontorwerk::Round(rounded, 2) == rounded);
  Require(std::abs(rounded - value) <= 0.00500001 || std::abs(value) > 1e9);
  if (std::abs(value) < 1e12) Require(!kontorwerk::RoundedMoneyText(value).empty());
  const auto currency = kontorwerk::Currency::FromDouble(value);
  Require(currency.has_value() || std::abs(value) > 9e14);
  if (currency) Require(currency->RoundedToCents().TenThousandths() % 100 == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckText({reinterpret_cast<const char*>(data), size});
  if (size >= sizeof(double)) {
    double value = 0;
    std::memcpy(&value, data, sizeof value);
    CheckDouble(value);
    long days = 0;
    std::memcpy(&days, data, sizeof days);
    days %= 3'000'000;
    Require(kontorwerk::DayNumber(kontorwerk::DateOfDayNumber(days)) == days);
  }
  return 0;
}
