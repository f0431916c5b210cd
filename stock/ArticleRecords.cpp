#include "stock/ArticleRecords.h"

#include <cmath>
#include <cstddef>
#include <optional>

#include "stock/StockRecords.h"
#include "store/CaseBlindPattern.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

constexpr int kFiveDigitNumbers = 100000;
// A remembered number beyond this is no number that a category has counted up to.
constexpr double kHighestRemembered = 1e9;

std::size_t Place(int column) { return static_cast<std::size_t>(column - 1); }

// Reads columns of one line that was taken apart once.
class Columns {
 public:
  explicit Columns(std::string_view row) : fields_(RecordFields(row)) {}
  [[nodiscard]] std::string operator[](int column) const {
    return Place(column) < fields_.size() ? std::string(fields_[Place(column)]) : std::string();
  }

 private:
  std::vector<std::string_view> fields_;
};

// The number that the category has come to: that of the last row of the table whose article number holds it.
double RememberedNumber(std::string_view table, const CaseBlindPattern& category) {
  std::string_view last;
  ForEachRow(table, [&](std::string_view row) {
    const std::string_view number = RecordField(row, kArticleNumber);
    if (category.OccursIn(number)) last = DigitsOf(number);
  });
  const std::optional<double> value = ToNumber(last);
  return value && std::fabs(*value) < kHighestRemembered ? *value : 0;
}

// The five digits at the front of the text; nothing if they are not all digits.
std::optional<int> LeadingFiveDigits(std::string_view text) {
  if (text.size() < kArticleDigits) return std::nullopt;
  int value = 0;
  for (const char c : text.substr(0, kArticleDigits)) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

// Which five-digit numbers stand behind the category anywhere in the table.
std::vector<bool> NumbersBehind(std::string_view table, const CaseBlindPattern& category) {
  std::vector<bool> used(kFiveDigitNumbers);
  for (std::size_t hit = category.FindIn(table); hit != CaseBlindPattern::kNotFound;
       hit = category.FindIn(table, hit + 1)) {
    if (const auto value = LeadingFiveDigits(table.substr(hit + category.Length())))
      used[static_cast<std::size_t>(*value)] = true;
  }
  return used;
}

// `offence` is the first line of the warning without the article's number.
std::string DuplicateWarning(std::string_view offence, std::string_view row) {
  const Columns columns(row);
  const int description = kArticleDescription1;
  return Concat("Achtung: ", offence, " wurde bereits bei Artikel ", columns[kArticleNumber], " verwendet!\r\n\r\n",
                "Bezeichnung: ", columns[kArticleName], "\r\n\r\n", "Beschreibung:\r\n", columns[description], "\r\n",
                columns[description + 1], "\r\n", columns[description + 2], "\r\n", columns[description + 3]);
}

bool HasOrderNumber(std::string_view row, std::string_view orderNumber) {
  for (int column = kArticleOrderNumber1; column < kArticlePurchasePrice1; ++column)
    if (RecordField(row, column) == orderNumber) return true;
  return false;
}

template <std::size_t count>
void ReadGroup(const Columns& columns, int firstColumn, std::array<std::string, count>& texts) {
  for (std::size_t i = 0; i < count; ++i) texts[i] = columns[firstColumn + static_cast<int>(i)];
}

template <std::size_t count>
void WriteGroup(std::vector<std::string>& fields, int firstColumn, const std::array<std::string, count>& texts) {
  for (std::size_t i = 0; i < count; ++i) fields[Place(firstColumn) + i] = texts[i];
}

template <std::size_t count>
void CopyGroup(const std::array<std::string, count>& texts, StockRecord& record, int firstColumn) {
  for (std::size_t i = 0; i < count; ++i)
    record[static_cast<StockColumn>(firstColumn + static_cast<int>(i))] = texts[i];
}

}  // namespace

std::string_view CategoryOf(std::string_view articleNumber) { return Left(articleNumber, kCategoryLength); }

std::string_view DigitsOf(std::string_view articleNumber) { return Right(articleNumber, kArticleDigits); }

