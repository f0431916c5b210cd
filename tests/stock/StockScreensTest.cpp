// What scripts cannot see of the stock screens: sounds, the document's rows, a failing disk, the end of the program
// inside a wait, and how often a list is filled.
#include <gtest/gtest.h>

#include <string>

#include "store/RecordLine.h"
#include "tests/stock/StockDesk.h"

namespace kontorwerk {
namespace {

using testing_support::ArticleRow;
using testing_support::FaultKind;
using testing_support::StockDesk;

struct Item {
  std::string number = "#01001";
  std::string quantity = "10";
  std::string flag = "0";
  std::string serial = {};
  std::string imei = {};
  std::string secondLine = {};
  std::string netPrice = "10,00";
  std::string secondRate = "0";
};

std::string Row(const Item& item) {
  StockRecord record;
  record[kStockLagerNr] = item.number;
  record[kStockArtNr] = "NET00001";
  record[kStockBezeichnung] = "Kabel";
  record[kStockLagerbestand] = item.quantity;
  record[kStockEANNr] = "4000001";
  record[kStockSerNr] = item.serial;
  record[kStockIMEINr] = item.imei;
  record[kStockB1] = "Netzwerkkabel";
  record[kStockB3] = item.secondLine;
  record[kStockVK] = item.netPrice;
  record[kStockMWST2] = item.secondRate;
  record[kStockEinzel] = item.flag;
  record[kStockStatus] = "Wareneingang am 01.01.2026";
  return record.Row() + "\r\n";
}

const std::string& Master() {
  static const std::string kMaster =
      ArticleRow({.number = "NET00001", .stockKept = true, .purchasePrice = "3,40", .ean = "4000001"}) +
      ArticleRow({.number = "DIE00001", .ean = "4000002"});
  return kMaster;
}

// Sounds --------------------------------------------------------------------------------------------------------------

class StockScan : public StockDesk {
 protected:
  StockScan() {
    PutArticles(Master());
    PutStock(Row({}));
    screens_.OpenForEditing();
  }
};

TEST_F(StockScan, AHitConfirmsWithItsSound) {
  ScanEan("4000001");
  EXPECT_TRUE(Sounded("OK.wav"));
  EXPECT_FALSE(Sounded("Fehler.wav"));
  EXPECT_EQ(platform_.BoxCount(), 0);
  EXPECT_TRUE(Search().StockRowSelected);
  EXPECT_FALSE(Search().MasterRowSelected);
}

TEST_F(StockScan, AnArticleThatIsNotStockKeptSoundsTheErrorBeforeTheBox) {
  ScanEan("4000002");
  EXPECT_TRUE(Sounded("Fehler.wav"));
  EXPECT_FALSE(Sounded("OK.wav"));
  EXPECT_LT(out_.str().find("Fehler.wav"), out_.str().find("ist kein LagerArtikel!"));
}

TEST_F(StockScan, AnUnknownCodeSoundsTheError) {
  ScanEan("999");
  EXPECT_TRUE(Sounded("Fehler.wav"));
  EXPECT_EQ(platform_.LastBoxText(), "Keinen Artikel bzw. Lagerartikel mit dieser EAN-Nr. gefunden!");
  EXPECT_FALSE(Search().StockRowSelected);
  EXPECT_FALSE(Search().MasterRowSelected);
}

TEST_F(StockScan, ASearchByTermsIsSilent) {
  FindAll();
  EXPECT_EQ(out_.str().find("\"sound\""), std::string::npos);
}

// Documents -----------------------------------------------------------------------------------------------------------

class StockIntoDocument : public StockDesk {
 protected:
  void TakeOver(const Item& item) {
    PutArticles(Master());
    PutStock(Row(item));
    document_.current = 2;
    screens_.OpenStockSearchForDocument();
    FindAll();
    desktop_.MoveFocus(Search().Suchergebnis2);
    Search().Suchergebnis2.UserClick(1);
    Click(Search().Command8);
  }
};

TEST_F(StockIntoDocument, AMultipleItemWaitsForItsQuantity) {
  TakeOver({.secondLine = "5 m"});
  EXPECT_EQ(document_.Line(2), "#01001|NET00001||Netzwerkkabel|10,00");
  EXPECT_EQ(document_.Line(3), "|||5 m|");
  EXPECT_EQ(document_.focus, "S 2");
  EXPECT_FALSE(Search().Loaded());
  EXPECT_FALSE(Search().DocumentCall);
  EXPECT_EQ(Stock(), Row({.secondLine = "5 m"}));
}

TEST_F(StockIntoDocument, ASingleItemBringsItsNumbersAndTheQuantityOne) {
  TakeOver({.flag = "Wahr", .serial = "SN-1", .imei = "35", .secondLine = "5 m"});
  EXPECT_EQ(document_.Line(2), "#01001|NET00001|1|Netzwerkkabel|10,00");
  EXPECT_EQ(document_.Line(3), "|||5 m|");
  EXPECT_EQ(document_.Line(4), "#01001|NET00001||SerienNr. SN-1|");
  EXPECT_EQ(document_.Line(5), "#01001|NET00001||IMEINr 35|");
  EXPECT_EQ(document_.focus, "free 2");
}

TEST_F(StockIntoDocument, AGrossDocumentTakesTheNetPriceWithTaxAtTheTickedRate) {
  document_.net = false;
  TakeOver({.secondRate = "1"});
  EXPECT_EQ(document_.Line(2), "#01001|NET00001||Netzwerkkabel|10,70|2");
}

TEST_F(StockIntoDocument, WithoutAChosenStockItemTheDocumentStaysUntouched) {
  PutArticles(Master());
  PutStock(Row({}));
  screens_.OpenStockSearchForDocument();
  Click(Search().Command8);
  EXPECT_EQ(platform_.LastBoxText(), "Bitte erst einen Lagerartikel auswählen!"_t);
  FindAll();
  desktop_.MoveFocus(Search().Suchergebnis);
  Search().Suchergebnis.UserClick(1);
  Click(Search().Command8);
  EXPECT_EQ(platform_.BoxCount(), 2);
  EXPECT_TRUE(document_.rows.empty());
  EXPECT_TRUE(Search().Visible());
}

TEST_F(StockIntoDocument, TheCallEndsWhenTheSearchIsCancelled) {
  screens_.OpenStockSearchForDocument();
  EXPECT_TRUE(Search().DocumentCall);
  Click(Search().Command7);
  EXPECT_FALSE(Search().DocumentCall);
}

// Modes ---------------------------------------------------------------------------------------------------------------

TEST_F(StockDesk, TheTwoModesOfTheSearchExcludeEachOther) {
  screens_.OpenForGoodsReceipt();
  EXPECT_TRUE(Search().GoodsReceiptMode);
  EXPECT_FALSE(Search().StockEditMode);
  screens_.OpenForEditing();
  EXPECT_FALSE(Search().GoodsReceiptMode);
  EXPECT_TRUE(Search().StockEditMode);
  Search().Unload();
  EXPECT_TRUE(Search().StockEditMode);  // the way back from the edit screen opens it as it was
}

TEST_F(StockDesk, ASaveAfterTheSearchHasClosedStillWrites) {
  PutArticles(Master());
  PutStock(Row({}));
  screens_.OpenForEditing();
  FindAll();
  Search().Suchergebnis2.UserClick(1);
  Click(Search().Command8);
  Click(Search().Command7);
  Type(Editor().LagerOrt, "Keller");
  Click(Editor().Command5);
  EXPECT_EQ(RecordField(FirstRow(Stock()), kStockLagerOrt), "Keller");
}

// Failures ------------------------------------------------------------------------------------------------------------

class StockFaults : public StockDesk {
 protected:
  StockFaults() {
    PutArticles(Master());
    PutStock(Row({}));
    screens_.OpenForEditing();
    FindAll();
    Search().Suchergebnis2.UserClick(1);
    Click(Search().Command8);
    Type(Editor().LagerOrt, "Keller");
  }
};

TEST_F(StockFaults, AFailedSaveKeepsTheItemUnsaved) {
  disk_.Arm({.kind = FaultKind::ForGood, .call = 0});
  Click(Editor().Command5);
  EXPECT_TRUE(Editor().Changed);
  EXPECT_EQ(Stock(), Row({}));
  EXPECT_EQ(Editor().StatusBar1.Panel(4), "");
  disk_.Arm({});
  Click(Editor().Command5);
  EXPECT_FALSE(Editor().Changed);
  EXPECT_EQ(RecordField(FirstRow(Stock()), kStockLagerOrt), "Keller");
}

TEST_F(StockFaults, EverySingleFaultLeavesTheTableOldOrNew) {
  disk_.Arm({});
  Click(Editor().Command5);
  const std::string saved = Stock();
  const std::size_t calls = disk_.Calls().size();
  ASSERT_GT(calls, 3U);
  for (std::size_t call = 0; call < calls; ++call) {
    disk_.Arm({});
    PutStock(Row({}));
    disk_.Arm({.kind = FaultKind::Once, .call = call});
    Click(Editor().Command5);
    EXPECT_TRUE(Stock() == Row({}) || Stock() == saved) << "call " << call << ": " << Stock();
  }
}

TEST_F(StockFaults, AFailedAppendKeepsTheNumberOpen) {
  Editor().Changed = false;
  screens_.OpenForGoodsReceipt();
  StockRecord record;
  record[kStockArtNr] = "NET00001";
  record[kStockEinzel] = "1";
  record[kStockLagerbestand] = "1";
  Editor().OpenForReceipt(Search(), record, LGArtikelbearbeiten::Position::New);
  disk_.Arm({.kind = FaultKind::ForGood, .call = 0});
  Click(Editor().Command5);
  EXPECT_EQ(Editor().LagerNr.Text(), "");
  EXPECT_TRUE(Editor().ForceNewPosition);
  EXPECT_TRUE(Editor().Changed);
  EXPECT_EQ(Stock(), Row({}));
  disk_.Arm({});
  Click(Editor().Command5);
  EXPECT_EQ(Editor().LagerNr.Text(), "#01002");
  EXPECT_FALSE(Editor().ForceNewPosition);
}

TEST_F(StockFaults, AFailedDeletionKeepsItsRow) {
  Editor().Unload();
  disk_.Arm({.kind = FaultKind::ForGood, .call = 0});
  platform_.Push(Answer::Yes);
  Click(Search().LGArtikel_löschen);
  EXPECT_EQ(Stock(), Row({}));
  EXPECT_EQ(Search().Suchergebnis2.RowCount(), 1);
  EXPECT_EQ(centre_.counted, 0);
}

// Waiting -------------------------------------------------------------------------------------------------------------

TEST_F(StockDesk, TheEndOfTheProgramEndsAReceiptWithoutAStep) {
  PutArticles(Master());
  screens_.OpenForGoodsReceipt();
  FindAll();
  Search().Suchergebnis.UserClick(1);
  platform_.onWaiting = [this] {
    QuantityDialog().Stück.SetText("4");
    platform_.Quit();
    return true;
  };
  Click(Search().Command8);
  EXPECT_FALSE(Editor().Loaded());
  EXPECT_EQ(Stock(), "(missing)");
}

TEST_F(StockDesk, AnotherWorkstationsQuantityCountsUntilTheDialogIsConfirmed) {
  PutArticles(Master());
  PutStock(Row({.quantity = "10"}));
  screens_.OpenForGoodsReceipt();
  FindAll();
  Search().Suchergebnis2.UserClick(1);
  platform_.onWaiting = [this] {
    PutStock(Row({.quantity = "7"}));
    Type(QuantityDialog().Stück, "4");
    Click(QuantityDialog().OKButton);
    return true;
  };
  Click(Search().Command8);
  EXPECT_EQ(Editor().Lagerbestand.Text(), "11");
}

// Long lists ----------------------------------------------------------------------------------------------------------

class RowNotices final : public DesktopObserver {
 public:
  void OnScreen(Screen&, ScreenEvent) override {}
  void OnArray(Screen&, std::string_view, int) override {}
  void OnControl(const Control&, Aspect aspect, int) override {
    if (aspect == Aspect::Rows) ++count;
  }
  int count = 0;
};

TEST_F(StockDesk, ALongListIsFilledAtOnceAndNeverBySelecting) {
  std::string articles;
  std::string stock;
  for (int i = 0; i < 5000; ++i) {
    const std::string number = PadZeros(std::to_string(i), 5);
    articles += ArticleRow({.number = "NET" + number, .stockKept = true});
    stock += Row({.number = "#" + number});
  }
  PutArticles(articles);
  PutStock(stock);
  screens_.OpenForEditing();
  RowNotices notices;
  desktop_.AddObserver(notices);
  FindAll();
  EXPECT_EQ(Search().Suchergebnis.RowCount(), 5000);
  EXPECT_EQ(Search().Suchergebnis2.RowCount(), 5000);
  EXPECT_LE(notices.count, 4);  // two lists, each emptied and filled
  notices.count = 0;
  Search().Suchergebnis2.UserClick(2500);
  desktop_.PressKey(Search().Suchergebnis2, *ParseKey("PageDown"));
  EXPECT_EQ(notices.count, 0);
  desktop_.RemoveObserver(notices);
}

}  // namespace
}  // namespace kontorwerk
