// The article master as texts: lines, number proposal, duplicates, search, prices, and what goes on to the stock rows.
#include "stock/ArticleRecords.h"

#include <gtest/gtest.h>

#include <random>

#include "stock/StockRecords.h"
#include "store/RecordLine.h"
#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

using Texts = std::vector<std::string>;

Article FullArticle() {
  Article article;
  article.number = "NET50302";
  article.name = "Kabel";
  article.description = {"Zeile 1", "Zeile 2", "", "Zeile 4"};
  article.stockKept = true;
  article.singleItem = false;
  article.multipleItem = true;
  article.unit = "Stück"_t;
  article.packingUnit = "10er";
  article.weight = "0,2 kg";
  article.size = "2 m";
  article.manufacturer = "Kabelwerk";
  article.suppliers = {"Erster", "Zweiter", "Dritter"};
  article.orderNumbers = {"E-1", "Z-2", "D-3"};
  article.purchasePrices = {"12,50", "", "13,00"};
  article.notes = "oben\r\nunten";
  article.netPrice = "19,90";
  article.secondRate = false;
  article.grossPrice = "23,68";
  article.entryDate = "12.05.2006";
  article.ean = "4006381333931";
  return article;
}

const std::string_view kFullLine =
    "'NET50302','Kabel','Zeile 1','Zeile 2','','Zeile 4','1','Falsch','Wahr','Stück','10er','0,2 kg','2 m',"
    "'Kabelwerk','Erster','Zweiter','Dritter','E-1','Z-2','D-3','12,50','','13,00','oben*__*unten','19,90','0',"
    "'23,68','12.05.2006','4006381333931"_t;

std::string Table(std::initializer_list<std::string_view> numbers) {
  std::string table;
  for (const std::string_view number : numbers) table += Concat("'", number, "','Ware\r\n");
  return table;
}

TEST(ArticleLine, HoldsTwentyNineFieldsWithoutAClosingApostrophe) {
  EXPECT_EQ(ArticleLine(FullArticle()), kFullLine);
  EXPECT_EQ(RecordFields(ArticleLine(FullArticle())).size(), 29U);
}

TEST(ArticleLine, AnUnchangedArticleComesBackByteForByte) { EXPECT_EQ(ArticleLine(ReadArticle(kFullLine)), kFullLine); }

TEST(ArticleLine, ALineBreakTypedAnywhereNeverSplitsTheLine) {
  Article article = FullArticle();
  article.name = "zwei\r\nZeilen";
  EXPECT_EQ(RecordField(ArticleLine(article), kArticleName), "zwei*__*Zeilen");
}

TEST(ArticleLine, ASeparatorInATextMovesAllLaterFieldsByOne) {
  Article article = FullArticle();
  article.name = "a','b";
  const Article read = ReadArticle(ArticleLine(article));
  EXPECT_EQ(read.name, "a");
  EXPECT_EQ(read.description[0], "b");
  EXPECT_EQ(read.grossPrice, "0");
  EXPECT_EQ(read.ean, "12.05.2006");
}

TEST(ArticleLine, OneLeadingApostropheOfATextIsLost) {
  Article article = FullArticle();
  article.name = "''t Kabel'";
  EXPECT_EQ(ReadArticle(ArticleLine(article)).name, "'t Kabel'");
}

TEST(ArticleLine, AnOlderShorterLineReadsAsEmptyFields) {
  const Article article = ReadArticle("'NET00001','Kabel");
  EXPECT_EQ(article.name, "Kabel");
  EXPECT_EQ(article.netPrice, "");
  EXPECT_FALSE(article.stockKept);
}

TEST(ArticleNumber, IsShownAsItsFirstThreeAndLastFiveCharacters) {
  EXPECT_EQ(CategoryOf("NET50302"), "NET");
  EXPECT_EQ(DigitsOf("NET50302"), "50302");
}

