// What the document screen computes: totals of the rows, the amounts below them, and the change between net and gross
// prices. All values are texts; the sums are exact to a ten-thousandth.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "documents/PositionGrid.h"
#include "store/Settings.h"

namespace kontorwerk {

enum class PriceBase { Net, Gross };

struct DocumentTotals {
  std::string Gesamt, MWST, MWST2, Betrag;  // money texts

  friend bool operator==(const DocumentTotals&, const DocumentTotals&) = default;
};

// Single price and total of one row, of a row with numeric quantity and price only. A quantity without a price clears
// the total; any other row keeps the total that it has, also a stale one.
void ComputeRow(PositionRow& row);

// Computes every row and gives the amounts. The rates are fraction texts of the settings; tax is summed over the rows
// and rounded once for each rate. On a gross document tax is computed like on a net one and only shown: it is no part
// of `Betrag`. A total that is no number adds nothing.
DocumentTotals Berechnen(std::vector<PositionRow>& rows, PriceBase base, const Settings& settings);

// True if any row has a single or total price, so that a change between net and gross has to ask.
[[nodiscard]] bool HasPrices(const std::vector<PositionRow>& rows);
// Single and total prices turned into prices of the wanted kind, each by its row's rate, rounded to cents. An
// empty price stays empty; a price or a rate that is no number leaves the price as it is.
void ConvertPrices(std::vector<PositionRow>& rows, PriceBase wanted, const Settings& settings);
// Prompt of the change, titled "Preise umrechnen?".
[[nodiscard]] std::string_view ConversionQuestion(PriceBase wanted);
inline constexpr std::string_view kConversionTitle = "Preise umrechnen?";

// "19%" for the rate "0,19", "7%" for "0,07", "16,5%" for "0,165".
[[nodiscard]] std::string RateLabel(std::string_view rate);

}  // namespace kontorwerk
