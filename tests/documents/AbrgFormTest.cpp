// What a script cannot show of the document screen: what other subsystems put into it, disks and word processors that
// fail, and thousands of rows.
#include "documents/ABRGForm.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

#include "documents/DocumentScreens.h"
#include "documents/StockReduction.h"
#include "platform/headless/OperatorPlatform.h"
#include "store/RecordLine.h"
#include "tests/documents/PrintRecorder.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk {
namespace {

using testing_support::FaultKind;

class QuietCentre final : public ControlCentre {
 public:
  void ReadConfig() override { ++configReads; }
  void CountStockItems() override { ++stockCounts; }
  void OpenDocumentReminder() override { ++documentCounts; }
  void RefreshAppointments() override {}
  int configReads = 0;
  int stockCounts = 0;
  int documentCounts = 0;
};

std::string StockLine(std::string_view number, std::string_view quantity, std::string_view single = "0") {
  std::vector<std::string> fields(35);
  fields[0] = number;
  fields[1] = "LAG00003";
  fields[3] = quantity;
  fields[34] = single;
  return RecordLine(fields);
}

class AbrgForm : public ::testing::Test {
 protected:
  AbrgForm() {
    settings_.DBPath = settings_.RGPath = settings_.ABPath = folder_.DataPath();
    settings_.MWSTSatz = "0,19";
    settings_.MWSTSatz2 = "0,07";
    platform_.SetNow({{2026, 11, 15}, {9, 30, 0}});
    for (const char* name : {"Rechnungendb.dbf", "Angebotedb.dbf", "Lieferscheinedb.dbf", "Gutschriftendb.dbf"})
      folder_.Put(name, "'short','0100/2026','02.01.2026 ','','x\r\n");
    screen_.Show();
    screen_.KDNr.SetText("00100");
    screen_.KDName.SetText("Meier");
    screen_.Ansprechpartner.Clear();
  }

  void FillRow(int row, std::string_view quantity, std::string_view text, std::string_view price) {
    screen_.Rows.S[row].SetText(quantity);
    screen_.Rows.B[row].SetText(text);
    screen_.Rows.E[row].SetText(price);
  }
  // Presses the command and answers the choice of what is printed by its entry, counted from 0.
  void SaveAndPrint(int entry = 1) {
    platform_.onWaiting = [this, entry] {
      screens_.Choice().Combo.SetListIndex(entry);
      platform_.PushAnswer({.kind = QueuedAnswer::Kind::Printer, .printer = {"Büro", 1}});
      screens_.Choice().OKButton.UserClick();
      return true;
    };
    screen_.Command1.UserClick();
  }
  // The same for a kind that needs no choice.
  void SaveAndPrintAgain() {
    platform_.PushAnswer({.kind = QueuedAnswer::Kind::Printer, .printer = {"Büro", 1}});
    screen_.Command1.UserClick();
  }
  [[nodiscard]] std::string Table(const std::string& name) const { return folder_.Content(name).value_or("(missing)"); }
  [[nodiscard]] std::string Status() const { return screen_.StatusBar1.Panel(2); }

