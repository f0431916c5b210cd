// Trouble with the disk while an appointment is deleted or changed: both tables stay whole, old or new, and a table
// that could not be read is never emptied.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "tests/calendar/CalendarTest.h"
#include "tests/store/FaultyDisk.h"

namespace kontorwerk {
namespace {

using testing_support::Call;
using testing_support::Fault;
using testing_support::FaultKind;
using testing_support::FaultyDisk;
using testing_support::TestFolder;

constexpr const char* kAppointmentsFile = "Termindb.dbf";
constexpr const char* kOrdersFile = "Auftragsdb.dbf";

std::string OldAppointments() {
  std::string table = "'15.11.2026','12:00','13:00','Mittag','','','128\r\n\r\n";
  for (int i = 0; i < 300; ++i) table += "'16.11.2026','08:00','09:00','Straße','','','255\r\n"_t;
  return table + "'15.11.2026','10:00','10:30','Besuch','','0001001','255\r\n";
}

std::string OldOrders() {
  std::string table = test::OrderRow("0001002", "15.11.2026, 10:00 - 10:30", "", "") + "\r\n\r\n";
  return table + test::OrderRow("0001001", "14.11.2026, 08:00 - 09:00", "15.11.2026, 10:00 - 10:30", "") + "\r\n";
}

// The calendar over a disk that can be broken.
struct Desk {
  explicit Desk(const TestFolder& folder, const Fault& fault = {}) : platform(log, folder.Path().string(), nullptr) {
    disk.Arm(fault);
    settings.DBPath = folder.DataPath();
    desktop.AddObserver(platform);
    platform.SetNow({{2026, 11, 10}, {9, 0, 0}});
  }

  FaultyDisk disk;
  FileSystemObject files{disk};
  Settings settings;
  RecordStore store{files, settings};
  std::ostringstream record;
  EventLog log{record};
  Desktop desktop;
  OperatorPlatform platform;
  Context context{desktop, platform, files, store, settings};
  test::CountingCentre centre;
  CalendarScreens screens{context, centre};
};

struct Change {
  const char* name;
  std::function<void(Desk&)> apply;
};

void Delete(Desk& desk) { desk.screens.neuerTermin.DeleteAppointment("15.11.2026", "10:00", "10:30"); }

// The dialog for the appointment is open already; it goes to another time.
void Move(Desk& desk) {
  NeuerTermin& dialog = desk.screens.neuerTermin;
  dialog.ComboBeginn.SetText("15:00");
  dialog.OKButton.UserClick();
}

void OpenForMove(Desk& desk) {
  Appointment appointment;
  appointment.date = "15.11.2026";
  appointment.begin = "10:00";
  appointment.end = "10:30";
  appointment.subject = "Besuch";
  appointment.orderNumber = "0001001";
  appointment.colour = "255";
  desk.screens.neuerTermin.OpenEdit(appointment);
}

class AppointmentFaults : public ::testing::Test {
 protected:
  void Restore() const {
    for (const std::string& name : folder_.Names()) std::filesystem::remove(folder_.Path() / name);
    folder_.Put(kAppointmentsFile, OldAppointments());
    folder_.Put(kOrdersFile, OldOrders());
  }
  [[nodiscard]] std::string Content(const char* file) const { return folder_.Content(file).value_or("no file"); }