TEST(FindArticleRow, TakesTheFirstRowOfExactlyThatNumber) {
  const std::string table = "'NET000011','lang\r\n\r\n'NET00001','erste\r\n'NET00001','zweite\r\n";
  EXPECT_EQ(RecordField(FindArticleRow(table, "NET00001"), kArticleName), "erste");
  EXPECT_EQ(FindArticleRow(table, "net00001"), "");
}

TEST(ProposeArticleNumber, AnEmptyCategoryBeginsWithOne) {
  EXPECT_EQ(ProposeArticleNumber("", "NET"), "00001");
  EXPECT_EQ(ProposeArticleNumber(Table({"ABC00007"}), "NET"), "00001");
}

TEST(ProposeArticleNumber, FollowsTheLastRowOfTheFileNotTheHighestNumber) {
  EXPECT_EQ(ProposeArticleNumber(Table({"NET00900", "NET00005"}), "NET"), "00006");
}

TEST(ProposeArticleNumber, ACategoryInsideAnotherNumberCounts) {
  EXPECT_EQ(ProposeArticleNumber(Table({"NET00005", "XNET0041"}), "NET"), "00001");  // its last five are no number
  EXPECT_EQ(ProposeArticleNumber(Table({"NET00005", "NE100041"}), "E1"), "00042");
}

TEST(ProposeArticleNumber, CaseDoesNotMatter) {
  EXPECT_EQ(ProposeArticleNumber(Table({"net00005"}), "Net"), "00006");
  EXPECT_EQ(ProposeArticleNumber("'X','siehe nEt00001\r\n", "net"), "00002");
}

TEST(ProposeArticleNumber, SkipsEveryNumberThatStandsAnywhereInTheFile) {
  const std::string_view table = "'ABC00001','Ersatz für NET00001 und NET00002\r\n'NET00003','Kabel\r\n"_t;
  EXPECT_EQ(ProposeArticleNumber(table, "NET"), "00004");
  EXPECT_EQ(ProposeArticleNumber("'ABC00001','statt NET00001 oder NET00002\r\n", "NET"), "00003");
}

TEST(ProposeArticleNumber, GrowsBeyondFiveDigits) {
  EXPECT_EQ(ProposeArticleNumber(Table({"NET99999"}), "NET"), "100000");
  EXPECT_EQ(ProposeArticleNumber(Table({"NET99999"}) + "'ABC00001','NET100000 und NET100001\r\n", "NET"), "100002");
}

TEST(ProposeArticleNumber, BlankRowsDoNotDisturb) {
  EXPECT_EQ(ProposeArticleNumber(Table({"NET00005"}) + "\r\n\r\n", "NET"), "00006");
}

TEST(ProposeArticleNumber, OddNumbersOfOldFilesNeverHangIt) {
  for (const std::string_view odd : {"NET1e300", "NET1e999", "NET-0005", "NET 1,5 ", "NET", "NETNETNET", "NET1E+15"})
    EXPECT_FALSE(ProposeArticleNumber(Concat("'", odd, "','NET00001','", odd), "NET").empty()) << odd;
}

// Looking for number after number in the text would take minutes here.
TEST(ProposeArticleNumber, AFullCategoryIsWalkedOnce) {
  std::string table;
  for (int i = 2; i <= 60000; ++i) table += Concat("'NET", PadZeros(std::to_string(i), 5), "','Ware mit Text\r\n");
  table += "'NET00001','die letzte\r\n";
  EXPECT_EQ(ProposeArticleNumber(table, "NET"), "60001");
}

TEST(ArticleNumberTaken, LooksInsideTheNumbersAlone) {
  const std::string table = "'XNET00001','Kabel NET00002\r\n";
  EXPECT_TRUE(ArticleNumberTaken(table, "net00001"));
  EXPECT_FALSE(ArticleNumberTaken(table, "NET00002"));
  EXPECT_FALSE(ArticleNumberTaken("", "NET00002"));
}

