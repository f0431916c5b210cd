// The screen Artikelanlegen: number, fields that answer at once, saving, stock rows, take-over, and the ways out.
#include <gtest/gtest.h>

#include "stock/StockRecords.h"
#include "store/RecordLine.h"
#include "tests/stock/ArticleDesk.h"
#include "tests/store/FaultyDisk.h"

namespace kontorwerk {
namespace {

using namespace testing_support;

class ArticleScreen : public ArticleDesk {};

constexpr std::string_view kSavedKabel = "Änderungen des Artikels Kabel / ArtikelNr. NET00001 gespeichert!"_t;

TEST_F(ArticleScreen, ANewMaskIsEmptyWithMultipleItemsChosen) {
  mask_.Show();
  EXPECT_EQ(mask_.Caption(), "Artikel anlegen / bearbeiten");
  EXPECT_FALSE(mask_.CheckLagerartikel.Checked());
  EXPECT_TRUE(mask_.Mehrfachartikel.Value());
  EXPECT_FALSE(mask_.Einzelartikel.Value());
  EXPECT_TRUE(mask_.Kat.Enabled());
  EXPECT_TRUE(mask_.Command4.Enabled());
  EXPECT_EQ(mask_.FocusedControl(), &mask_.Kat);
  for (const TextBox* box : {&mask_.Kat, &mask_.ArtikelNr, &mask_.Bezeichnung, &mask_.VK, &mask_.EANNr})
    EXPECT_EQ(box->Text(), "") << box->Name();
}

// The number ---------------------------------------------------------------------------------------------------------

TEST_F(ArticleScreen, AProposalNeedsACategory) {
  mask_.Show();
  Click(mask_.Command4);
  EXPECT_EQ(Box(), "Bitte Kategorie eintragen (max 3 Stellen)");
  EXPECT_EQ(Title(), "Kontorwerk");
  EXPECT_EQ(desktop_.Focus(), &mask_.Kat);
}

TEST_F(ArticleScreen, TheProposalStandsInTheNumberAndTheFocusOnTheName) {
  PutArticles(ArticleRow({.number = "NET00900"}) + ArticleRow({.number = "NET00005"}));
  mask_.Show();
  Set(mask_.Kat, "net");
  Click(mask_.Command4);
  EXPECT_EQ(mask_.Kat.Text(), "NET");
  EXPECT_EQ(mask_.ArtikelNr.Text(), "00006");
  EXPECT_EQ(desktop_.Focus(), &mask_.Bezeichnung);
}

TEST_F(ArticleScreen, TheCategoryIsInUpperCaseOnceItIsLeft) {
  mask_.Show();
  Set(mask_.Kat, "äbc"_t);
  Set(mask_.Bezeichnung, "x");
  EXPECT_EQ(mask_.Kat.Text(), "ÄBC"_t);
}

TEST_F(ArticleScreen, ANumberWithTheMarkOfStockNumbersIsRefusedAndKeepsTheFocus) {
  mask_.Show();
  Set(mask_.ArtikelNr, "#0001");
  Set(mask_.Bezeichnung, "x");
  EXPECT_EQ(Box(), "Artikelnummern dürfen kein '#' enthalten!\r\nDieses Zeichen ist für Lagernummern vorbehalten!"_t);
  EXPECT_EQ(mask_.ArtikelNr.Text(), "");
  EXPECT_EQ(desktop_.Focus(), &mask_.ArtikelNr);
  EXPECT_EQ(mask_.Bezeichnung.Text(), "");
}

TEST_F(ArticleScreen, ANumberWithLettersIsRefusedAndKeepsTheFocus) {
  mask_.Show();
  Set(mask_.ArtikelNr, "5030x");
  Set(mask_.Bezeichnung, "x");
  EXPECT_EQ(Box(), "Artikelnummern dürfen 'nur' im Kategoriefeld 'Text' enthalten!"_t);
  EXPECT_EQ(mask_.ArtikelNr.Text(), "");
  EXPECT_EQ(desktop_.Focus(), &mask_.ArtikelNr);
}

TEST_F(ArticleScreen, ANumberInUseIsClearedAndTheFocusGoesOn) {
  PutArticles(ArticleRow({.number = "NET00001"}));
  NewArticle("00001");
  EXPECT_EQ(Box(), "ArtikelNummer NET00001 bereits vorhanden!!!\r\nBitte neue ArtikelNummer vergeben!");
  EXPECT_EQ(mask_.ArtikelNr.Text(), "");
  EXPECT_EQ(desktop_.Focus(), &mask_.Bezeichnung);
  EXPECT_EQ(mask_.Bezeichnung.Text(), "Kabel");
}

TEST_F(ArticleScreen, AnEmptyNumberMayBeLeft) {
  mask_.Show();
  Set(mask_.ArtikelNr, "");
  Set(mask_.Bezeichnung, "x");
  EXPECT_EQ(platform_.BoxCount(), 0);
}

// Fields -------------------------------------------------------------------------------------------------------------

TEST_F(ArticleScreen, PricesBecomeMoneyWhenTheyAreLeft) {
  mask_.Show();
  for (TextBox* price : {&mask_.EK1, &mask_.EK2, &mask_.EK3}) {
    Set(*price, "1.234,5");
    Set(mask_.Bezeichnung, "x");
    EXPECT_EQ(price->Text(), "1234,50");
    Set(*price, "auf Anfrage");
    Set(mask_.Bezeichnung, "y");
    EXPECT_EQ(price->Text(), "auf Anfrage");
  }
}

TEST_F(ArticleScreen, NetAndGrossPriceFollowEachOther) {
  mask_.Show();
  Set(mask_.VK, "19,9");
  desktop_.MoveFocus(mask_.Brutto);
  EXPECT_EQ(mask_.VK.Text(), "19,90");
  EXPECT_EQ(mask_.Brutto.Text(), "23,68");
  Set(mask_.Brutto, "119");
  desktop_.MoveFocus(mask_.Notizen);
  EXPECT_EQ(mask_.Brutto.Text(), "119,00");
  EXPECT_EQ(mask_.VK.Text(), "100,00");
  Toggle(mask_.MWST2_Check);
  EXPECT_EQ(mask_.VK.Text(), "100,00");
  EXPECT_EQ(mask_.Brutto.Text(), "107,00");
}

TEST_F(ArticleScreen, APriceThatIsNoNumberLeavesTheOtherAlone) {
  mask_.Show();
  Set(mask_.VK, "10");
  Set(mask_.Brutto, "auf Anfrage");
  Set(mask_.VK, "frei");
  desktop_.MoveFocus(mask_.Notizen);
  EXPECT_EQ(mask_.VK.Text(), "frei");
  EXPECT_EQ(mask_.Brutto.Text(), "auf Anfrage");
  EXPECT_EQ(platform_.BoxCount(), 0);
}

TEST_F(ArticleScreen, ADescriptionLineCountsDownWhileItHasTheFocus) {
  mask_.Show();
  EXPECT_FALSE(mask_.Label36.Visible());
  Set(mask_.B3, std::string(42, 'x'));
  EXPECT_TRUE(mask_.Label36.Visible());
  EXPECT_TRUE(mask_.Label37.Visible());
  EXPECT_EQ(mask_.Label36.Caption(), "Restliche Zeichen:");
  EXPECT_EQ(mask_.Label37.Caption(), "5");
  EXPECT_EQ(mask_.Label37.ForeColour(), std::nullopt);
  Set(mask_.B3, std::string(43, 'x'));
  EXPECT_EQ(mask_.Label37.Caption(), "4");
  EXPECT_EQ(mask_.Label37.ForeColour(), Colour{255});
  Set(mask_.B3, std::string(50, 'x'));
  EXPECT_EQ(mask_.Label37.Caption(), "-3");
  desktop_.MoveFocus(mask_.B4);
  EXPECT_EQ(mask_.Label37.Caption(), "47");
  desktop_.MoveFocus(mask_.VK);
  EXPECT_FALSE(mask_.Label36.Visible());
  EXPECT_FALSE(mask_.Label37.Visible());
  EXPECT_EQ(mask_.B3.Text().size(), 50U);
}

TEST_F(ArticleScreen, TheItemKindIsAskedOnlyOfStockArticles) {
  mask_.Show();
  const std::vector<Control*> controls = {&mask_.Einzelartikel, &mask_.Mehrfachartikel, &mask_.Label6, &mask_.Label7,
                                          &mask_.Label8};
  for (const Control* control : controls) EXPECT_FALSE(control->Visible()) << control->Name();
  Toggle(mask_.CheckLagerartikel);
  for (const Control* control : controls) EXPECT_TRUE(control->Visible()) << control->Name();
  EXPECT_TRUE(mask_.Changed);
  Choose(mask_.Einzelartikel);
  EXPECT_FALSE(mask_.Mehrfachartikel.Value());
  Toggle(mask_.CheckLagerartikel);
  for (const Control* control : controls) EXPECT_FALSE(control->Visible()) << control->Name();
}

TEST_F(ArticleScreen, TheHelpTellsTheItemKindsApart) {
  mask_.Show();
  Toggle(mask_.CheckLagerartikel);
  Click(mask_.Label8);
  EXPECT_EQ(Box(),
            "Einzelartikel sind Artikel, welche bsp. eine Serien oder IMEI-Nr besitzen.\r\n"
            "Beim Wareneingang wird für diesen Artikel eine extra Lagernummer vergeben!\r\n"
            "Wird der Artikel mit der extra Lagernummer verkauft, wird die Lagernummer\r\n"
            "aus der Lagerdatenbank entfernt!\r\n\r\n"
            "Mehrfachartikel hingegen haben keine Serien / IMEI-Nr..\r\n"
            "Beim Verkauf wird die Stückzahl des Lagerartikels entsprechend reduziert.\r\n"
            "Die Lagernummer des Artikels jedoch bleibt auf jeden Fall erhalten!"_t);
}

TEST_F(ArticleScreen, AnOrderNumberInUseWarnsOnceForEachArticleAndStays) {
  PutArticles(ArticleRow({.number = "NET00001", .description = "Eins", .orderNumber = "B-7"}) +
              ArticleRow({.number = "ABC00002", .name = "Dose", .secondLine = "Zwei", .orderNumber = "B-7"}));
  mask_.Show();
  Set(mask_.BestNr3, "B-7");
  desktop_.MoveFocus(mask_.EK3);
  EXPECT_EQ(platform_.BoxCount(), 2);
  EXPECT_EQ(Box(),
            "Achtung: Bestellnummer wurde bereits bei Artikel ABC00002 verwendet!\r\n\r\nBezeichnung: Dose\r\n\r\n"
            "Beschreibung:\r\n\r\nZwei\r\n\r\n");
  EXPECT_EQ(mask_.BestNr3.Text(), "B-7");
  EXPECT_EQ(desktop_.Focus(), &mask_.EK3);
}

TEST_F(ArticleScreen, AnEditedArticleWarnsAboutItself) {
  PutArticles(ArticleRow({.number = "NET00001", .orderNumber = "B-7", .ean = "4711"}));
  EditArticle(1);
  desktop_.MoveFocus(mask_.BestNr1);
  desktop_.MoveFocus(mask_.EANNr);
  EXPECT_EQ(Box(),
            "Achtung: Bestellnummer wurde bereits bei Artikel NET00001 verwendet!\r\n\r\nBezeichnung: Kabel\r\n\r\n"
            "Beschreibung:\r\n\r\n\r\n\r\n");
  desktop_.MoveFocus(mask_.VK);
  EXPECT_EQ(Box(),
            "Achtung: EAN-Nummer wurde bereits bei Artikel NET00001 verwendet!\r\n\r\nBezeichnung: Kabel\r\n\r\n"
            "Beschreibung:\r\n\r\n\r\n\r\n");
  EXPECT_FALSE(mask_.Changed);
}

// Suppliers ----------------------------------------------------------------------------------------------------------

TEST_F(ArticleScreen, ASupplierButtonOpensTheSearchForItsField) {
  mask_.Show();
  Click(mask_.Command2);
  EXPECT_TRUE(mask_.SupplierTarget2);
  ASSERT_EQ(supplierSearches_.size(), 1U);
  ASSERT_TRUE(supplierSearches_[0].waits());
  supplierSearches_[0].take("Kabelwerk GmbH");
  EXPECT_EQ(mask_.Lieferant2.Text(), "Kabelwerk GmbH");
  EXPECT_EQ(mask_.Lieferant1.Text(), "");
  EXPECT_FALSE(mask_.SupplierTarget2);
  EXPECT_TRUE(mask_.Changed);
  EXPECT_FALSE(supplierSearches_[0].waits());
}

TEST_F(ArticleScreen, AClosedMaskWaitsForNoSupplier) {
  mask_.Show();
  Click(mask_.Command1);
  Click(mask_.Command7);
  EXPECT_FALSE(mask_.SupplierTarget1);
  EXPECT_FALSE(supplierSearches_[0].waits());
  supplierSearches_[0].take("zu spät"_t);
  EXPECT_EQ(mask_.Lieferant1.Text(), "");
}

TEST_F(ArticleScreen, AnOpenSupplierSearchIsNotOpenedTwice) {
  struct OpenSearch final : Screen {
    explicit OpenSearch(Desktop& desktop) : Screen(desktop, "LFsuchen") {}
  } open(desktop_);
  desktop_.Add(open);
  open.Show();
  mask_.Show();
  Click(mask_.Command3);
  EXPECT_EQ(
      Box(),
      "Das Fenster zum Lieferanten suchen ist bereits geöffnet!\r\nBitte Fenster schließen und erneut versuchen."_t);
  EXPECT_TRUE(supplierSearches_.empty());
  EXPECT_FALSE(mask_.SupplierTarget3);
}

// Saving -------------------------------------------------------------------------------------------------------------

TEST_F(ArticleScreen, ANewArticleIsAppendedAndItsNumberLocked) {
  PutArticles("'ABC00001','alt\r\n");
  NewArticle();
  Set(mask_.Notizen, "oben\r\nunten");
  Set(mask_.EANNr, "4711");
  Click(mask_.Command5);
  EXPECT_EQ(
      Articles(),
      "'ABC00001','alt\r\n'NET00001','Kabel','','','','','0','Falsch','Wahr','','','','','','','','','','','','','','',"
      "'oben*__*unten','','0','','15.11.2026','4711\r\n");
  EXPECT_EQ(Status(mask_), kSavedKabel);
  EXPECT_FALSE(mask_.Kat.Enabled());
  EXPECT_FALSE(mask_.ArtikelNr.Enabled());
  EXPECT_FALSE(mask_.Command4.Enabled());
  EXPECT_FALSE(mask_.Changed);
  EXPECT_EQ(platform_.BoxCount(), 0);
  EXPECT_NE(out_.str().find("speichern... Bitte warten!"), std::string::npos);
}

TEST_F(ArticleScreen, ASecondSaveReplacesTheArticleAndLeavesABlankLine) {
  NewArticle();
  Click(mask_.Command5);
  Set(mask_.Bezeichnung, "Kabel lang");
  Click(mask_.Command5);
  EXPECT_EQ(
      Articles(),
      "'NET00001','Kabel lang','','','','','0','Falsch','Wahr','','','','','','','','','','','','','','','','','0',"
      "'','15.11.2026','\r\n\r\n");
}

TEST_F(ArticleScreen, AnUnchangedArticleSavedAgainAddsOneBlankLineAndChangesNothingElse) {
  const std::string before =
      ArticleRow(
          {.number = "NET00001", .description = "Eins", .stockKept = true, .netPrice = "1,00", .grossPrice = "5"}) +
      "\r\n'NET000010','fremd','a','','b'\r\n" + ArticleRow({.number = "ABC00001"});
  PutArticles(before);
  EditArticle(1);
  Click(mask_.Command5);
  EXPECT_EQ(Articles(), before + "\r\n");
  Click(mask_.Command5);
  EXPECT_EQ(Articles(), before + "\r\n\r\n");
}

TEST_F(ArticleScreen, TheDateOfEntryIsWrittenOnce) {
  PutArticles(ArticleRow({.number = "NET00001"}));
  EditArticle(1);
  EXPECT_EQ(Status(mask_), "Artikel angelegt am: 12.05.2006");
  Set(mask_.Bezeichnung, "Kabel neu");
  Click(mask_.Command5);
  EXPECT_EQ(RecordField(Articles(), kArticleName), "Kabel neu");
  EXPECT_EQ(RecordField(Articles(), kArticleEntryDate), "12.05.2006");
}

TEST_F(ArticleScreen, OddTextsAreStoredAsTheyStandAndTouchNoOtherArticle) {
  const std::string other = ArticleRow({.number = "ABC00001"});
  PutArticles(other);
  NewArticle();
  Set(mask_.Bezeichnung, "O'Hara's 5\" *__*");
  Set(mask_.B1, "a','b");
  Set(mask_.Gewicht, "1e3");
  Set(mask_.Notizen, std::string(10000, 'n') + "\r\n\r\n'ende'");
  Set(mask_.VK, "99999");
  Set(mask_.EK1, "-0");
  Click(mask_.Command5);
  EXPECT_EQ(Articles(),
            other +
                "'NET00001','O'Hara's 5\" *__*','a','b','','','','0','Falsch','Wahr','','','1e3','','','','','','',"
                "'','','0,00','','','" +
                std::string(10000, 'n') + "*__**__*'ende'','99999,00','0','118998,81','15.11.2026','\r\n");
}

TEST_F(ArticleScreen, NotesComeBackWithTheirLineBreaks) {
  NewArticle();
  Set(mask_.Notizen, "eins\r\nzwei\r\n");
  Click(mask_.Command5);
  Click(mask_.Command7);
  EditArticle(1);
  EXPECT_EQ(mask_.Notizen.Text(), "eins\r\nzwei\r\n");
}

TEST_F(ArticleScreen, ANumberOfTheWrongLengthIsRefused) {
  for (const std::string_view digits : {"5030", "503020", ""}) {
    mask_.Show();
    Set(mask_.Kat, "NET");
    Set(mask_.ArtikelNr, digits);
    Click(mask_.Command5);
    EXPECT_EQ(Box(),
              "Bitte korrekte ArtikelNr vergeben\r\nBsp. NET  50302\r\n"
              "Kategorie muss 3 stellig sein, Art.Nr. muss 5 stellig sein!");
    EXPECT_EQ(desktop_.Focus(), &mask_.ArtikelNr);
    EXPECT_EQ(mask_.ArtikelNr.Text(), digits);
    EXPECT_TRUE(mask_.Kat.Enabled());
  }
  EXPECT_EQ(Articles(), "(missing)");
}

TEST_F(ArticleScreen, ACategoryOfTheWrongLengthIsRefused) {
  mask_.Show();
  Set(mask_.Kat, "NE");
  Set(mask_.ArtikelNr, "50302");
  Click(mask_.Command5);
  EXPECT_EQ(platform_.BoxCount(), 1);
  EXPECT_EQ(Articles(), "(missing)");
}

TEST_F(ArticleScreen, ANumberWithALetterIsRefusedBySavingToo) {
  mask_.Show();
  Set(mask_.Kat, "NET");
  Set(mask_.ArtikelNr, "5030x");
  Click(mask_.SpÜbernahme);  // a menu entry: the number is not left
  EXPECT_EQ(Box(), "Bitte numerische ArtikelNr vergeben\r\nBsp. 50302");
  EXPECT_EQ(desktop_.Focus(), &mask_.ArtikelNr);
  EXPECT_EQ(mask_.ArtikelNr.Text(), "5030x");
  EXPECT_EQ(Articles(), "(missing)");
}

TEST_F(ArticleScreen, AMenuSavesTheCategoryInUpperCase) {
  mask_.Show();
  Set(mask_.ArtikelNr, "00001");
  Set(mask_.Kat, "net");
  Click(mask_.SpÜbernahme);
  EXPECT_EQ(RecordField(Articles(), kArticleNumber), "NET00001");
  EXPECT_EQ(mask_.Kat.Text(), "NET");
}

TEST_F(ArticleScreen, SaveAndNewClearsTheMask) {
  NewArticle();
  Toggle(mask_.CheckLagerartikel);
  Choose(mask_.Einzelartikel);
  Toggle(mask_.MWST2_Check);
  Set(mask_.VK, "10");
  Click(mask_.Command6);
  EXPECT_EQ(RecordField(Articles(), kArticleSingleItem), "Wahr");
  EXPECT_EQ(RecordField(Articles(), kArticleGrossPrice), "10,70");
  EXPECT_EQ(Status(mask_), kSavedKabel);
  for (const TextBox* box : {&mask_.Kat, &mask_.ArtikelNr, &mask_.Bezeichnung, &mask_.VK, &mask_.Brutto})
    EXPECT_EQ(box->Text(), "") << box->Name();
  EXPECT_FALSE(mask_.CheckLagerartikel.Checked());
  EXPECT_TRUE(mask_.Mehrfachartikel.Value());
  EXPECT_TRUE(mask_.ArtikelNr.Enabled());
  EXPECT_EQ(desktop_.Focus(), &mask_.Kat);
  EXPECT_FALSE(mask_.Changed);
  NewArticle("00002");
  Click(mask_.Command5);
  EXPECT_EQ(RecordField(FindArticleRow(Articles(), "NET00002"), kArticleNumber), "NET00002");
}

TEST_F(ArticleScreen, ARefusedSaveAndNewKeepsTheMask) {
  NewArticle("1");
  Click(mask_.Command6);
  EXPECT_EQ(mask_.Bezeichnung.Text(), "Kabel");
  EXPECT_EQ(Articles(), "(missing)");
}

// Stock rows ---------------------------------------------------------------------------------------------------------

std::string StockRow(std::string_view stockNumber, std::string_view articleNumber) {
  StockRecord record;
  record[kStockLagerNr] = stockNumber;
  record[kStockArtNr] = articleNumber;
  record[kStockBezeichnung] = "alter Name";
  record[kStockLagerbestand] = "7";
  record[kStockNotizen] = "bleibt";
  record[kStockEinzel] = "0";
  record[kStockStatus] = "Wareneingang am 01.02.2026";
  return record.Row() + "\r\n";
}

std::string ChangedStockRow(std::string_view stockNumber, std::string_view kind) {
  StockRecord record(StockRow(stockNumber, "NET00001"));
  record[kStockBezeichnung] = "Kabel neu";
  record[kStockVK] = "10,00";
  record[kStockBrutto] = "11,90";
  record[kStockMWST2] = "0";
  record[kStockEinzel] = kind;
  const std::string row = record.Row();
  return row.substr(0, row.find("*__*")) + "\r\n";
}

class ArticleWithStock : public ArticleDesk {
 protected:
  void Prepare(bool single) {
    PutArticles(ArticleRow(
        {.number = "NET00001", .stockKept = true, .singleItem = single, .netPrice = "10,00", .grossPrice = "11,90"}));
    PutStock(before_);
    EditArticle(1);
    Set(mask_.Bezeichnung, "Kabel neu");
  }