  TestFolder folder_;
};

std::vector<Fault> FaultsAt(std::size_t call, Call kind) {
  std::vector<Fault> faults = {{FaultKind::Once, call},
                               {FaultKind::ForGood, call},
                               {FaultKind::ForGood, call, ENOSPC},
                               {FaultKind::Killed, call}};
  if (kind == Call::Write) {
    faults.push_back({FaultKind::ShortWrite, call});
    faults.push_back({FaultKind::KilledHalf, call});
  }
  return faults;
}

TEST_F(AppointmentFaults, ADeletionLeavesBothTablesWholeOldOrNew) {
  Restore();
  Desk undisturbed(folder_);
  Delete(undisturbed);
  const std::vector<Call> calls = undisturbed.disk.Calls();
  const std::string newAppointments = Content(kAppointmentsFile);
  const std::string newOrders = Content(kOrdersFile);
  ASSERT_NE(newAppointments, OldAppointments());
  ASSERT_NE(newOrders, OldOrders());
  for (std::size_t call = 0; call < calls.size(); ++call) {
    for (const Fault& fault : FaultsAt(call, calls[call])) {
      SCOPED_TRACE(testing::Message() << "call " << call << ", fault " << static_cast<int>(fault.kind) << ", error "
                                      << fault.error);
      Restore();
      Desk desk(folder_, fault);
      Delete(desk);
      EXPECT_GT(desk.disk.Fired(), 0U);
      EXPECT_FALSE(desk.disk.OrderBroken());
      const std::string appointments = Content(kAppointmentsFile);
      const std::string orders = Content(kOrdersFile);
      EXPECT_TRUE(appointments == OldAppointments() || appointments == newAppointments);
      EXPECT_TRUE(orders == OldOrders() || orders == newOrders);
      const bool killed = fault.kind == FaultKind::Killed || fault.kind == FaultKind::KilledHalf;
      EXPECT_FALSE(killed && appointments == OldAppointments() && orders == newOrders) << "the copy went first";
      Desk next(folder_);
      next.files.RemoveLeftovers(folder_.DataPath());
      EXPECT_EQ(folder_.Names(), (std::vector<std::string>{kOrdersFile, kAppointmentsFile}));
    }
  }
}

TEST_F(AppointmentFaults, AMovedAppointmentLeavesBothTablesWholeWhateverFails) {
  Restore();
  Desk undisturbed(folder_);
  OpenForMove(undisturbed);
  undisturbed.disk.Arm({});
  Move(undisturbed);
  const std::vector<Call> calls = undisturbed.disk.Calls();
  const std::string newOrders = Content(kOrdersFile);
  const std::string moved = "'15.11.2026','15:00','15:30','Besuch','','0001001','255\r\n";
  ASSERT_TRUE(Content(kAppointmentsFile).ends_with(moved));
  // The deletion and the new row are two saves: each state between them is a whole table too.
  const std::string deleted = Content(kAppointmentsFile).substr(0, Content(kAppointmentsFile).size() - moved.size());
  const std::vector<std::string> whole = {OldAppointments(), deleted, deleted + moved, OldAppointments() + moved};
  for (std::size_t call = 0; call < calls.size(); ++call) {
    for (const Fault& fault : FaultsAt(call, calls[call])) {
      SCOPED_TRACE(testing::Message() << "call " << call << ", fault " << static_cast<int>(fault.kind));
      Restore();
      Desk desk(folder_);
      OpenForMove(desk);
      desk.disk.Arm(fault);
      Move(desk);
      EXPECT_GT(desk.disk.Fired(), 0U);
      EXPECT_FALSE(desk.disk.OrderBroken());
      EXPECT_NE(std::find(whole.begin(), whole.end(), Content(kAppointmentsFile)), whole.end());
      EXPECT_TRUE(Content(kOrdersFile) == OldOrders() || Content(kOrdersFile) == newOrders);
    }
  }
}

// Only the reads of one table fail: found by the order of the calls of an undisturbed run.
std::vector<std::size_t> ReadsIn(const std::vector<Call>& calls) {
  std::vector<std::size_t> reads;
  for (std::size_t call = 0; call < calls.size(); ++call)
    if (calls[call] == Call::Read) reads.push_back(call);
  return reads;
}

TEST_F(AppointmentFaults, AFailedReadEmptiesNoTable) {
  const std::vector<Change> changes = {{"deletion", Delete}, {"move", Move}};
  for (const Change& change : changes) {
    const auto open = [&](Desk& desk) {
      if (change.name == std::string("move")) OpenForMove(desk);
    };
    Restore();
    Desk undisturbed(folder_);
    open(undisturbed);
    undisturbed.disk.Arm({});
    change.apply(undisturbed);
    const std::vector<std::size_t> reads = ReadsIn(undisturbed.disk.Calls());
    ASSERT_GE(reads.size(), 2U);
    for (const std::size_t read : reads) {
      for (const int error : {EIO, EACCES, ESTALE, ETIMEDOUT}) {
        SCOPED_TRACE(testing::Message() << change.name << ", read at call " << read << ", error " << error);
        Restore();
        Desk desk(folder_);
        open(desk);
        desk.disk.Arm({FaultKind::Once, read, error});
        change.apply(desk);
        EXPECT_EQ(desk.disk.Fired(), 1U);
        EXPECT_NE(Content(kAppointmentsFile).find("Mittag"), std::string::npos);
        EXPECT_NE(Content(kOrdersFile).find("0001001"), std::string::npos);
        EXPECT_NE(Content(kOrdersFile).find("0001002"), std::string::npos);
      }
    }
  }
}

TEST_F(AppointmentFaults, AnAppointmentTableThatCannotBeReadKeepsItsOrderCopies) {
  Restore();
  Desk desk(folder_, {FaultKind::Once, 0, EIO});
  Delete(desk);
  EXPECT_EQ(Content(kAppointmentsFile), OldAppointments());
  EXPECT_EQ(Content(kOrdersFile), OldOrders());
}

}  // namespace
}  // namespace kontorwerk