  testing_support::TestFolder folder_;
  testing_support::PrintRecorder word_;
  std::ostringstream record_;
  EventLog log_{record_};
  OperatorPlatform platform_{log_, folder_.Path().string(), &word_};
  testing_support::FaultyDisk disk_;
  FileSystemObject files_{disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
  Desktop desktop_;
  Context context_{desktop_, platform_, files_, store_, settings_};
  QuietCentre centre_;
  DocumentScreens screens_{context_, centre_};
  ABRGForm& screen_ = screens_.Editor();
};

TEST_F(AbrgForm, OnlyTheFirstEntryOfThePendingListTakesEffect) {
  folder_.Put("LagerArtikeldb.dbf", StockLine("#00001", "10") + "\r\n" + StockLine("#00002", "10") + "\r\n");
  screen_.ComboABRG.SetItems({kSelectorTexts.begin(), kSelectorTexts.end()});
  screen_.ComboABRG.SetListIndex(kSelectorInvoice);
  screen_.PendingStockList = PendingStockEntry("#00001", "2") + PendingStockEntry("#00002", "3");
  FillRow(0, "1", "Ware", "5");
  SaveAndPrintAgain();
  const std::string stock = Table("LagerArtikeldb.dbf");
  EXPECT_NE(stock.find("'#00001','LAG00003','','8'"), std::string::npos) << stock;
  EXPECT_NE(stock.find("'#00002','LAG00003','','10'"), std::string::npos) << stock;
  EXPECT_TRUE(screen_.PendingStockList.empty());
  EXPECT_EQ(centre_.stockCounts, 1);
}

TEST_F(AbrgForm, ACollectiveInvoiceClosesItsSourceDocuments) {
  folder_.Put("offeneBelegedb.dbf", "'LS','0101/2026','x\r\n'AB','0102/2026','x\r\n'LS','0103/2026','x\r\n");
  screen_.ClosedDocumentKeys = " LS0101/2026 AB0102/2026";
  FillRow(0, "1", "Ware", "5");
  SaveAndPrint();
  EXPECT_EQ(Table("offeneBelegedb.dbf").find("0101/2026','x"), std::string::npos);
  EXPECT_EQ(Table("offeneBelegedb.dbf").find("0102/2026','x"), std::string::npos);
  EXPECT_NE(Table("offeneBelegedb.dbf").find("'LS','0103/2026','x"), std::string::npos);
  EXPECT_EQ(Table("erledigteBelegedb.dbf"), "'LS0101/2026','AB0102/2026',");
  EXPECT_TRUE(screen_.ClosedDocumentKeys.empty());
}

TEST_F(AbrgForm, ANewDocumentForgetsWhatWasCollectedForTheOldOne) {
  screen_.ClosedDocumentKeys = " LS0101/2026";
  screen_.PendingStockList = PendingStockEntry("#00001", "2");
  screen_.AngebotGeladen = screen_.AngebotIstEntwurf = screen_.ErsteNummerOffen = true;
  platform_.Push(Answer::Yes);
  screen_.Command8.UserClick();
  EXPECT_TRUE(screen_.ClosedDocumentKeys.empty());
  EXPECT_TRUE(screen_.PendingStockList.empty());
  EXPECT_FALSE(screen_.AngebotGeladen || screen_.AngebotIstEntwurf || screen_.ErsteNummerOffen);
}

TEST_F(AbrgForm, ALoadedDraftOfAQuotationIsReplacedWithoutAQuestion) {
  folder_.Put("Angebotedb.dbf", "'short','0101/2026','Entwurf','14.11.2026','Meier\r\n");
  screen_.ComboABRG.SetListIndex(kSelectorQuotation);
  screen_.ABRGNR.SetText("0101/2026");
  screen_.AngebotGeladen = true;
  FillRow(0, "1", "Ware", "5");
  platform_.Push(Answer::Yes);
  platform_.PushAnswer({.kind = QueuedAnswer::Kind::Printer, .printer = {"Büro", 1}});
  platform_.Push(Answer::No);
  screen_.Command1.UserClick();
  EXPECT_FALSE(platform_.AnswersLeft());
  EXPECT_EQ(platform_.BoxCount(), 2);
  EXPECT_TRUE(Table("Angebotedb.dbf").starts_with("'1','0101/2026','15.11.2026'")) << Table("Angebotedb.dbf");
  EXPECT_FALSE(screen_.AngebotGeladen);
  EXPECT_FALSE(screen_.AngebotIstEntwurf);
}

TEST_F(AbrgForm, GoodsAndListsAreCountedAnewAfterPrinting) {
  folder_.Put("LagerArtikeldb.dbf", StockLine("#00001", "10") + "\r\n");
  screen_.Rows.LGNr[0].SetText("#00001");
  FillRow(0, "1", "Ware", "5");
  SaveAndPrint(0);
  EXPECT_EQ(centre_.stockCounts, 1);
  EXPECT_EQ(centre_.documentCounts, 1);
  SaveAndPrintAgain();
  EXPECT_EQ(centre_.stockCounts, 1) << "a reprint moves no goods";
  EXPECT_EQ(centre_.documentCounts, 2);
}

TEST_F(AbrgForm, ADocumentThatCannotBeStoredIsNotPrinted) {
  FillRow(0, "1", "Ware", "5");
  const std::string before = Table("Rechnungendb.dbf");
  platform_.onWaiting = [this] {
    screens_.Choice().Combo.SetListIndex(1);
    platform_.PushAnswer({.kind = QueuedAnswer::Kind::Printer, .printer = {"Büro", 1}});
    disk_.Arm({FaultKind::ForGood, 1, ENOSPC});  // the read goes through, each write fails
    screens_.Choice().OKButton.UserClick();
    return true;
  };
  screen_.Command1.UserClick();
  disk_.Arm({});
  EXPECT_EQ(Table("Rechnungendb.dbf"), before);
  EXPECT_EQ(screen_.ABRGNR.Text(),
            "???"
            "?/2026");
  EXPECT_EQ(Status(), "Druckvorgang abgebrochen - Probleme beim Speichern!");
  EXPECT_EQ(platform_.BoxCount(), 1);
  for (const std::string& step : word_.steps) EXPECT_FALSE(step.starts_with("OpenTemplate")) << step;
  SaveAndPrint();
  EXPECT_EQ(screen_.ABRGNR.Text(), "0101/2026") << "the screen stays usable and no number is lost";
  EXPECT_TRUE(Table("Rechnungendb.dbf").ends_with(before));
}

TEST_F(AbrgForm, ATableThatCannotBeReadIsNotTakenForAnEmptyOne) {
  FillRow(0, "1", "Ware", "5");
  const std::string before = Table("Rechnungendb.dbf");
  platform_.onWaiting = [this] {
    screens_.Choice().Combo.SetListIndex(1);
    platform_.PushAnswer({.kind = QueuedAnswer::Kind::Printer, .printer = {"Büro", 1}});
    disk_.Arm({FaultKind::Once, 0, EIO});
    screens_.Choice().OKButton.UserClick();
    return true;
  };
  screen_.Command1.UserClick();
  disk_.Arm({});
  EXPECT_EQ(Status(), "Druckvorgang abgebrochen - Probleme beim Speichern!");
  EXPECT_TRUE(screen_.ABRGNR.Locked()) << "no first number is asked for";
  EXPECT_EQ(Table("Rechnungendb.dbf"), before);
}

TEST_F(AbrgForm, AnUnknownPrinterLeavesRecordAndScreen) {
  word_.fails = [](std::string_view step) { return step.starts_with("PrintDocument"); };
  word_.reason = "Der Drucker ist nicht bekannt.";
  FillRow(0, "1", "Ware", "5");
  SaveAndPrint();
  EXPECT_EQ(screen_.ABRGNR.Text(), "0101/2026");
  EXPECT_TRUE(Table("Rechnungendb.dbf").starts_with("'1','0101/2026'"));
  EXPECT_EQ(screen_.StatusBar1.Panel(4), "Der Drucker ist nicht bekannt.");
  EXPECT_EQ(Table("offeneBelegedb.dbf"), "(missing)");
  EXPECT_TRUE(screen_.KDName.Enabled());
  EXPECT_EQ(word_.steps.back(), "Reset");
  word_.fails = [](std::string_view) { return false; };
  SaveAndPrintAgain();
  EXPECT_EQ(Status(), "Rechnung drucken - fertig!");
  EXPECT_EQ(screen_.StatusBar1.Panel(4), "");
  EXPECT_EQ(platform_.BoxCount(), 1);
}

TEST_F(AbrgForm, ADiskThatFillsUpUnderThePaperLeavesRecordAndScreen) {
  word_.fails = [this](std::string_view step) {
    if (!step.starts_with("SaveDocument")) return false;
    disk_.Arm({FaultKind::ForGood, 0, ENOSPC});
    const bool failed = !files_.Write(step.substr(step.find(' ') + 1), "paper");
    disk_.Arm({});
    return failed;
  };
  FillRow(0, "1", "Ware", "5");
  SaveAndPrint();
  EXPECT_EQ(Status(), "Druckvorgang abgebrochen - Probleme beim Speichern!");
  EXPECT_TRUE(Table("Rechnungendb.dbf").starts_with("'1','0101/2026'"));
  EXPECT_EQ(Table("RG0101-2026_Meier.doc"), "(missing)");
  EXPECT_EQ(Table("offeneBelegedb.dbf"), "(missing)");
  word_.fails = [](std::string_view) { return false; };
  SaveAndPrintAgain();
  EXPECT_EQ(Status(), "Rechnung drucken - fertig!");
  EXPECT_TRUE(Table("offeneBelegedb.dbf").starts_with("'RG','0101/2026'"));
}

TEST_F(AbrgForm, AFailedDeliveryNoteStaysOpenInTheWordProcessor) {
  word_.fails = [](std::string_view step) { return step.starts_with("SaveDocument"); };
  FillRow(0, "1", "Ware", "5");
  SaveAndPrint(2);
  EXPECT_TRUE(word_.steps.back().starts_with("SaveDocument"));
  word_.fails = [](std::string_view) { return false; };
  word_.steps.clear();
  SaveAndPrint(2);
  EXPECT_EQ(word_.steps.front(), "Reset") << "the next run lets go of it first";
}

TEST_F(AbrgForm, TheProgramMayEndWhileTheChoiceIsOpen) {
  platform_.onWaiting = [this] {
    platform_.Quit();
    return true;
  };
  screen_.Command1.UserClick();
  EXPECT_EQ(Table("Rechnungendb.dbf"), "'short','0100/2026','02.01.2026 ','','x\r\n");
}

TEST_F(AbrgForm, ThousandsOfRowsAreComputedAndStoredInOneGo) {
  constexpr int kRows = 1700;
  settings_.PositionRowCount = kRows;
  screen_.Unload();
  settings_.PositionRowCount = kRows;
  screen_.Show();
  ASSERT_EQ(screen_.Rows.Count(), kRows);
  screen_.KDNr.SetText("00100");
  screen_.KDName.SetText("Meier");
  for (int row = 0; row < kRows; ++row) FillRow(row, "2", "Ware", "0,05");
  SaveAndPrint();
  EXPECT_EQ(screen_.Gesamt.Text(), "170,00");
  EXPECT_EQ(screen_.MWST.Text(), "32,30");
  EXPECT_EQ(screen_.Rows.VScroll1.Maximum(), kRows - 14);
  EXPECT_TRUE(Table("Rechnungendb.dbf").starts_with("'1700','0101/2026'"));
  EXPECT_EQ(word_.documents.size(), 100U);
  EXPECT_EQ(word_.Field(99, "Seitenangabe"), "Seite 100 von 100");
  screen_.Unload();
  EXPECT_EQ(settings_.PositionRowCount, 17);
}

TEST_F(AbrgForm, ADocumentGoesOnTheFormInRichText) {
  folder_.Put("Belegvorlage.rtf", "{\\rtf1 [KDName][Ansprechpartner] [Betrag]}");
  FillRow(0, "1", "Ware", "5");
  screen_.Berechnen();
  platform_.PushAnswer({.kind = QueuedAnswer::Kind::Printer, .printer = {"Büro", 2}});
  screen_.BelegRTFDrucken();
  EXPECT_EQ(screen_.BelegRTF.Rtf(), "{\\rtf1 Meier 5,95}");
  EXPECT_EQ(Status(),
            "Beleg ???"
            "?/2026 wurde gedruckt!");
  EXPECT_EQ(Table("Rechnungendb.dbf"), "'short','0100/2026','02.01.2026 ','','x\r\n");
  platform_.PushAnswer({.kind = QueuedAnswer::Kind::Cancel});
  screen_.BelegRTFDrucken();
  EXPECT_EQ(Status(),
            "Abbruch durch den Benutzer! Auftrag ???"
            "?/2026 wurde nicht gedruckt!");
}

TEST_F(AbrgForm, LoadingReadsTheConfigurationAndWaitsForAPartner) {
  EXPECT_EQ(centre_.configReads, 1);
  EXPECT_TRUE(screen_.UebernahmeOffen());
  FillRow(0, "1", "Ware", "5");
  SaveAndPrint();
  EXPECT_FALSE(screen_.UebernahmeOffen()) << "a printed document";
  screen_.Command3.UserClick();
  EXPECT_TRUE(screen_.UebernahmeOffen());
  screen_.Unload();
  EXPECT_FALSE(screen_.UebernahmeOffen());
}

}  // namespace
}  // namespace kontorwerk
