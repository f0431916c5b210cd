// Numbers and money as German text: decimal comma, point as thousands mark, whatever the machine's locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kontorwerk {

// The number a German number text stands for: blanks around it, a sign in front, points as thousands marks
// before the comma, an exponent ("1e3", "1d3"). Nothing if the text is not numeric or too large for a double; the
// empty text is not numeric, ",5" and "5," are.
[[nodiscard]] std::optional<double> ToNumber(std::string_view text);
[[nodiscard]] bool IsNumeric(std::string_view text);
// At most 15 significant digits, decimal comma, no thousands marks; "1E+15" beyond, "1E-05" below 0,0001. Empty for
// infinities and what is no number.
[[nodiscard]] std::string NumberText(double value);
[[nodiscard]] std::string NumberText(std::int64_t value);
// The exact value of the double rounded to `decimals` places, a tie to the even neighbour.
[[nodiscard]] double Round(double value, int decimals);

// Completes the decimals of a number text by the place of its comma alone: "12" gives "12,00", "12,5" gives
// "12,50", "12,345" gives an empty text (kept: callers round first).
[[nodiscard]] std::string MoneyText(std::string_view text);
// MoneyText of the number rounded to two places: the form in which amounts are shown and stored.
[[nodiscard]] std::string RoundedMoneyText(double value);

// An amount in ten-thousandths of a euro, for sums that must not drift.
class Currency {
 public:
  constexpr Currency() = default;
  // Rounded half to even to four decimals, from the exact value of the double or of the number text; a value beyond
  // the range (922,337,203,685,477.5807) and a text that is not numeric give nothing.
  [[nodiscard]] static std::optional<Currency> FromDouble(double value);
  [[nodiscard]] static std::optional<Currency> FromText(std::string_view text);
  [[nodiscard]] static constexpr Currency FromTenThousandths(std::int64_t units) {
    Currency result;
    result.units_ = units;
    return result;
  }
  [[nodiscard]] constexpr std::int64_t TenThousandths() const { return units_; }
  [[nodiscard]] double ToDouble() const { return static_cast<double>(units_) / 10000.0; }
  // Rounded to two decimals, half to even, exactly.
  [[nodiscard]] Currency RoundedToCents() const;
  // Up to four decimals, no trailing zeros: "12,5".
  [[nodiscard]] std::string ToText() const;
  // A sum beyond the range leaves the amount as it was.
  Currency& operator+=(Currency other);
  friend Currency operator+(Currency a, Currency b) { return a += b; }
  friend constexpr bool operator==(Currency, Currency) = default;
  friend constexpr auto operator<=>(Currency, Currency) = default;

 private:
  std::int64_t units_ = 0;
};

// Decimal minutes as "m:ss". Kept: the last two characters of the rounded text are read as hundredths, so
// "2,5" gives "2:00" and "2" gives "2:01"; the text is only an estimate beside a running transfer. Empty for a text
// that is not numeric.
[[nodiscard]] std::string DurationText(std::string_view minutes);

// "1", "Wahr" and "True" in any case.
[[nodiscard]] bool IsTrueText(std::string_view text);
// "Wahr" or "Falsch", as the record files hold option buttons.
[[nodiscard]] std::string_view BooleanText(bool value);
// "1" or "0", as the record files hold tick boxes.
[[nodiscard]] std::string_view TickText(bool value);

}  // namespace kontorwerk