TEST(OrderNumberWarnings, NameEachArticleThatHasTheNumberInAnyOfItsThreeColumns) {
  Article other = FullArticle();
  other.number = "ABC00001";
  other.orderNumbers = {"", "", "E-1"};
  const std::string table = Concat(ArticleLine(FullArticle()), "\r\n", ArticleLine(other), "\r\n");
  EXPECT_EQ(
      OrderNumberWarnings(table, "E-1"),
      (Texts{"Achtung: Bestellnummer wurde bereits bei Artikel NET50302 verwendet!\r\n\r\nBezeichnung: Kabel\r\n\r\n"
             "Beschreibung:\r\nZeile 1\r\nZeile 2\r\n\r\nZeile 4",
             "Achtung: Bestellnummer wurde bereits bei Artikel ABC00001 verwendet!\r\n\r\nBezeichnung: Kabel\r\n\r\n"
             "Beschreibung:\r\nZeile 1\r\nZeile 2\r\n\r\nZeile 4"}));
  EXPECT_EQ(OrderNumberWarnings(table, "e-1"), Texts());
  EXPECT_EQ(OrderNumberWarnings(table, "E-"), Texts());
}

TEST(OrderNumberWarnings, OneRowWarnsOnceHoweverOftenItHasTheNumber) {
  Article article = FullArticle();
  article.orderNumbers = {"E-1", "E-1", "E-1"};
  EXPECT_EQ(OrderNumberWarnings(ArticleLine(article), "E-1").size(), 1U);
}

TEST(EanWarnings, NameTheArticle) {
  EXPECT_EQ(EanWarnings(kFullLine, "4006381333931"),
            (Texts{"Achtung: EAN-Nummer wurde bereits bei Artikel NET50302 verwendet!\r\n\r\nBezeichnung: Kabel\r\n\r\n"
                   "Beschreibung:\r\nZeile 1\r\nZeile 2\r\n\r\nZeile 4"}));
  EXPECT_EQ(EanWarnings(kFullLine, "400638133393"), Texts());
}

std::string Hits(std::string_view table, const ArticleQuery& query) {
  std::string numbers;
  for (const std::string_view row : FindArticles(table, query)) numbers += Concat(RecordField(row, 1), " ");
  return numbers;
}

TEST(FindArticles, EmptyTermsFindEveryRow) {
  EXPECT_EQ(Hits(Table({"NET00001", "ABC00002"}) + "\r\n\r\n" + Table({"XYZ00003"}), {}),
            "NET00001 ABC00002 XYZ00003 ");
  EXPECT_EQ(Hits("", {}), "");
  EXPECT_EQ(Hits("'NET00001','ohne Zeilenende", {}), "NET00001 ");
}

TEST(FindArticles, CategoryAndDigitsLookInsideTheNumberAlone) {
  const std::string table = Table({"NET00012", "ABC00012", "NET00345"}) + "'XYZ00009','NET00012\r\n";
  EXPECT_EQ(Hits(table, {"net", "", ""}), "NET00012 NET00345 ");
  EXPECT_EQ(Hits(table, {"", "12", ""}), "NET00012 ABC00012 ");
  EXPECT_EQ(Hits(table, {"NET", "12", "gibt es nicht"}), "NET00012 ");
}

TEST(FindArticles, FreeTextLooksAnywhereInTheRow) {
  const std::string_view table = "'NET00001','Größe','oben\r\n'NET00002','Farbe','unten\r\n"_t;
  EXPECT_EQ(Hits(table, {"", "", std::string("GRÖßE"_t)}), "NET00001 ");
  EXPECT_EQ(Hits(table, {"", "", "','"}), "NET00001 NET00002 ");
  EXPECT_EQ(Hits(table, {"", "", "net00002"}), "NET00002 ");
  EXPECT_EQ(Hits(table, {"", "", "\r\n"}), "");
  EXPECT_EQ(Hits(table, {"", "", "oben\r\n'N"}), "");
}

