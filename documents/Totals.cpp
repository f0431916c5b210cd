// Sums are kept in ten-thousandths; the product of rate and total is a double that is brought back to them for each
// row.
#include "documents/Totals.h"

#include <optional>

#include "store/Numbers.h"
#include "store/Settings.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

std::string CentsText(Currency amount) { return MoneyText(amount.RoundedToCents().ToText()); }

Currency AmountOf(std::string_view text) { return Currency::FromText(text).value_or(Currency()); }

// The tax on a total; nothing where the rate or the total is no number.
Currency TaxOn(std::string_view total, std::optional<double> rate) {
  const std::optional<double> amount = ToNumber(total);
  if (!amount || !rate) return {};
  return Currency::FromDouble(*rate * *amount).value_or(Currency());
}

std::string ConvertedPrice(const std::string& price, std::optional<double> rate, PriceBase wanted) {
  const std::optional<double> value = ToNumber(price);
  if (!value || !rate) return price;
  return RoundedMoneyText(wanted == PriceBase::Net ? *value / (1 + *rate) : *value * (1 + *rate));
}

}  // namespace

void ComputeRow(PositionRow& row) {
  const std::optional<double> quantity = ToNumber(row.S);
  const std::optional<double> price = ToNumber(row.E);
  if (quantity && price) {
    // The total comes from the price as it was typed, before its own rounding.
    row.G = RoundedMoneyText(*quantity * *price);
    row.E = RoundedMoneyText(*price);
  }
  if (!row.S.empty() && row.E.empty()) row.G.clear();
}

DocumentTotals Berechnen(std::vector<PositionRow>& rows, PriceBase base, const Settings& settings) {
  const std::optional<double> firstRate = ToNumber(settings.MWSTSatz);
  const std::optional<double> secondRate = ToNumber(settings.MWSTSatz2);
  Currency sum, firstTax, secondTax;
  for (PositionRow& row : rows) {
    ComputeRow(row);
    // Kept: a row that could not be computed still counts with the total that it shows.
    sum += AmountOf(row.G);
    (row.secondRate ? secondTax : firstTax) += TaxOn(row.G, row.secondRate ? secondRate : firstRate);
  }
  DocumentTotals totals;
  totals.Gesamt = CentsText(sum);
  totals.MWST = CentsText(firstTax);
  totals.MWST2 = CentsText(secondTax);
  // Kept: the tax of a gross document is the rate of its total like a net one's and only shown; firms' forms explain
  // it.
  if (base == PriceBase::Net) sum = sum + firstTax.RoundedToCents() + secondTax.RoundedToCents();
  totals.Betrag = CentsText(sum);
  return totals;
}

bool HasPrices(const std::vector<PositionRow>& rows) {
  for (const PositionRow& row : rows)
    if (!row.E.empty() || !row.G.empty()) return true;
  return false;
}

void ConvertPrices(std::vector<PositionRow>& rows, PriceBase wanted, const Settings& settings) {
  const std::optional<double> firstRate = ToNumber(settings.MWSTSatz);
  const std::optional<double> secondRate = ToNumber(settings.MWSTSatz2);
  for (PositionRow& row : rows) {
    const std::optional<double> rate = row.secondRate ? secondRate : firstRate;
    row.E = ConvertedPrice(row.E, rate, wanted);
    row.G = ConvertedPrice(row.G, rate, wanted);
  }
}

std::string_view ConversionQuestion(PriceBase wanted) {
  return wanted == PriceBase::Net
             ? "Sollen die vorhandenen Einzel- und Gesamtpreise in Nettopreise umgerechnet werden?"
             : "Sollen die vorhandenen Einzel- und Gesamtpreise in Bruttopreise umgerechnet werden?";
}

std::string RateLabel(std::string_view rate) { return RatePercent(rate) + "%"; }

}  // namespace kontorwerk
