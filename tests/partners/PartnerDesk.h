// The screens of the partners over a data folder of their own, with two receivers in the place of the order editor and
// the document editor, and short words for what a user does.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "partners/PartnerScreens.h"
#include "partners/PartnerTable.h"
#include "platform/headless/OperatorPlatform.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk::testing_support {

// Keeps what it was given, in the words of the take-over.
class RecordingReceiver final : public PartnerReceiver {
 public:
  RecordingReceiver(std::string name, std::vector<std::string>& order) : name_(std::move(name)), order_(order) {}

  [[nodiscard]] bool UebernahmeOffen() const override { return open; }
  void TakePartner(const PartnerAddress& partner, std::string_view ansprechpartner, TakeOverRoute way) override {
    ++taken;
    address = partner;
    contact = ansprechpartner;
    route = way;
    order_.push_back(name_);
  }

  bool open = false;
  int taken = 0;
  PartnerAddress address;
  std::string contact;
  TakeOverRoute route = TakeOverRoute::Direct;

 private:
  std::string name_;
  std::vector<std::string>& order_;
};

using ColumnTexts = std::initializer_list<std::pair<int, std::string_view>>;

// A partner with the given columns, all others empty.
inline Partner PartnerWith(const PartnerKind& kind, ColumnTexts columns, std::string_view date = "15.11.2026") {
  Partner partner;
  partner.texts.resize(static_cast<std::size_t>(kind.BoxCount()));
  for (const auto& [column, text] : columns) partner.texts[static_cast<std::size_t>(column - 1)] = text;
  partner.Erfassdatum = date;
  return partner;
}

inline std::string LineWith(const PartnerKind& kind, ColumnTexts columns, std::string_view date = "15.11.2026") {
  return PartnerLine(PartnerWith(kind, columns, date)) + "\r\n";
}

class PartnerDesk : public ::testing::Test {
 protected:
  PartnerDesk() {
    settings_.DBPath = folder_.DataPath();
    platform_.SetNow({{2026, 11, 15}, {9, 30, 0}});
    desktop_.AddObserver(platform_);
    screens_.SetOrderReceiver(&order_);
    screens_.SetDocumentReceiver(&document_);
  }

  [[nodiscard]] Screen& On(std::string_view screen) { return *desktop_.Find(screen); }
  template <typename ControlType>
  [[nodiscard]] ControlType& Get(std::string_view screen, std::string_view control) {
    Control* const found = On(screen).Find(control);
    EXPECT_NE(found, nullptr) << screen << "." << control;
    return dynamic_cast<ControlType&>(*found);
  }
  [[nodiscard]] const std::string& Text(std::string_view screen, std::string_view box) {
    return Get<TextBox>(screen, box).Text();
  }
  [[nodiscard]] const std::string& Status(std::string_view screen) {
    return Get<StatusBar>(screen, "StatusBar1").Panel(4);
  }
  [[nodiscard]] ListView& Hits(std::string_view screen) { return Get<ListView>(screen, "Suchergebnis"); }

  void Show(std::string_view screen) { On(screen).Show(); }
  void Type(std::string_view screen, std::string_view box, std::string_view text) {
    Get<TextBox>(screen, box).UserText(text);
  }
  void Click(std::string_view screen, std::string_view command) { Get<CaptionControl>(screen, command).UserClick(); }
  void Press(std::string_view screen, std::string_view control, KeyCode key) {
    desktop_.PressKey(Get<Control>(screen, control), Key{.code = key});
  }
  // Searches for everything and clicks the row.
  void Choose(std::string_view screen, int row) {
    Show(screen);
    Click(screen, "Command1");
    Hits(screen).UserClick(row);
  }

  void PutCustomers(std::string_view text) { folder_.Put("Kundendb.dbf", text); }
  void PutSuppliers(std::string_view text) { folder_.Put("Lieferantendb.dbf", text); }
  [[nodiscard]] std::string Customers() const { return folder_.Content("Kundendb.dbf").value_or("(missing)"); }
  [[nodiscard]] std::string Suppliers() const { return folder_.Content("Lieferantendb.dbf").value_or("(missing)"); }

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
  std::vector<std::string> takenBy_;
  RecordingReceiver order_{"order", takenBy_};
  RecordingReceiver document_{"document", takenBy_};
  PartnerScreens screens_{context_};
};

}  // namespace kontorwerk::testing_support