// The quick search against the plain rule: upper case on both sides, row by row.
TEST(FindArticles, AgreesWithThePlainRuleOnRandomTables) {
  std::mt19937 random(7);
  const std::string_view alphabet = "aAbB',äÄ\r\n "_t;
  const auto text = [&](int longest) {
    std::string result;
    for (int n = static_cast<int>(random() % static_cast<unsigned>(longest)); n > 0; --n)
      result += alphabet[random() % alphabet.size()];
    return result;
  };
  for (int round = 0; round < 3000; ++round) {
    const std::string table = text(60);
    const std::string term = text(4);
    std::vector<std::string_view> expected;
    ForEachRow(table, [&](std::string_view row) {
      if (UCase(row).find(UCase(term)) != std::string::npos) expected.push_back(row);
    });
    ASSERT_EQ(FindArticles(table, {"", "", term}), expected) << table << "|" << term;
  }
}

TEST(SearchDoneText, TellsTheNumberOfHits) { EXPECT_EQ(SearchDoneText(12), "Suche beendet. 12"); }

TEST(ArticlePrices, NetAndGrossFollowTheRate) {
  Settings settings;
  settings.MWSTSatz = "0,19";
  settings.MWSTSatz2 = "0,07";
  EXPECT_EQ(GrossPriceText("19,90", VatFactor(settings, false)), "23,68");
  EXPECT_EQ(GrossPriceText("19,90", VatFactor(settings, true)), "21,29");
  EXPECT_EQ(NetPriceText("23,68", VatFactor(settings, false)), "19,90");
  EXPECT_EQ(NetPriceText("1.234,5", VatFactor(settings, true)), "1153,74");
  EXPECT_EQ(GrossPriceText("-0", VatFactor(settings, false)), "0,00");
  EXPECT_EQ(GrossPriceText("99999", VatFactor(settings, false)), "118998,81");
}

TEST(ArticlePrices, WithoutANumberThereIsNoOtherPrice) {
  Settings settings;
  settings.MWSTSatz = "0,19";
  settings.MWSTSatz2 = "-1";
  EXPECT_EQ(GrossPriceText("auf Anfrage", VatFactor(settings, false)), std::nullopt);
  EXPECT_EQ(NetPriceText("", VatFactor(settings, false)), std::nullopt);
  EXPECT_EQ(NetPriceText("10", VatFactor(settings, true)), std::nullopt);
  settings.MWSTSatz = "";
  EXPECT_EQ(GrossPriceText("10", VatFactor(settings, false)), std::nullopt);
}

TEST(ArticlePrices, ATypedNumberBecomesMoneyAndAnythingElseStays) {
  EXPECT_EQ(PriceAsShown("12,5"), "12,50");
  EXPECT_EQ(PriceAsShown("1.234,5"), "1234,50");
  EXPECT_EQ(PriceAsShown("1e3"), "1000,00");
  EXPECT_EQ(PriceAsShown("-0"), "0,00");
  EXPECT_EQ(PriceAsShown("99999"), "99999,00");
  EXPECT_EQ(PriceAsShown("2,125"), "2,12");
  EXPECT_EQ(PriceAsShown(""), "");
  EXPECT_EQ(PriceAsShown("auf Anfrage"), "auf Anfrage");
}

TEST(StockRowOfArticle, TakesTheArticlesFieldsAndKeepsTheItemsOwn) {
  std::string row = "'own1";
  for (int column = 2; column <= 36; ++column) row += Concat("','own", std::to_string(column));
  EXPECT_EQ(StockRowOfArticle(row, FullArticle()),
            "'own1','NET50302','Kabel','own4','own5','own6','own7','own8','4006381333931','own10','own11','Zeile 1',"
            "'Zeile 2','','Zeile 4','Stück','10er','0,2 kg','2 m','Kabelwerk','Erster','Zweiter','Dritter','E-1','Z-2',"
            "'D-3','12,50','','13,00','own30','own31','19,90','23,68','0','Falsch','own36"_t);
}

TEST(StockRowOfArticle, WritesTheItemKindAsATruthWord) {
  Article article = FullArticle();
  article.singleItem = true;
  article.secondRate = true;
  const std::string row = StockRowOfArticle("'#01001", article);
  EXPECT_EQ(RecordField(row, kStockEinzel), "Wahr");
  EXPECT_EQ(RecordField(row, kStockMWST2), "1");
  EXPECT_TRUE(IsSingleItem(row));
}

}  // namespace
}  // namespace kontorwerk
