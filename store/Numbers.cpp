// German number texts to values and back. Everything goes through std::to_chars and std::from_chars, which know no
// locale and round exactly.
#include "store/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "store/Text.h"

namespace kontorwerk {
namespace {

// A number text taken apart: 0.<digits> times ten to the power of `magnitude`.
struct DecimalNumber {
  bool negative = false;
  std::string digits;  // without zeros in front; empty for zero
  long long magnitude = 0;
};

// Beyond this an exponent no longer matters; it keeps sums of exponents within range.
constexpr long long kExponentLimit = 1'000'000'000'000;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view TakeDigits(std::string_view& text) {
  const auto* end = std::find_if_not(text.begin(), text.end(), IsDigit);
  const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(digits.size());
  return digits;
}

// '+' or '-' in front goes; true for '-'.
bool TakeSign(std::string_view& text) {
  if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
  const bool negative = text.front() == '-';
  text.remove_prefix(1);
  return negative;
}

// The exponent that ends the number: 0 if there is none, nothing if something else follows.
std::optional<long long> TakeExponent(std::string_view text) {
  if (text.empty()) return 0;
  if (std::string_view("eEdD").find(text.front()) == std::string_view::npos) return std::nullopt;
  text.remove_prefix(1);
  const bool negative = TakeSign(text);
  const std::string_view digits = TakeDigits(text);
  if (digits.empty() || !text.empty()) return std::nullopt;
  long long exponent = 0;
  for (const char c : digits) exponent = std::min(exponent * 10 + (c - '0'), kExponentLimit);
  return negative ? -exponent : exponent;
}

std::optional<DecimalNumber> ParseNumber(std::string_view text) {
  text = Trim(text);
  DecimalNumber number;
  number.negative = TakeSign(text);
  std::string digits;
  // Points are thousands marks wherever they stand: people type them freely.
  for (; !text.empty() && (IsDigit(text.front()) || text.front() == '.'); text.remove_prefix(1))
    if (text.front() != '.') digits.push_back(text.front());
  const std::size_t beforeComma = digits.size();
  if (!text.empty() && text.front() == ',') {
    text.remove_prefix(1);
    digits.append(TakeDigits(text));
  }
  const std::optional<long long> exponent = TakeExponent(text);
  if (digits.empty() || !exponent) return std::nullopt;
  const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
  number.digits = digits.substr(zeros);
  number.magnitude = static_cast<long long>(beforeComma) - static_cast<long long>(zeros) + *exponent;
  return number;
}

// A text written by std::to_chars in the program's form.
std::string GermanForm(std::string text) {
  std::replace(text.begin(), text.end(), '.', ',');
  std::replace(text.begin(), text.end(), 'e', 'E');
  return text;
}

// Every decimal of the largest double before the point, and the places behind it.
using DigitBuffer = std::array<char, 400>;
constexpr int kMostDecimals = 22;

std::string_view FixedText(double value, int decimals, DigitBuffer& buffer) {
  const auto written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
  return {buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data())};
}

// Rounds up where the dropped digits exceed a half, or are exactly a half behind an odd last digit.
bool RoundsUp(std::string_view dropped, bool lastKeptIsOdd) {
  if (dropped.empty() || dropped.front() < '5') return false;
  const bool tie = dropped.front() == '5' && dropped.find_first_not_of('0', 1) == std::string_view::npos;
  return !tie || lastKeptIsOdd;
}

}  // namespace

std::optional<double> ToNumber(std::string_view text) {
  const std::optional<DecimalNumber> number = ParseNumber(text);
  if (!number) return std::nullopt;
  if (number->digits.empty()) return 0.0;
  const std::string normalised =
      Concat(number->negative ? "-0." : "0.", number->digits, "e", std::to_string(number->magnitude));
  double value = 0;
  const auto read = std::from_chars(normalised.data(), normalised.data() + normalised.size(), value);
  if (read.ec == std::errc()) return value;
  // Out of range: too small is zero, too large is no number that the program can hold.
  if (number->magnitude < 0) return 0.0;
  return std::nullopt;
}

bool IsNumeric(std::string_view text) { return ToNumber(text).has_value(); }

std::string NumberText(double value) {
  if (!std::isfinite(value)) return {};
  if (value == 0) return "0";
  std::array<char, 32> buffer{};
  const auto written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 15);
  return GermanForm(std::string(buffer.data(), written.ptr));
}

std::string NumberText(std::int64_t value) { return std::to_string(value); }

double Round(double value, int decimals) {
  if (!std::isfinite(value)) return value;
  DigitBuffer buffer;
  const std::string_view text = FixedText(value, std::clamp(decimals, 0, kMostDecimals), buffer);
  double rounded = value;
  std::from_chars(text.data(), text.data() + text.size(), rounded);
  return rounded + 0.0;  // no negative zero
}

