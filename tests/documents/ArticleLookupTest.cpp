// Articles and stock items looked up into a position row: columns read, lines made, refusals, and which line wins.
#include "documents/ArticleLookup.h"

#include "stock/ArticleRecords.h"
#include "stock/StockRecords.h"
#include "tests/documents/DocumentFolder.h"
#include "tests/documents/GridReceiver.h"

namespace kontorwerk {
namespace {

using testing_support::DocumentFolder;
using testing_support::GridReceiver;

Article Cable() {
  Article article;
  article.number = "NET50302";
  article.description = {"Kabel", "2 m", "", "blau"};
  article.netPrice = "19,90";
  article.grossPrice = "23,68";
  article.ean = "4006381333931";
  return article;
}

StockRecord Phone(std::string_view stockNumber) {
  StockRecord record;
  record[kStockLagerNr] = stockNumber;
  record[kStockArtNr] = "TEL00007";
  record[kStockLagerbestand] = "5";
  record[kStockEANNr] = "4000000000017";
  record[kStockB1] = "Telefon";
  record[kStockB3] = "schwarz";
  record[kStockVK] = "100,00";
  record[kStockBrutto] = "119,00";
  record[kStockMWST2] = "0";
  record[kStockEinzel] = "0";
  return record;
}

class Lookup : public DocumentFolder {
 protected:
  void PutArticles(const std::vector<Article>& articles) {
    std::vector<std::string> lines;
    for (const Article& article : articles) lines.push_back(ArticleLine(article));
    PutTable("Artikeldb.dbf", lines);
  }
  void PutStock(const std::vector<StockRecord>& records) {
    std::vector<std::string> lines;
    for (const StockRecord& record : records) lines.push_back(record.Row());
    PutTable("LagerArtikeldb.dbf", lines);
  }
  [[nodiscard]] std::vector<std::string> Descriptions(std::size_t count) const {
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < count; ++row) texts.push_back(grid_.rows[row].B);
    return texts;
  }

