// The two article screens over a data folder of their own, with what they reach beside them as records, and short words
// for what a user does: every step moves the focus first, as a hand does.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/OperatorPlatform.h"
#include "stock/Artikelanlegen.h"
#include "stock/Artikelsuchen.h"
#include "store/Text.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk::testing_support {

class RecordingControlCentre final : public ControlCentre {
 public:
  void ReadConfig() override {}
  void CountStockItems() override { ++counted; }
  void OpenDocumentReminder() override {}
  void RefreshAppointments() override {}

  int counted = 0;
};

class RecordingGoodsReceipt final : public GoodsReceiptSearch {
 public:
  void ShowForGoodsReceipt() override { calls.emplace_back("show"); }
  void StartGoodsReceipt(std::string_view category, std::string_view digits) override {
    calls.push_back(Concat("receive ", category, " ", digits));
  }

  std::vector<std::string> calls;
};

// A document of rows in the order LGNr|ArtNr|S|B|E, with what happened to them.
class RecordingDocument final : public PositionReceiver {
 public:
  struct Row {
    std::string stockNumber, articleNumber, quantity, description, price;
    bool secondRate = false;
  };

  [[nodiscard]] int CurrentRow() const override { return current; }
  [[nodiscard]] bool IsQuotation() const override { return quotation; }
  [[nodiscard]] bool IsNetDocument() const override { return net; }
  void ClearRow(int row) override {
    const bool mark = rows[row].secondRate;
    rows[row] = {};
    rows[row].secondRate = mark;
  }
  void SetStockNumber(int row, std::string_view text) override { rows[row].stockNumber = text; }
  void SetArticleNumber(int row, std::string_view text) override { rows[row].articleNumber = text; }
  void SetQuantity(int row, std::string_view text) override { rows[row].quantity = text; }
  void SetDescription(int row, std::string_view text) override { rows[row].description = text; }
  void SetSinglePrice(int row, std::string_view text) override { rows[row].price = text; }
  void TickSecondRate(int row) override { rows[row].secondRate = true; }
  int FreeRowBehind(int row) override { return row + 1; }
  void FocusQuantity(int row) override { focus = Concat("S ", std::to_string(row)); }
  void FocusNextFreeRow(int row) override { focus = Concat("free ", std::to_string(row)); }

  [[nodiscard]] std::string Line(int row) {
    const Row& r = rows[row];
    return Concat(r.stockNumber, "|", r.articleNumber, "|", r.quantity, "|", r.description, "|", r.price,
                  r.secondRate ? "|2" : "");
  }

  int current = 0;
  bool quotation = false;
  bool net = true;
  std::map<int, Row> rows;
  std::string focus;
};

class ArticleDesk : public ::testing::Test {
 protected:
  ArticleDesk() {
    settings_.DBPath = folder_.DataPath();
    settings_.MWSTSatz = "0,19";
    settings_.MWSTSatz2 = "0,07";
    platform_.SetNow({{2026, 11, 15}, {9, 30, 0}});
    desktop_.AddObserver(platform_);
    desktop_.Add(mask_);
    desktop_.Add(search_);
    mask_.SetGoodsReceiptSearch(&receipt_);
    mask_.SetPositionReceiver(&document_);
    search_.SetPositionReceiver(&document_);
  }

  void Set(TextBox& box, std::string_view text) {
    ASSERT_TRUE(box.Usable()) << box.Name();
    if (desktop_.MoveFocus(box)) box.UserText(text);
  }
  void Click(CaptionControl& control) {
    ASSERT_TRUE(control.Usable()) << control.Name();
    if (desktop_.MoveFocus(control)) control.UserClick();
  }
  void Toggle(CheckBox& box) {
    ASSERT_TRUE(box.Usable()) << box.Name();
    if (desktop_.MoveFocus(box)) box.UserToggle();
  }
  void Choose(OptionButton& button) {
    ASSERT_TRUE(button.Usable()) << button.Name();
    if (desktop_.MoveFocus(button)) button.UserChoose();
  }
  void SelectRow(int row) {
    desktop_.MoveFocus(search_.Suchergebnis);
    search_.Suchergebnis.UserClick(row);
  }
  // Opens the search, finds everything and clicks the row.
  void ChooseArticle(int row) {
    search_.Show();
    Click(search_.Command5);
    SelectRow(row);
  }
  // Opens the article of the row for editing.
  void EditArticle(int row) {
    ChooseArticle(row);
    Click(search_.Command6);
  }
  // A new article whose number is in order.
  void NewArticle(std::string_view digits = "00001") {
    mask_.Show();
    Set(mask_.Kat, "net");
    Set(mask_.ArtikelNr, digits);
    Set(mask_.Bezeichnung, "Kabel");
  }

  void PutArticles(std::string_view text) { folder_.Put("Artikeldb.dbf", text); }
  [[nodiscard]] std::string Articles() const { return folder_.Content("Artikeldb.dbf").value_or("(missing)"); }
  void PutStock(std::string_view text) { folder_.Put("LagerArtikeldb.dbf", text); }
  [[nodiscard]] std::string Stock() const { return folder_.Content("LagerArtikeldb.dbf").value_or("(missing)"); }
  [[nodiscard]] const std::string& Status(ArticleMask& screen) { return screen.StatusBar1.Panel(4); }
  [[nodiscard]] const std::string& Box() const { return platform_.LastBoxText(); }
  [[nodiscard]] const std::string& Title() const { return platform_.LastBoxTitle(); }
  void ExpectNoAnswersLeft() { EXPECT_FALSE(platform_.AnswersLeft()); }

  TestFolder folder_;
  std::ostringstream out_;
  EventLog log_{out_};
  OperatorPlatform platform_{log_, folder_.Path().string(), nullptr};
  Desktop desktop_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
  Context context_{desktop_, platform_, files_, store_, settings_};
  RecordingControlCentre centre_;
  RecordingGoodsReceipt receipt_;
  RecordingDocument document_;
  std::vector<Artikelanlegen::SupplierTaker> supplierSearches_;
  Artikelanlegen mask_{context_, centre_,
                       [this](Artikelanlegen::SupplierTaker taker) { supplierSearches_.push_back(taker); }};
  Artikelsuchen search_{context_, mask_};
};

// A line of the master: number, name, first two description lines, stock flag, single item, order number 1, purchase
// price 1, net and gross price and EAN; all else empty or as a new mask has it.
struct ArticleText {
  std::string number = {};
  std::string name = "Kabel";
  std::string description = {};
  std::string secondLine = {};
  bool stockKept = false;
  bool singleItem = false;
  std::string orderNumber = {};
  std::string purchasePrice = {};
  std::string netPrice = {};
  std::string grossPrice = {};
  std::string ean = {};
  bool secondRate = false;
};

inline std::string ArticleRow(const ArticleText& text) {
  Article article;
  article.number = text.number;
  article.name = text.name;
  article.description = {text.description, text.secondLine, "", ""};
  article.stockKept = text.stockKept;
  article.singleItem = text.singleItem;
  article.multipleItem = !text.singleItem;
  article.orderNumbers[0] = text.orderNumber;
  article.purchasePrices[0] = text.purchasePrice;
  article.netPrice = text.netPrice;
  article.grossPrice = text.grossPrice;
  article.secondRate = text.secondRate;
  article.entryDate = "12.05.2006";
  article.ean = text.ean;
  return ArticleLine(article) + "\r\n";
}

}  // namespace kontorwerk::testing_support