std::string MoneyText(std::string_view text) {
  if (text.empty()) return {};
  if (text.find(',') == std::string_view::npos) return Concat(text, ",00");
  const auto commaAtFromEnd = [text](std::size_t place) {
    return text.size() >= place && text[text.size() - place] == ',';
  };
  if (commaAtFromEnd(3)) return std::string(text);
  if (commaAtFromEnd(2)) return Concat(text, "0");
  if (commaAtFromEnd(1)) return Concat(text, "00");
  // Kept: an amount with more decimals is a caller that forgot to round; an empty amount shows it.
  return {};
}

std::string RoundedMoneyText(double value) { return MoneyText(NumberText(Round(value, 2))); }

std::optional<Currency> Currency::FromDouble(double value) {
  if (!std::isfinite(value)) return std::nullopt;
  DigitBuffer buffer;
  std::string units(FixedText(value, 4, buffer));
  std::erase(units, '.');
  Currency result;
  const auto read = std::from_chars(units.data(), units.data() + units.size(), result.units_);
  return read.ec == std::errc() ? std::optional(result) : std::nullopt;
}

std::optional<Currency> Currency::FromText(std::string_view text) {
  const std::optional<DecimalNumber> number = ParseNumber(text);
  if (!number) return std::nullopt;
  const long long length = number->digits.empty() ? -1 : number->magnitude + 4;
  if (length < 0) return Currency();
  if (length > std::numeric_limits<std::int64_t>::digits10 + 1) return std::nullopt;
  std::string units = number->digits.substr(0, static_cast<std::size_t>(length));
  const std::string_view dropped = std::string_view(number->digits).substr(units.size());
  const bool roundsUp = RoundsUp(dropped, !units.empty() && (units.back() - '0') % 2 != 0);
  units.resize(static_cast<std::size_t>(length), '0');
  if (number->negative) units.insert(0, "-");
  if (length == 0) units.push_back('0');
  Currency result;
  const auto read = std::from_chars(units.data(), units.data() + units.size(), result.units_);
  if (read.ec != std::errc()) return std::nullopt;
  if (!roundsUp) return result;
  const bool atTheEnd = result.units_ == std::numeric_limits<std::int64_t>::max() ||
                        result.units_ == std::numeric_limits<std::int64_t>::min();
  if (atTheEnd) return std::nullopt;
  result.units_ += number->negative ? -1 : 1;
  return result;
}

Currency Currency::RoundedToCents() const {
  std::int64_t cents = units_ / 100;
  const std::int64_t rest = std::abs(units_ % 100);
  if (rest > 50 || (rest == 50 && cents % 2 != 0)) cents += units_ < 0 ? -1 : 1;
  // At the very ends of the range the next cent may lie outside.
  constexpr std::int64_t kMostCents = std::numeric_limits<std::int64_t>::max() / 100;
  return FromTenThousandths(std::clamp(cents, -kMostCents, kMostCents) * 100);
}

std::string Currency::ToText() const {
  const bool negative = units_ < 0;
  const auto size = negative ? 0U - static_cast<std::uint64_t>(units_) : static_cast<std::uint64_t>(units_);
  std::string decimals = PadZeros(std::to_string(size % 10000), 4);
  decimals.erase(decimals.find_last_not_of('0') + 1);
  return Concat(negative ? "-" : "", std::to_string(size / 10000), decimals.empty() ? "" : ",", decimals);
}

Currency& Currency::operator+=(Currency other) {
  using Limits = std::numeric_limits<std::int64_t>;
  const bool fits = other.units_ >= 0 ? units_ <= Limits::max() - other.units_ : units_ >= Limits::min() - other.units_;
  if (fits) units_ += other.units_;
  return *this;
}

std::string DurationText(std::string_view minutes) {
  const std::optional<double> value = ToNumber(minutes);
  if (!value) return {};
  const std::string rounded = NumberText(Round(*value, 2));
  // Kept: the last two characters count as hundredths whatever they are, also the ",5" of "2,5" and the "2" of "2".
  const double hundredths = ToNumber(Right(rounded, 2)).value_or(0);
  const std::string seconds = NumberText(Round(hundredths / 100 * 60, 0));
  return Concat(rounded.substr(0, rounded.find(',')), ":", PadZeros(seconds, 2));
}

bool IsTrueText(std::string_view text) {
  const std::string lower = LCase(text);
  return lower == "1" || lower == "wahr" || lower == "true";
}

std::string_view BooleanText(bool value) { return value ? "Wahr" : "Falsch"; }

std::string_view TickText(bool value) { return value ? "1" : "0"; }

}  // namespace kontorwerk