Article ReadArticle(std::string_view row) {
  const Columns columns(row);
  Article article;
  article.number = columns[kArticleNumber];
  article.name = columns[kArticleName];
  ReadGroup(columns, kArticleDescription1, article.description);
  article.stockKept = IsTrueText(columns[kArticleStockKept]);
  article.singleItem = IsTrueText(columns[kArticleSingleItem]);
  article.multipleItem = IsTrueText(columns[kArticleMultipleItem]);
  article.unit = columns[kArticleUnit];
  article.packingUnit = columns[kArticlePackingUnit];
  article.weight = columns[kArticleWeight];
  article.size = columns[kArticleSize];
  article.manufacturer = columns[kArticleManufacturer];
  ReadGroup(columns, kArticleSupplier1, article.suppliers);
  ReadGroup(columns, kArticleOrderNumber1, article.orderNumbers);
  ReadGroup(columns, kArticlePurchasePrice1, article.purchasePrices);
  article.notes = MarksToLineBreaks(columns[kArticleNotes]);
  article.netPrice = columns[kArticleNetPrice];
  article.secondRate = IsTrueText(columns[kArticleSecondRate]);
  article.grossPrice = columns[kArticleGrossPrice];
  article.entryDate = columns[kArticleEntryDate];
  article.ean = columns[kArticleEan];
  return article;
}

std::string ArticleLine(const Article& article) {
  std::vector<std::string> fields(Place(kArticleEan) + 1);
  fields[Place(kArticleNumber)] = article.number;
  fields[Place(kArticleName)] = article.name;
  WriteGroup(fields, kArticleDescription1, article.description);
  fields[Place(kArticleStockKept)] = TickText(article.stockKept);
  fields[Place(kArticleSingleItem)] = BooleanText(article.singleItem);
  fields[Place(kArticleMultipleItem)] = BooleanText(article.multipleItem);
  fields[Place(kArticleUnit)] = article.unit;
  fields[Place(kArticlePackingUnit)] = article.packingUnit;
  fields[Place(kArticleWeight)] = article.weight;
  fields[Place(kArticleSize)] = article.size;
  fields[Place(kArticleManufacturer)] = article.manufacturer;
  WriteGroup(fields, kArticleSupplier1, article.suppliers);
  WriteGroup(fields, kArticleOrderNumber1, article.orderNumbers);
  WriteGroup(fields, kArticlePurchasePrice1, article.purchasePrices);
  fields[Place(kArticleNotes)] = article.notes;
  fields[Place(kArticleNetPrice)] = article.netPrice;
  fields[Place(kArticleSecondRate)] = TickText(article.secondRate);
  fields[Place(kArticleGrossPrice)] = article.grossPrice;
  fields[Place(kArticleEntryDate)] = article.entryDate;
  fields[Place(kArticleEan)] = article.ean;
  for (std::string& field : fields) field = LineBreaksToMarks(field);
  return RecordLine(fields);
}

std::string_view FindArticleRow(std::string_view table, std::string_view number) {
  std::string_view found;
  ForEachRow(table, [&](std::string_view row) {
    if (found.empty() && RecordField(row, kArticleNumber) == number) found = row;
  });
  return found;
}

std::string ProposeArticleNumber(std::string_view table, std::string_view category) {
  const CaseBlindPattern pattern(category);
  const std::vector<bool> used = NumbersBehind(table, pattern);
  const auto taken = [&](const std::string& number) {
    const std::optional<int> value = LeadingFiveDigits(number);
    if (value && number.size() == kArticleDigits) return static_cast<bool>(used[static_cast<std::size_t>(*value)]);
    return CaseBlindPattern(Concat(category, number)).OccursIn(table);
  };
  std::string number;
  for (double value = RememberedNumber(table, pattern) + 1; number.empty() || taken(number); value += 1)
    number = PadZeros(NumberText(value), kArticleDigits);
  return number;
}