  const std::string before_ =
      StockRow("#01001", "NET00001") + StockRow("#01002", "ABC00001") + "\r\n" + StockRow("#01003", "NET00001");
};

TEST_F(ArticleWithStock, TheQuestionTellsWhatHappens) {
  Prepare(false);
  platform_.Push(Answer::No);
  Click(mask_.Command5);
  EXPECT_EQ(Title(), "Änderungen auch bei LagerArtikeln durchführen?"_t);
  EXPECT_EQ(Box(),
            "Sollen die geänderten Daten in den bereits eingelagerten Lagerartikeln übernommen werden?\r\n\r\n"
            "Achtung: Es werden ´alle´ Felder aus diesem Formular bei den eingelagerten Artikeln neu gesetzt!\r\n\r\n"
            "Ausnahme:\r\nHier durchgeführe Änderungen im Notizfeld werden ´nicht´ übernommen und bleiben bei den "
            "Lagerartikeln erhalten!"_t);
  EXPECT_EQ(Status(mask_), "Keine Änderungen bei den LagerArtikeln durchgeführt!"_t);
  EXPECT_EQ(Stock(), before_);
  EXPECT_EQ(centre_.counted, 0);
  EXPECT_EQ(RecordField(Articles(), kArticleName), "Kabel neu");
  EXPECT_FALSE(mask_.Changed);
}

TEST_F(ArticleWithStock, YesRewritesEveryRowOfTheArticle) {
  Prepare(false);
  platform_.Push(Answer::Yes);
  Click(mask_.Command5);
  EXPECT_EQ(Stock(), ChangedStockRow("#01001", "Falsch") + StockRow("#01002", "ABC00001") + "\r\n" +
                         ChangedStockRow("#01003", "Falsch") + "\r\n");
  EXPECT_EQ(Status(mask_), "Änderungen des Artikelstamms auch bei den LagerArtikeln durchgeführt!"_t);
  EXPECT_EQ(centre_.counted, 1);
}

TEST_F(ArticleWithStock, SingleItemsAreRewrittenTheSameWay) {
  Prepare(true);
  platform_.Push(Answer::Yes);
  Click(mask_.Command5);
  EXPECT_EQ(Stock(), ChangedStockRow("#01001", "Wahr") + StockRow("#01002", "ABC00001") + "\r\n" +
                         ChangedStockRow("#01003", "Wahr") + "\r\n");
}

TEST_F(ArticleWithStock, AnArticleNoLongerKeptInStockLeavesItsRowsAlone) {
  Prepare(false);
  Toggle(mask_.CheckLagerartikel);
  platform_.Push(Answer::Yes);
  Click(mask_.Command5);
  EXPECT_EQ(Stock(), before_);
  EXPECT_EQ(Status(mask_), "Änderungen des Artikelstamms auch bei den LagerArtikeln durchgeführt!"_t);
}

TEST_F(ArticleWithStock, ANumberNotInStockAsksNothing) {
  Prepare(false);
  PutStock(StockRow("#01002", "ABC00001"));
  Click(mask_.Command5);
  EXPECT_EQ(platform_.BoxCount(), 0);
  EXPECT_EQ(Status(mask_), "Änderungen des Artikels Kabel neu / ArtikelNr. NET00001 gespeichert!"_t);
}

TEST_F(ArticleWithStock, ANewArticleAsksNothing) {
  PutStock(StockRow("#01001", "NET00001"));
  NewArticle();
  Click(mask_.Command5);
  EXPECT_EQ(platform_.BoxCount(), 0);
}

// Take-over ----------------------------------------------------------------------------------------------------------

class ArticleTakeOver : public ArticleDesk {
 protected:
  void Prepare(const ArticleText& text) {
    PutArticles(ArticleRow(text));
    EditArticle(1);
    mask_.DocumentCall = true;
    document_.current = 4;
    document_.rows[4] = {"#01000", "alt", "3", "alt", "9,99", false};
  }
};

TEST_F(ArticleTakeOver, ANetDocumentTakesTheNetPrice) {
  Prepare(
      {.number = "NET00001", .description = "Eins", .secondLine = "Zwei", .netPrice = "19,90", .grossPrice = "25,00"});
  Click(mask_.SpÜbernahme);
  EXPECT_EQ(document_.Line(4), "|NET00001||Eins|19,90");
  EXPECT_EQ(document_.Line(5), "|||Zwei|");
  EXPECT_EQ(document_.focus, "S 4");
  EXPECT_FALSE(mask_.Visible());
  EXPECT_FALSE(mask_.DocumentCall);
  EXPECT_EQ(Articles().substr(Articles().size() - 4), "\r\n\r\n");  // it was saved first
}

TEST_F(ArticleTakeOver, AGrossDocumentTakesTheNetPriceWithTax) {
  Prepare({.number = "NET00001", .netPrice = "19,90", .grossPrice = "25,00", .secondRate = true});
  document_.net = false;
  Click(mask_.SpÜbernahme);
  EXPECT_EQ(document_.Line(4), "|NET00001|||21,29|2");
}

TEST_F(ArticleTakeOver, EmptyDescriptionLinesLeaveNoGaps) {
  Prepare({.number = "NET00001", .netPrice = "1,00"});
  Set(mask_.B2, "zwei");
  Set(mask_.B4, "vier");
  Click(mask_.SpÜbernahme);
  EXPECT_EQ(document_.Line(4), "|NET00001|||1,00");
  EXPECT_EQ(document_.Line(5), "|||zwei|");
  EXPECT_EQ(document_.Line(6), "|||vier|");
}

TEST_F(ArticleTakeOver, AStockArticleIsRefusedAndLeavesTheRowEmpty) {
  Prepare({.number = "NET00001", .stockKept = true, .netPrice = "19,90"});
  Click(mask_.SpÜbernahme);
  EXPECT_EQ(Box(), "Dieser Artikel ist ein Lagerartikel. Bitte suchen Sie\r\ndie entsprechende Position im Lager!");
  EXPECT_EQ(document_.Line(4), "||||");
  EXPECT_TRUE(mask_.Visible());
}

TEST_F(ArticleTakeOver, AQuotationMayNameAStockArticle) {
  Prepare({.number = "NET00001", .stockKept = true, .netPrice = "19,90"});
  document_.quotation = true;
  Click(mask_.SpÜbernahme);
  EXPECT_EQ(document_.Line(4), "|NET00001|||19,90");
  EXPECT_EQ(platform_.BoxCount(), 0);
}

TEST_F(ArticleTakeOver, ARefusedSaveTakesNothingOver) {
  Prepare({.number = "NET00001", .netPrice = "19,90"});
  Click(mask_.Neu_Datenübernahme);
  Click(mask_.SpÜbernahme);
  EXPECT_EQ(platform_.BoxCount(), 1);
  EXPECT_EQ(document_.Line(4), "#01000|alt|3|alt|9,99");
}

TEST_F(ArticleTakeOver, WithoutACallerItOnlySaves) {
  NewArticle();
  Click(mask_.SpÜbernahme);
  EXPECT_TRUE(mask_.Visible());
  EXPECT_EQ(Status(mask_), kSavedKabel);
  EXPECT_TRUE(document_.rows.empty());
  EXPECT_TRUE(receipt_.calls.empty());
}

TEST_F(ArticleTakeOver, AGoodsReceiptTakesTheArticleOver) {
  mask_.GoodsReceiptCall = true;
  NewArticle();
  Click(mask_.SpÜbernahme);
  EXPECT_EQ(receipt_.calls, std::vector<std::string>{"receive NET 00001"});
  EXPECT_FALSE(mask_.Visible());
}

// Ways out -----------------------------------------------------------------------------------------------------------

constexpr std::string_view kLeaveQuestion = "Artikel wurde geändert. Ohne speichern beenden?"_t;

TEST_F(ArticleScreen, AnUnchangedMaskClosesWithoutAQuestion) {
  mask_.Show();
  Click(mask_.Command7);
  EXPECT_FALSE(mask_.Visible());
  EXPECT_EQ(platform_.BoxCount(), 0);
}

TEST_F(ArticleScreen, EndAsksAndCancelStays) {
  NewArticle();
  platform_.Push(Answer::Cancel);
  Click(mask_.Command7);
  EXPECT_EQ(Box(), kLeaveQuestion);
  EXPECT_EQ(Title(), "Ohne speichern beenden");
  EXPECT_TRUE(mask_.Visible());
  EXPECT_TRUE(mask_.Changed);
}

TEST_F(ArticleScreen, EndWithYesDiscards) {
  NewArticle();
  platform_.Push(Answer::Yes);
  Click(mask_.Command7);
  EXPECT_FALSE(mask_.Visible());
  EXPECT_EQ(Articles(), "(missing)");
}

TEST_F(ArticleScreen, EndWithNoSaves) {
  NewArticle();
  platform_.Push(Answer::No);
  Click(mask_.Command7);
  EXPECT_FALSE(mask_.Visible());
  EXPECT_EQ(RecordField(Articles(), kArticleNumber), "NET00001");
}

TEST_F(ArticleScreen, EndWithNoStaysWhereTheSaveIsRefused) {
  NewArticle("1");
  platform_.Push(Answer::No);
  Click(mask_.Command7);
  EXPECT_TRUE(mask_.Visible());
  EXPECT_EQ(desktop_.Focus(), &mask_.ArtikelNr);
  EXPECT_EQ(platform_.BoxCount(), 2);
}

TEST_F(ArticleScreen, TheWindowButtonAsksAsEndDoes) {
  NewArticle();
  platform_.Push(Answer::Yes);
  mask_.Close();
  EXPECT_EQ(Box(), kLeaveQuestion);
  EXPECT_FALSE(mask_.Visible());
}

TEST_F(ArticleScreen, BackToTheSearchAsksAndShowsIt) {
  NewArticle();
  platform_.Push(Answer::Cancel);
  Click(mask_.Command8);
  EXPECT_EQ(Box(), kLeaveQuestion);
  EXPECT_FALSE(search_.Visible());
  platform_.Push(Answer::Yes);
  Click(mask_.Command8);
  EXPECT_FALSE(mask_.Visible());
  EXPECT_TRUE(search_.Visible());
}

TEST_F(ArticleScreen, AnEmptyMaskIsOfferedAfterAQuestion) {
  PutArticles(ArticleRow({.number = "NET00001", .stockKept = true}));
  EditArticle(1);
  Set(mask_.Bezeichnung, "anders");
  platform_.Push(Answer::Cancel);
  Click(mask_.Neuanlegen);
  EXPECT_EQ(Box(), "Artikel wurde geändert. Ohne speichern die Felder löschen?"_t);
  EXPECT_EQ(Title(), "Ohne speichern beenden");
  EXPECT_EQ(mask_.Bezeichnung.Text(), "anders");
  platform_.Push(Answer::Yes);
  Click(mask_.Neuanlegen);
  EXPECT_EQ(mask_.Bezeichnung.Text(), "");
  EXPECT_EQ(mask_.Kat.Text(), "");
  EXPECT_TRUE(mask_.Kat.Enabled());
  EXPECT_FALSE(mask_.ArticleEditMode);
  EXPECT_FALSE(mask_.Changed);
  EXPECT_FALSE(mask_.CheckLagerartikel.Checked());
  EXPECT_EQ(RecordField(Articles(), kArticleName), "Kabel");
}

TEST_F(ArticleScreen, AnEmptyMaskWaitsForASaveThatSucceeds) {
  NewArticle("1");
  platform_.Push(Answer::No);
  Click(mask_.Neuanlegen);
  EXPECT_EQ(mask_.Bezeichnung.Text(), "Kabel");
  Set(mask_.ArtikelNr, "00001");
  platform_.Push(Answer::No);
  Click(mask_.Neuanlegen);
  EXPECT_EQ(mask_.Bezeichnung.Text(), "");
  EXPECT_EQ(RecordField(Articles(), kArticleNumber), "NET00001");
}

TEST_F(ArticleScreen, ACopyKeepsAllButTheNumber) {
  PutArticles(ArticleRow({.number = "NET00001", .stockKept = true, .netPrice = "1,00", .ean = "4711"}));
  EditArticle(1);
  Set(mask_.Bezeichnung, "Kabel 2");
  platform_.Push(Answer::Cancel);
  Click(mask_.Neu_Datenübernahme);
  EXPECT_EQ(Box(), "Dieser Artikel wurde geändert. Ohne speichern die Daten übernehmen?"_t);
  EXPECT_EQ(Title(), "Ohne speichern beenden");
  EXPECT_FALSE(mask_.Kat.Enabled());
  platform_.Push(Answer::Yes);
  Click(mask_.Neu_Datenübernahme);
  EXPECT_EQ(mask_.Kat.Text(), "");
  EXPECT_EQ(mask_.ArtikelNr.Text(), "");
  EXPECT_TRUE(mask_.Kat.Enabled());
  EXPECT_EQ(mask_.Bezeichnung.Text(), "Kabel 2");
  EXPECT_EQ(mask_.VK.Text(), "1,00");
  EXPECT_TRUE(mask_.CheckLagerartikel.Checked());
  Set(mask_.Kat, "NET");
  Set(mask_.ArtikelNr, "00002");
  Click(mask_.Command5);
  EXPECT_EQ(RecordField(FindArticleRow(Articles(), "NET00001"), kArticleName), "Kabel");
  EXPECT_EQ(RecordField(FindArticleRow(Articles(), "NET00002"), kArticleName), "Kabel 2");
  EXPECT_EQ(RecordField(FindArticleRow(Articles(), "NET00002"), kArticleEntryDate), "15.11.2026");
}

TEST_F(ArticleScreen, ACopyGoesOnEvenWhereTheSaveIsRefused) {
  NewArticle("1");
  platform_.Push(Answer::No);
  Click(mask_.Neu_Datenübernahme);
  EXPECT_EQ(Articles(), "(missing)");
  EXPECT_EQ(mask_.ArtikelNr.Text(), "");
  EXPECT_EQ(mask_.Bezeichnung.Text(), "Kabel");
  EXPECT_FALSE(mask_.Changed);
}

TEST_F(ArticleScreen, EndReturnsToTheGoodsReceiptWhereNothingWasSaved) {
  mask_.GoodsReceiptCall = true;
  NewArticle();
  platform_.Push(Answer::Yes);
  Click(mask_.Command7);
  EXPECT_EQ(receipt_.calls, std::vector<std::string>{"show"});
  EXPECT_FALSE(mask_.Visible());
  EXPECT_FALSE(mask_.GoodsReceiptCall);
}

TEST_F(ArticleScreen, EndOffersTheReceiptOfAnArticleJustSaved) {
  mask_.GoodsReceiptCall = true;
  NewArticle();
  platform_.Push(Answer::No);
  platform_.Push(Answer::Yes);
  Click(mask_.Command7);
  EXPECT_EQ(Box(), "Wollen Sie nun direkt den Wareneingang durchführen?"_t);
  EXPECT_EQ(Title(), "Wareneingang direkt durchführen?"_t);
  EXPECT_EQ(receipt_.calls, std::vector<std::string>{"receive NET 00001"});
  EXPECT_FALSE(mask_.Visible());
}

TEST_F(ArticleScreen, EndWithoutTheReceiptJustCloses) {
  mask_.GoodsReceiptCall = true;
  NewArticle();
  platform_.Push(Answer::No);
  platform_.Push(Answer::No);
  Click(mask_.Command7);
  EXPECT_TRUE(receipt_.calls.empty());
  EXPECT_FALSE(mask_.Visible());
}

TEST_F(ArticleScreen, AMaskThatIsOpenIsOfferedEmptyAfterTheQuestion) {
  NewArticle();
  platform_.Push(Answer::Cancel);
  mask_.ShowNew();
  EXPECT_EQ(Box(), "Artikel wurde geändert. Ohne speichern die Felder löschen?"_t);
  EXPECT_EQ(mask_.Bezeichnung.Text(), "Kabel");
}

TEST_F(ArticleScreen, ClosingEndsTheEditingOfARecord) {
  PutArticles(ArticleRow({.number = "NET00001"}));
  EditArticle(1);
  Click(mask_.Command7);
  NewArticle("00002");
  Click(mask_.Command5);
  EXPECT_EQ(Articles().substr(0, 10), "'NET00001'");
  EXPECT_NE(FindArticleRow(Articles(), "NET00002"), "");
}

// Whichever call of a save fails, the old table stands, nothing is claimed and the article stays changed.
TEST_F(ArticleScreen, ASaveThatCannotBeWrittenClaimsNothing) {
  const std::string before = ArticleRow({.number = "ABC00001"});
  PutArticles(before);
  FaultyDisk disk;
  FileSystemObject files(disk);
  RecordStore store(files, settings_);
  Context context{desktop_, platform_, files, store, settings_};
  Artikelanlegen mask(context, centre_, nullptr);
  desktop_.Add(mask);
  mask.Show();
  mask.Kat.SetText("NET");
  mask.ArtikelNr.SetText("00001");
  disk.Arm({FaultKind::ForGood});
  EXPECT_FALSE(mask.Save());
  disk.Arm(Fault());
  EXPECT_EQ(Articles(), before);
  EXPECT_EQ(Status(mask), "");
  EXPECT_TRUE(mask.Changed);
  EXPECT_TRUE(mask.Kat.Enabled());
  EXPECT_TRUE(mask.Save());
  EXPECT_NE(FindArticleRow(Articles(), "NET00001"), "");
}

}  // namespace
}  // namespace kontorwerk
