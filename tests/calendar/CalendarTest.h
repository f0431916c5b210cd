// The calendar's screens over a data folder of their own, with a clock that stands still, a control centre that counts
// and an order screen that remembers.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <sstream>
#include <string>

#include "calendar/CalendarScreens.h"
#include "calendar/DayGrid.h"
#include "platform/headless/OperatorPlatform.h"
#include "store/RecordLine.h"
#include "store/Text.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk::test {

class CountingCentre final : public ControlCentre {
 public:
  void ReadConfig() override {}
  void CountStockItems() override {}
  void OpenDocumentReminder() override {}
  void RefreshAppointments() override { ++refreshes; }

  int refreshes = 0;
};

// Three labels of one open order.
class OrderLabels final : public OrderAppointments {
 public:
  bool ShowsOrder(std::string_view orderNumber) const override { return open && orderNumber == number; }
  void AddAppointment(std::string_view text) override {
    for (std::string& label : labels) {
      if (!label.empty()) continue;
      label = text;
      return;
    }
  }
  void SetAppointment(int slot, std::string_view text) override { labels[static_cast<std::size_t>(slot - 1)] = text; }
  int ClearAppointment(std::string_view text) override {
    for (std::size_t i = 0; i < labels.size(); ++i) {
      if (labels[i] != text) continue;
      labels[i].clear();
      return static_cast<int>(i) + 1;
    }
    return kNoSlot;
  }
  void SaveOrder() override { ++saves; }
  void OpenOrder(std::string_view row) override { openedRow = row; }

  bool open = true;
  std::string number;
  std::array<std::string, 3> labels;
  int saves = 0;
  std::string openedRow;
};

// An order's line with its number and its three appointments, everything else empty.
inline std::string OrderRow(std::string_view number, std::string_view first, std::string_view second,
                            std::string_view third) {
  std::vector<std::string> fields(30);
  fields[0] = number;
  fields[18] = first;
  fields[19] = second;
  fields[20] = third;
  return RecordLine(fields);
}

class CalendarTest : public ::testing::Test {
 protected:
  CalendarTest() {
    settings.DBPath = folder.DataPath();
    desktop.AddObserver(platform);
    platform.SetNow({{2026, 11, 10}, {9, 0, 0}});
    platform.onFault = [](std::string_view message) { ADD_FAILURE() << message; };
  }
  ~CalendarTest() override { EXPECT_FALSE(platform.AnswersLeft()); }

  void PutAppointments(std::string_view text) const { folder.Put("Termindb.dbf", text); }
  [[nodiscard]] std::string Appointments() const { return folder.Content("Termindb.dbf").value_or("(missing)"); }
  void PutOrders(std::string_view text) const { folder.Put("Auftragsdb.dbf", text); }
  [[nodiscard]] std::string Orders() const { return folder.Content("Auftragsdb.dbf").value_or("(missing)"); }
  [[nodiscard]] NeuerTermin& Dialog() { return screens.neuerTermin; }
  [[nodiscard]] Terminkalender& Calendar() { return screens.terminkalender; }

  // Types an appointment into the open dialog and saves it.
  void Enter(std::string_view subject, std::string_view begin, int durationEntry) {
    Dialog().Text1.UserText(subject);
    Dialog().ComboBeginn.SetText(begin);
    Dialog().ComboDauer.UserChoose(durationEntry);
    Dialog().OKButton.UserClick();
  }
  // The row of the grid for a time, counted from 1.
  static int RowOf(int hour, int minute) { return hour * 4 + minute / 15 + 1; }

  testing_support::TestFolder folder;
  std::unique_ptr<Disk> disk = MakeSystemDisk();
  FileSystemObject files{*disk};
  Settings settings;
  RecordStore store{files, settings};
  std::ostringstream record;
  EventLog log{record};
  Desktop desktop;
  OperatorPlatform platform{log, folder.Path().string(), nullptr};
  Context context{desktop, platform, files, store, settings};
  CountingCentre centre;
  OrderLabels orders;
  CalendarScreens screens{context, centre};
};

}  // namespace kontorwerk::test