  GridReceiver grid_;
};

using Texts = std::vector<std::string>;

TEST_F(Lookup, ArticleFillsItsRowAndOneRowForEachFurtherLine) {
  PutArticles({Cable()});
  grid_.rows[0] = {"#01001", "x", "7", "alt", "1,00", "7,00", false};
  EXPECT_EQ(LookupByArticleNumber(grid_, store_, 0, "NET50302"), LookupResult::Filled);
  EXPECT_EQ(grid_.rows[0], (PositionRow{"", "NET50302", "", "Kabel", "19,90", "", false}));
  EXPECT_EQ(Descriptions(4), (Texts{"Kabel", "2 m", "blau", ""}));
  EXPECT_EQ(grid_.focus, "S0");
}

TEST_F(Lookup, ArticleNumberIsComparedCaseAside) {
  PutArticles({Cable()});
  EXPECT_EQ(LookupByArticleNumber(grid_, store_, 2, "net50302"), LookupResult::Filled);
  EXPECT_EQ(grid_.rows[2].ArtNr, "NET50302");
  EXPECT_EQ(LookupByArticleNumber(grid_, store_, 2, "NET5030"), LookupResult::NotFound);
  EXPECT_EQ(grid_.rows[2].ArtNr, "");
}

TEST_F(Lookup, LongArticleNumberIsCutToCategoryAndFiveDigits) {
  Article article = Cable();
  article.number = "NETX50302";
  PutArticles({article});
  EXPECT_EQ(LookupByArticleNumber(grid_, store_, 0, "NETX50302"), LookupResult::Filled);
  EXPECT_EQ(grid_.rows[0].ArtNr, "NET50302");
}

TEST_F(Lookup, GrossDocumentTakesTheStoredGrossPrice) {
  Article article = Cable();
  article.grossPrice = "24,00";  // not 19,90 plus tax
  PutArticles({article});
  grid_.net = false;
  LookupByArticleNumber(grid_, store_, 0, "NET50302");
  EXPECT_EQ(grid_.rows[0].E, "24,00");
}

TEST_F(Lookup, SecondRateIsTickedAndNeverTakenAway) {
  Article second = Cable();
  second.secondRate = true;
  PutArticles({second});
  LookupByArticleNumber(grid_, store_, 0, "NET50302");
  EXPECT_TRUE(grid_.rows[0].secondRate);
  PutArticles({Cable()});
  LookupByArticleNumber(grid_, store_, 0, "NET50302");
  EXPECT_TRUE(grid_.rows[0].secondRate);
}

TEST_F(Lookup, StockArticleIsRefusedButForAQuotation) {
  Article kept = Cable();
  kept.stockKept = true;
  PutArticles({kept});
  grid_.rows[0] = {"", "NET50302", "2", "alt", "1,00", "2,00", false};
  EXPECT_EQ(LookupByArticleNumber(grid_, store_, 0, "NET50302"), LookupResult::Refused);
  EXPECT_EQ(grid_.rows[0], PositionRow());
  EXPECT_EQ(grid_.focus, "");
  grid_.quotation = true;
  EXPECT_EQ(LookupByArticleNumber(grid_, store_, 0, "NET50302"), LookupResult::Filled);
  EXPECT_EQ(grid_.rows[0].B, "Kabel");
}

TEST_F(Lookup, LineWithoutStockMarkIsRefused) {
  PutTable("Artikeldb.dbf", {"'NET50302','Kabel','Kabel"});
  EXPECT_EQ(LookupByArticleNumber(grid_, store_, 0, "NET50302"), LookupResult::Refused);
}

TEST_F(Lookup, FurtherLinesPushFilledRowsDown) {
  PutArticles({Cable()});
  grid_.rows[1].B = "Montage";
  LookupByArticleNumber(grid_, store_, 0, "NET50302");
  EXPECT_EQ(Descriptions(5), (Texts{"Kabel", "2 m", "blau", "Montage", ""}));
}

TEST_F(Lookup, LinesBehindTheLastRowMakeANewPage) {
  PutArticles({Cable()});
  LookupByArticleNumber(grid_, store_, 16, "NET50302");
  ASSERT_EQ(grid_.rows.size(), 34U);
  EXPECT_EQ(grid_.rows[17].B, "2 m");
  EXPECT_EQ(grid_.rows[18].B, "blau");
}

TEST_F(Lookup, MissingTablesFindNothing) {
  EXPECT_EQ(LookupByArticleNumber(grid_, store_, 0, "NET50302"), LookupResult::NotFound);
  EXPECT_EQ(LookupByStockNumber(grid_, store_, 0, "#01001"), LookupResult::NotFound);
  EXPECT_EQ(LookupByEAN(grid_, store_, 0, "4006381333931"), LookupResult::NotFound);
}

TEST_F(Lookup, StockItemFillsNumbersLinesAndPriceAndKeepsTheQuantity) {
  PutStock({Phone("#01001")});
  grid_.rows[0].S = "3";
  EXPECT_EQ(LookupByStockNumber(grid_, store_, 0, "#01001"), LookupResult::Filled);
  EXPECT_EQ(grid_.rows[0], (PositionRow{"#01001", "TEL00007", "3", "Telefon", "100,00", "", false}));
  EXPECT_EQ(Descriptions(3), (Texts{"Telefon", "schwarz", ""}));
  EXPECT_EQ(grid_.focus, "S0");
  grid_.net = false;
  LookupByStockNumber(grid_, store_, 4, "#01001");
  EXPECT_EQ(grid_.rows[4].E, "119,00");
}

TEST_F(Lookup, StockNumberIsComparedExactly) {
  PutStock({Phone("#01001")});
  grid_.rows[0] = {"01001", "A", "1", "B", "", "", false};
  EXPECT_EQ(LookupByStockNumber(grid_, store_, 0, "01001"), LookupResult::NotFound);
  EXPECT_EQ(grid_.rows[0], (PositionRow{"", "A", "1", "B", "", "", false}));
  EXPECT_EQ(LookupByStockNumber(grid_, store_, 0, "#99999"), LookupResult::NotFound);
}

TEST_F(Lookup, SerialAndImeiNumberTakeARowEach) {
  StockRecord phone = Phone("#01001");
  phone[kStockSerNr] = "S-77";
  phone[kStockIMEINr] = "35000";
  PutStock({phone});
  LookupByStockNumber(grid_, store_, 0, "#01001");
  EXPECT_EQ(Descriptions(5), (Texts{"Telefon", "schwarz", "SerienNr. S-77", "IMEINr 35000", ""}));
}

TEST_F(Lookup, SingleItemGetsOnePieceAndTheFocusGoesOn) {
  for (const std::string_view single : {"1", "Wahr"}) {
    GridReceiver grid;
    StockRecord phone = Phone("#01001");
    phone[kStockEinzel] = single;
    PutStock({phone});
    LookupByStockNumber(grid, store_, 0, "#01001");
    EXPECT_EQ(grid.rows[0].S, "1");
    EXPECT_EQ(grid.focus, "LGNr2");
  }
}

TEST_F(Lookup, SecondRateOfTheStockItemIsTicked) {
  StockRecord phone = Phone("#01001");
  phone[kStockMWST2] = "1";
  PutStock({phone});
  LookupByStockNumber(grid_, store_, 0, "#01001");
  EXPECT_TRUE(grid_.rows[0].secondRate);
}

TEST_F(Lookup, EanIsFoundInTheMasterByItsLastColumn) {
  PutArticles({Cable()});
  EXPECT_EQ(LookupByEAN(grid_, store_, 1, "4006381333931"), LookupResult::Filled);
  EXPECT_EQ(grid_.rows[1].ArtNr, "NET50302");
  EXPECT_EQ(grid_.focus, "S1");
}

TEST_F(Lookup, EanSerialAndImeiNumberAreFoundInTheStock) {
  StockRecord phone = Phone("#01001");
  phone[kStockSerNr] = "1234567890";
  phone[kStockIMEINr] = "350000000000001";
  PutStock({phone});
  for (const std::string_view text : {"4000000000017", "1234567890", "350000000000001"}) {
    GridReceiver grid;
    EXPECT_EQ(LookupByEAN(grid, store_, 0, text), LookupResult::Filled) << text;
    EXPECT_EQ(grid.rows[0].LGNr, "#01001");
  }
}

TEST_F(Lookup, OfSeveralLinesWithOneEanTheLastOneFillsTheRowAlone) {
  StockRecord second = Phone("#01002");
  second[kStockSerNr] = "S-2";
  StockRecord first = Phone("#01001");
  first[kStockSerNr] = "S-1";
  PutStock({first, second});
  LookupByEAN(grid_, store_, 0, "4000000000017");
  EXPECT_EQ(grid_.rows[0].LGNr, "#01002");
  EXPECT_EQ(Descriptions(4), (Texts{"Telefon", "schwarz", "SerienNr. S-2", ""}));
}

TEST_F(Lookup, StockHitOverwritesTheMasterHit) {
  Article article = Cable();
  article.ean = "4000000000017";
  PutArticles({article});
  PutStock({Phone("#01001")});
  grid_.rows[0] = {"4000000000017", "", "9", "alt", "", "", false};
  EXPECT_EQ(LookupByEAN(grid_, store_, 0, "4000000000017"), LookupResult::Filled);
  EXPECT_EQ(grid_.rows[0], (PositionRow{"#01001", "TEL00007", "", "Telefon", "100,00", "", false}));
  EXPECT_EQ(Descriptions(3), (Texts{"Telefon", "schwarz", ""}));
}

TEST_F(Lookup, RefusedMasterHitWithAStockHitIsASuccess) {
  Article kept = Cable();
  kept.stockKept = true;
  kept.ean = "4000000000017";
  PutArticles({kept});
  EXPECT_EQ(LookupByEAN(grid_, store_, 0, "4000000000017"), LookupResult::Refused);
  PutStock({Phone("#01001")});
  EXPECT_EQ(LookupByEAN(grid_, store_, 0, "4000000000017"), LookupResult::Filled);
  EXPECT_EQ(grid_.rows[0].LGNr, "#01001");
}

TEST_F(Lookup, UnknownEanLeavesTheRowAlone) {
  PutArticles({Cable()});
  grid_.rows[0] = {"4111111111111", "", "2", "B", "", "", false};
  EXPECT_EQ(LookupByEAN(grid_, store_, 0, "4111111111111"), LookupResult::NotFound);
  EXPECT_EQ(grid_.rows[0], (PositionRow{"4111111111111", "", "2", "B", "", "", false}));
}

TEST(EanFields, LengthTellsAnEan) {
  EXPECT_TRUE(IsEanInStockNumber("4006381"));
  EXPECT_FALSE(IsEanInStockNumber("400638"));
  EXPECT_FALSE(IsEanInStockNumber("#010011"));
  EXPECT_FALSE(IsEanInStockNumber(""));
  EXPECT_TRUE(IsEanInArticleNumber("400638133"));
  EXPECT_FALSE(IsEanInArticleNumber("NET50302"));
}

}  // namespace
}  // namespace kontorwerk