bool ArticleNumberTaken(std::string_view table, std::string_view number) {
  const CaseBlindPattern pattern(number);
  bool taken = false;
  ForEachRow(table, [&](std::string_view row) { taken = taken || pattern.OccursIn(RecordField(row, kArticleNumber)); });
  return taken;
}

std::vector<std::string> OrderNumberWarnings(std::string_view table, std::string_view orderNumber) {
  std::vector<std::string> warnings;
  ForEachRow(table, [&](std::string_view row) {
    if (HasOrderNumber(row, orderNumber)) warnings.push_back(DuplicateWarning("Bestellnummer", row));
  });
  return warnings;
}

std::vector<std::string> EanWarnings(std::string_view table, std::string_view ean) {
  std::vector<std::string> warnings;
  ForEachRow(table, [&](std::string_view row) {
    if (RecordField(row, kArticleEan) == ean) warnings.push_back(DuplicateWarning("EAN-Nummer", row));
  });
  return warnings;
}

std::vector<std::string_view> FindArticles(std::string_view table, const ArticleQuery& query) {
  std::vector<std::string_view> rows;
  if (query.category.empty() && query.digits.empty()) {
    ForEachRowWith(table, CaseBlindPattern(query.freeText), [&](std::string_view row) { rows.push_back(row); });
    return rows;
  }
  const CaseBlindPattern category(query.category);
  const CaseBlindPattern digits(query.digits);
  ForEachRow(table, [&](std::string_view row) {
    const std::string_view number = RecordField(row, kArticleNumber);
    if (category.OccursIn(number) && digits.OccursIn(number)) rows.push_back(row);
  });
  return rows;
}

std::string SearchDoneText(int hits) { return Concat("Suche beendet. ", std::to_string(hits)); }

std::optional<double> VatRate(const Settings& settings, bool secondRate) {
  return ToNumber(secondRate ? settings.MWSTSatz2 : settings.MWSTSatz);
}

std::optional<double> VatFactor(const Settings& settings, bool secondRate) {
  const std::optional<double> rate = VatRate(settings, secondRate);
  if (!rate) return std::nullopt;
  return 1 + *rate;
}

std::optional<std::string> GrossPriceText(std::string_view netPrice, std::optional<double> factor) {
  const std::optional<double> net = ToNumber(netPrice);
  if (!net || !factor) return std::nullopt;
  return RoundedMoneyText(*net * *factor);
}

std::optional<std::string> NetPriceText(std::string_view grossPrice, std::optional<double> factor) {
  const std::optional<double> gross = ToNumber(grossPrice);
  if (!gross || !factor || *factor == 0) return std::nullopt;
  return RoundedMoneyText(*gross / *factor);
}

std::string PriceAsShown(std::string_view typed) {
  const std::optional<double> price = ToNumber(typed);
  return price ? RoundedMoneyText(*price) : std::string(typed);
}

std::string StockRowOfArticle(std::string_view stockRow, const Article& article) {
  StockRecord record(stockRow);
  record[kStockArtNr] = article.number;
  record[kStockBezeichnung] = article.name;
  record[kStockEANNr] = article.ean;
  CopyGroup(article.description, record, kStockB1);
  record[kStockMengeneinheit] = article.unit;
  record[kStockVerpackungseinheit] = article.packingUnit;
  record[kStockGewicht] = article.weight;
  record[kStockGröße] = article.size;
  record[kStockHersteller] = article.manufacturer;
  CopyGroup(article.suppliers, record, kStockLieferant1);
  CopyGroup(article.orderNumbers, record, kStockBestNr1);
  CopyGroup(article.purchasePrices, record, kStockEK1);
  record[kStockVK] = article.netPrice;
  record[kStockBrutto] = article.grossPrice;
  record[kStockMWST2] = TickText(article.secondRate);
  // Kept: "Wahr" or "Falsch" here, "1" or "0" from the stock screen. Every reader takes both.
  record[kStockEinzel] = BooleanText(article.singleItem);
  return record.Row();
}

}  // namespace kontorwerk
