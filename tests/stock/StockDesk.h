// All stock screens over a data folder of their own, with a document and a control centre that remember, and a disk
// that can be made to fail.
#pragma once

#include <string>
#include <string_view>

#include "stock/StockScreens.h"
#include "tests/stock/ArticleDesk.h"
#include "tests/store/FaultyDisk.h"

namespace kontorwerk::testing_support {

class StockDesk : public ::testing::Test {
 protected:
  StockDesk() {
    settings_.DBPath = folder_.DataPath();
    settings_.MWSTSatz = "0,19";
    settings_.MWSTSatz2 = "0,07";
    platform_.SetNow({{2026, 11, 15}, {9, 30, 0}});
    platform_.onFault = [](std::string_view message) { ADD_FAILURE() << message; };
    desktop_.AddObserver(platform_);
    screens_.SetPositionReceiver(&document_);
  }
  ~StockDesk() override { EXPECT_FALSE(platform_.AnswersLeft()); }

  template <typename ScreenType>
  [[nodiscard]] ScreenType& Get(std::string_view name) {
    return static_cast<ScreenType&>(*desktop_.Find(name));
  }
  [[nodiscard]] LGArtikelSuche& Search() { return Get<LGArtikelSuche>("LGArtikelSuche"); }
  [[nodiscard]] LGArtikelbearbeiten& Editor() { return Get<LGArtikelbearbeiten>("LGArtikelbearbeiten"); }
  [[nodiscard]] WareneingangStück& QuantityDialog() { return Get<WareneingangStück>("WareneingangStück"_t); }

  void Type(TextBox& box, std::string_view text) {
    if (desktop_.MoveFocus(box)) box.UserText(text);
  }
  void Click(CaptionControl& control) {
    if (desktop_.MoveFocus(control)) control.UserClick();
  }
  void FindAll() { Click(Search().Command5); }
  void ScanEan(std::string_view ean) {
    Type(Search().EANNr, ean);
    desktop_.PressKey(Search().EANNr, *ParseKey("Enter"));
  }

  void PutArticles(std::string_view text) { folder_.Put("Artikeldb.dbf", text); }
  void PutStock(std::string_view text) { folder_.Put("LagerArtikeldb.dbf", text); }
  [[nodiscard]] std::string Stock() const { return folder_.Content("LagerArtikeldb.dbf").value_or("(missing)"); }
  [[nodiscard]] bool Sounded(std::string_view file) const {
    return out_.str().find(Concat("\"event\": \"sound\", \"file\": \"", file, "\"")) != std::string::npos;
  }

  TestFolder folder_;
  std::ostringstream out_;
  EventLog log_{out_};
  OperatorPlatform platform_{log_, folder_.Path().string(), nullptr};
  Desktop desktop_;
  FaultyDisk disk_;
  FileSystemObject files_{disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
  Context context_{desktop_, platform_, files_, store_, settings_};
  RecordingControlCentre centre_;
  RecordingDocument document_;
  StockScreens screens_{context_, centre_};
};

}  // namespace kontorwerk::testing_support
