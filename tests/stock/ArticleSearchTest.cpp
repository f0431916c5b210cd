// The screen Artikelsuchen: the search, the chosen article, and what is done with it.
#include <gtest/gtest.h>

#include "store/RecordLine.h"
#include "tests/stock/ArticleDesk.h"

namespace kontorwerk {
namespace {

using namespace testing_support;

class ArticleSearch : public ArticleDesk {
 protected:
  ArticleSearch() {
    PutArticles(ArticleRow({.number = "NET00001", .name = "Kabel", .purchasePrice = "5,00", .netPrice = "19,90"}) +
                ArticleRow({.number = "ABC00002", .name = "Dose", .description = std::string("für Kabel"_t)}) + "\r\n" +
                ArticleRow({.number = "NET00003", .name = std::string("Größe"_t)}));
    search_.Show();
  }

  std::string Rows() {
    std::string rows;
    for (const ListRow& row : search_.Suchergebnis.Rows()) {
      for (const std::string& cell : row.cells) rows += cell + "|";
      rows += "\n";
    }
    return rows;
  }
};

TEST_F(ArticleSearch, OpensOnTheSearchText) {
  EXPECT_EQ(search_.Caption(), "Artikel suchen / bearbeiten");
  EXPECT_EQ(search_.FocusedControl(), &search_.Bezeichnung);
  EXPECT_EQ(search_.BezeichnungLabel.Caption(), "Suchtext");
  EXPECT_EQ(search_.Command5.Caption(), "Suchen");
  ASSERT_EQ(search_.Suchergebnis.Columns().size(), 4U);
  EXPECT_EQ(search_.Suchergebnis.Columns()[0].header, "KAT | ArtikelNr");
  EXPECT_EQ(search_.Suchergebnis.Columns()[3].header, "VK (Netto)");
}

TEST_F(ArticleSearch, AllFieldsEmptyListEveryArticle) {
  Click(search_.Command5);
  EXPECT_EQ(Rows(), "NET00001|Kabel||19,90|\nABC00002|Dose|||\nNET00003|Größe|||\n"_t);
  EXPECT_EQ(Status(search_), "Suche beendet. 3");
  EXPECT_NE(out_.str().find("suchen..."), std::string::npos);
  EXPECT_EQ(search_.Command5.Caption(), "Neue Suche");
}

TEST_F(ArticleSearch, ANumberInLowerCaseFindsItsArticle) {
  Set(search_.Kat, "net");
  Set(search_.ArtikelNr, "03");
  Set(search_.Bezeichnung, "steht nirgends");
  Click(search_.Command5);
  EXPECT_EQ(Rows(), "NET00003|Größe|||\n"_t);
}

TEST_F(ArticleSearch, FreeTextLooksEverywhereOnEnter) {
  Set(search_.Bezeichnung, "KABEL");
  desktop_.PressKey(search_.Bezeichnung, Key{.code = KeyCode::Enter});
  EXPECT_EQ(Rows(), "NET00001|Kabel||19,90|\nABC00002|Dose|||\n");
  EXPECT_EQ(Status(search_), "Suche beendet. 2");
  EXPECT_EQ(search_.Bezeichnung.Text(), "KABEL");
}

TEST_F(ArticleSearch, NothingFoundIsAnEmptyList) {
  Set(search_.Bezeichnung, "nirgends");
  Click(search_.Command5);
  EXPECT_EQ(search_.Suchergebnis.RowCount(), 0);
  EXPECT_EQ(Status(search_), "Suche beendet. 0");
}

TEST_F(ArticleSearch, AMissingTableIsAnEmptyList) {
  std::filesystem::remove(folder_.Path() / "Artikeldb.dbf");
  Click(search_.Command5);
  EXPECT_EQ(Status(search_), "Suche beendet. 0");
  EXPECT_EQ(platform_.BoxCount(), 0);
}

TEST_F(ArticleSearch, NewSearchClearsTheMask) {
  ChooseArticle(1);
  Click(search_.Command5);
  EXPECT_EQ(search_.Command5.Caption(), "Suchen");
  EXPECT_EQ(search_.BezeichnungLabel.Caption(), "Suchtext");
  for (const TextBox* box : {&search_.Kat, &search_.ArtikelNr, &search_.Bezeichnung, &search_.VK, &search_.EK1})
    EXPECT_EQ(box->Text(), "") << box->Name();
  EXPECT_EQ(search_.Suchergebnis.RowCount(), 0);
  EXPECT_FALSE(search_.RowChosen);
}

TEST_F(ArticleSearch, ATermTypedOverAShownRecordStartsANewSearch) {
  ChooseArticle(1);
  Set(search_.Bezeichnung, "dose");
  EXPECT_EQ(search_.Kat.Text(), "");
  EXPECT_EQ(search_.VK.Text(), "");
  EXPECT_FALSE(search_.RowChosen);
  Click(search_.Command5);
  EXPECT_EQ(Rows(), "ABC00002|Dose|||\n");
}

TEST_F(ArticleSearch, AChosenRowShowsItsRecord) {
  ChooseArticle(1);
  EXPECT_TRUE(search_.RowChosen);
  EXPECT_EQ(search_.Kat.Text(), "NET");
  EXPECT_EQ(search_.ArtikelNr.Text(), "00001");
  EXPECT_EQ(search_.Bezeichnung.Text(), "Kabel");
  EXPECT_EQ(search_.BezeichnungLabel.Caption(), "Bezeichnung");
  EXPECT_EQ(Status(search_), "Artikel angelegt am: 12.05.2006");
  EXPECT_FALSE(search_.VK.Usable());
}

TEST_F(ArticleSearch, ArrowKeysShowTheRowTheyReach) {
  ChooseArticle(1);
  desktop_.PressKey(search_.Suchergebnis, Key{.code = KeyCode::Down});
  EXPECT_EQ(search_.Bezeichnung.Text(), "Dose");
}

TEST_F(ArticleSearch, PurchasePricesShowOnlyWhenAskedFor) {
  ChooseArticle(1);
  EXPECT_FALSE(search_.EK1.Visible());
  Click(search_.Command9);
  EXPECT_TRUE(search_.EK1.Visible());
  EXPECT_EQ(search_.EK1.Text(), "5,00");
  SelectRow(2);
  EXPECT_FALSE(search_.EK1.Visible());
}

TEST_F(ArticleSearch, ARowWhoseRecordIsGoneShowsNothing) {
  ChooseArticle(1);
  PutArticles("");
  SelectRow(2);
  EXPECT_FALSE(search_.RowChosen);
  EXPECT_EQ(search_.VK.Text(), "");
}

TEST_F(ArticleSearch, AHeaderSortsAndTurnsTheOrder) {
  Click(search_.Command5);
  search_.Suchergebnis.UserSort(1);
  EXPECT_EQ(search_.Suchergebnis.Cell(1, 1), "ABC00002");
  search_.Suchergebnis.UserSort(1);
  EXPECT_EQ(search_.Suchergebnis.Cell(1, 1), "NET00003");
}

TEST_F(ArticleSearch, TheProposalKeepsTheCategory) {
  Set(search_.Kat, "net");
  Click(search_.Command4);
  EXPECT_EQ(search_.Kat.Text(), "NET");
  EXPECT_EQ(search_.ArtikelNr.Text(), "00004");
  Click(search_.Command5);
  EXPECT_EQ(search_.Suchergebnis.RowCount(), 0);
}

TEST_F(ArticleSearch, TheProposalNeedsACategory) {
  Click(search_.Command4);
  EXPECT_EQ(Box(), "Bitte Kategorie eintragen (max 3 Stellen)");
  EXPECT_EQ(desktop_.Focus(), &search_.Kat);
}

TEST_F(ArticleSearch, EditOpensTheRecordWithItsNumberLocked) {
  ChooseArticle(1);
  Click(search_.Command6);
  EXPECT_TRUE(mask_.Visible());
  EXPECT_TRUE(mask_.ArticleEditMode);
  EXPECT_FALSE(mask_.Changed);
  EXPECT_EQ(mask_.Kat.Text(), "NET");
  EXPECT_EQ(mask_.EK1.Text(), "5,00");  // hidden in the search, handed over all the same
  EXPECT_FALSE(mask_.Kat.Enabled());
  EXPECT_FALSE(mask_.ArtikelNr.Enabled());
  EXPECT_FALSE(mask_.Command4.Enabled());
  EXPECT_TRUE(search_.Visible());
}

TEST_F(ArticleSearch, WithoutAChosenRowThereIsNothingToWorkOn) {
  Click(search_.Command6);
  Click(search_.Datenübernahme);
  Click(search_.löschen);
  EXPECT_FALSE(mask_.Visible());
  EXPECT_EQ(platform_.BoxCount(), 0);
}

TEST_F(ArticleSearch, ACopyOpensWithoutTheNumber) {
  ChooseArticle(1);
  Click(search_.Datenübernahme);
  EXPECT_FALSE(mask_.ArticleEditMode);
  EXPECT_EQ(mask_.Kat.Text(), "");
  EXPECT_EQ(mask_.ArtikelNr.Text(), "");
  EXPECT_EQ(mask_.Bezeichnung.Text(), "Kabel");
  EXPECT_TRUE(mask_.Kat.Enabled());
  EXPECT_FALSE(mask_.Changed);
}

TEST_F(ArticleSearch, AnEmptyMaskOpensForANewArticle) {
  for (MenuEntry* entry : {&search_.Neuanlegen, &search_.LeereMaske}) {
    Click(*entry);
    EXPECT_TRUE(mask_.Visible()) << entry->Name();
    EXPECT_EQ(mask_.Bezeichnung.Text(), "");
    EXPECT_FALSE(mask_.ArticleEditMode);
    mask_.Unload();
  }
}

TEST_F(ArticleSearch, ADoubleClickEdits) {
  Click(search_.Command5);
  search_.Suchergebnis.UserDoubleClick(2);
  EXPECT_TRUE(mask_.Visible());
  EXPECT_EQ(mask_.Bezeichnung.Text(), "Dose");
}

TEST_F(ArticleSearch, DeletingAsksAndRemovesTheLineAlone) {
  const std::string before = Articles();
  PutStock("'#01001','ABC00002','Dose\r\n");
  ChooseArticle(2);
  platform_.Push(Answer::No);
  Click(search_.löschen);
  EXPECT_EQ(Box(), "Artikel ABC00002 wirklich löschen?"_t);
  EXPECT_EQ(Title(), "Artikel wirklich löschen?"_t);
  EXPECT_EQ(Articles(), before);
  platform_.Push(Answer::Yes);
  Click(search_.löschen);
  EXPECT_EQ(Articles(),
            ArticleRow({.number = "NET00001", .name = "Kabel", .purchasePrice = "5,00", .netPrice = "19,90"}) + "\r\n" +
                ArticleRow({.number = "NET00003", .name = std::string("Größe"_t)}) + "\r\n");
  EXPECT_EQ(Stock(), "'#01001','ABC00002','Dose\r\n");
  EXPECT_EQ(Status(search_), "Artikel ABC00002 ordnungsgemäß gelöscht!"_t);
  EXPECT_FALSE(search_.RowChosen);
  EXPECT_EQ(search_.Kat.Text(), "");
  EXPECT_EQ(search_.Suchergebnis.RowCount(), 2);
}

TEST_F(ArticleSearch, TakingOverWithoutAChosenRowShowsTheBoxAndTouchesNothing) {
  search_.DocumentCall = true;
  document_.rows[0] = {"", "alt", "1", "alt", "1,00", false};
  Click(search_.Command5);
  Click(search_.Command8);
  EXPECT_EQ(Box(), "Bitte erst einen Artikel auswählen!"_t);
  EXPECT_EQ(document_.Line(0), "|alt|1|alt|1,00");
  EXPECT_TRUE(search_.Visible());
}

TEST_F(ArticleSearch, TakingOverFillsTheRowAndCloses) {
  search_.DocumentCall = true;
  document_.net = false;
  ChooseArticle(1);
  Click(search_.Command8);
  EXPECT_EQ(document_.Line(0), "|NET00001|||23,68");
  EXPECT_EQ(document_.focus, "S 0");
  EXPECT_FALSE(search_.Visible());
  EXPECT_FALSE(search_.DocumentCall);
}

TEST_F(ArticleSearch, ADoubleClickTakesOverWhereADocumentWaits) {
  search_.DocumentCall = true;
  Click(search_.Command5);
  search_.Suchergebnis.UserDoubleClick(1);
  EXPECT_EQ(document_.Line(0), "|NET00001|||19,90");
  EXPECT_FALSE(mask_.Visible());
}

TEST_F(ArticleSearch, AStockArticleMustBeSoldFromStock) {
  PutArticles(ArticleRow({.number = "NET00001", .stockKept = true, .netPrice = "19,90"}));
  search_.DocumentCall = true;
  ChooseArticle(1);
  Click(search_.Command8);
  EXPECT_EQ(Box(), "Dieser Artikel ist ein Lagerartikel. Bitte suchen Sie\r\ndie entsprechende Position im Lager!");
  EXPECT_TRUE(search_.Visible());
  document_.quotation = true;
  Click(search_.Command8);
  EXPECT_EQ(document_.Line(0), "|NET00001|||19,90");
}

TEST_F(ArticleSearch, TheCallOfADocumentIsHandedOnToTheArticleScreen) {
  search_.DocumentCall = true;
  Click(search_.LeereMaske);
  EXPECT_TRUE(mask_.DocumentCall);
}

TEST_F(ArticleSearch, CancelClosesAndForgetsTheDocument) {
  search_.DocumentCall = true;
  Click(search_.Command7);
  EXPECT_FALSE(search_.Visible());
  EXPECT_FALSE(search_.DocumentCall);
}

TEST_F(ArticleSearch, WhatIsNotBuiltCannotBeChosen) {
  for (const MenuEntry* entry : {&search_.aktSuchergebnis, &search_.kplArtikelstamm, &search_.Artikeldruck})
    EXPECT_FALSE(entry->Enabled()) << entry->Name();
  mask_.Show();
  EXPECT_FALSE(mask_.Artikeldruck.Enabled());
  EXPECT_FALSE(mask_.Command9.Enabled());
}

}  // namespace
}  // namespace kontorwerk
