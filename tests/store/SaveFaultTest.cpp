// The fault sweep: every call of every kind of save fails once, fails for good, takes half, or is the last one that
// the program lives to see. Whatever happens, the file is whole, old or new.
#include <gtest/gtest.h>

#include <functional>

#include "store/RecordStore.h"
#include "store/Text.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk {
namespace {

using testing_support::Call;
using testing_support::Fault;
using testing_support::FaultKind;
using testing_support::FaultyDisk;
using testing_support::TestFolder;

constexpr const char* kFile = "Kundendb.dbf";

// One way to save. `apply` gives what the program was told.
struct SaveKind {
  const char* name;
  std::function<bool(RecordStore&)> apply;
};

std::string ConfigOfTest() {
  std::vector<std::string> values(TextSettings().size(), std::string("Musterküchen"_t));
  return ConfigText(values, true, false);
}

std::vector<SaveKind> SaveKinds() {
  return {
      {"AppendRow", [](RecordStore& store) { return store.AppendRow(kFile, "'00102','neu"); }},
      {"PrependRow", [](RecordStore& store) { return store.PrependRow(kFile, "'00102','neu"); }},
      {"RewriteTable",
       [](RecordStore& store) {
         return store.RewriteTable(kFile, BlankRows::Drop, [](std::string_view row) {
           return row.size() % 2 == 0 ? RowChange::Replace(Concat(row, "','neu")) : RowChange::Keep();
         });
       }},
      {"ReplaceRowByNumber",
       [](RecordStore& store) { return store.ReplaceRowByNumber(kFile, "0001/2026", "'1','0001/2026','neu"); }},
      {"Configuration", [](RecordStore& store) { return store.Files().Write(store.PathOf(kFile), ConfigOfTest()); }}};
}

// Nothing stands for a table that does not exist yet.
std::vector<std::optional<std::string>> Tables() {
  std::string many;
  for (int row = 0; row < 500; ++row)
    many += Concat("'", std::to_string(row), "','0001/2026','Straße "_t, std::string(100, 'x'), "\r\n");
  return {std::nullopt,
          "",
          "'1','0001/2026','alt\r\n",
          "\r\n\r\n\r\n",
          "'1','0001/2026','no final line end",
          "'a\n'b\n'c\n",
          std::string("'1','0001/2026','\0\x01\x80\xFF\r\n\r\n'x\r\n", 29),
          many,
          "'1','0001/2026','" + std::string(300'000, 'y') + "\r\n"};
}

std::vector<Fault> FaultsAt(std::size_t call, Call kind) {
  std::vector<Fault> faults;
  for (const int error : {EIO, ENOSPC, EACCES, EBUSY, EDQUOT, ENOENT, EEXIST}) {
    // A read that finds no file is no fault: the table is missing.
    if (kind == Call::Read && error == ENOENT) continue;
    faults.push_back({FaultKind::Once, call, error});
    faults.push_back({FaultKind::ForGood, call, error});
  }
  faults.push_back({FaultKind::Killed, call});
  if (kind == Call::Write) {
    faults.push_back({FaultKind::ShortWrite, call});
    faults.push_back({FaultKind::KilledHalf, call});
  }
  return faults;
}

class SaveFaults : public testing::Test {
 protected:
  SaveFaults() { settings_.DBPath = folder_.DataPath(); }

  void Restore(const std::optional<std::string>& old) const {
    std::filesystem::remove(folder_.Path() / kFile);
    if (old) folder_.Put(kFile, *old);
  }

  // The calls of a save without a fault; `fresh` is what the file holds afterwards.
  std::vector<Call> Undisturbed(const SaveKind& save, const std::optional<std::string>& old, std::string& fresh) {
    Restore(old);
    FaultyDisk disk;
    const FileSystemObject files(disk);
    RecordStore store(files, settings_);
    EXPECT_TRUE(save.apply(store));
    EXPECT_FALSE(disk.OrderBroken());
    EXPECT_FALSE(disk.FolderDirty());
    fresh = folder_.Content(kFile).value_or("no file");
    return disk.Calls();
  }

  void Disturbed(const SaveKind& save, const std::optional<std::string>& old, const std::string& fresh,
                 const Fault& fault, Call call) {
    Restore(old);
    FaultyDisk disk;
    disk.Arm(fault);
    const FileSystemObject files(disk);
    RecordStore store(files, settings_);
    const bool told = save.apply(store);
    injected_ += disk.Fired();
    const std::optional<std::string> now = folder_.Content(kFile);
    EXPECT_TRUE(now == old || now == fresh) << "a table that is neither old nor new";
    EXPECT_FALSE(disk.OrderBroken()) << "renamed before it was safe on the disk";
    if (told) {
      EXPECT_EQ(now, fresh) << "success without the new content";
      EXPECT_FALSE(disk.FolderDirty()) << "success before the rename was safe on the disk";
    } else if (call != Call::SyncFolder && !disk.FolderDirty()) {
      EXPECT_EQ(now, old) << "failure with the new content";
    }
    if (call == Call::Read) {
      EXPECT_FALSE(told) << "a failed read must skip the write";
    }
    if (fault.kind == FaultKind::Once || fault.kind == FaultKind::ShortWrite) {
      // A process that lives and can remove files leaves none behind.
      EXPECT_LE(folder_.Names().size(), 1U) << "something was left in the folder";
      const bool passing = call == Call::Rename || call == Call::CopyPermissions || call == Call::Write;
      EXPECT_TRUE(told || !passing || (call == Call::Write && fault.kind == FaultKind::Once))
          << "a passing trouble must not lose a save";
    }
    NextStart(save);
  }

  // The next start cleans up, and the next save works.
  void NextStart(const SaveKind& save) {
    FaultyDisk disk;
    const FileSystemObject files(disk);
    files.RemoveLeftovers(settings_.DBPath);
    EXPECT_LE(folder_.Names().size(), 1U) << "a leftover survived the start";
    RecordStore store(files, settings_);
    EXPECT_TRUE(save.apply(store));
  }

  TestFolder folder_;
  Settings settings_;
  std::size_t injected_ = 0;
};

TEST_F(SaveFaults, TableIsWholeOldOrNewWhateverFails) {
  const std::vector<std::optional<std::string>> tables = Tables();
  for (const SaveKind& save : SaveKinds()) {
    for (std::size_t table = 0; table < tables.size(); ++table) {
      std::string fresh;
      const std::vector<Call> calls = Undisturbed(save, tables[table], fresh);
      for (std::size_t call = 0; call < calls.size(); ++call) {
        for (const Fault& fault : FaultsAt(call, calls[call])) {
          SCOPED_TRACE(testing::Message() << save.name << ", table " << table << ", call " << call << ", fault "
                                          << static_cast<int>(fault.kind) << ", error " << fault.error);
          Disturbed(save, tables[table], fresh, fault, calls[call]);
        }
      }
    }
  }
  EXPECT_GE(injected_, 1000U);
  RecordProperty("injected", static_cast<int>(injected_));
}

TEST_F(SaveFaults, FailedReadNeverEmptiesATable) {
  for (const std::optional<std::string>& old : Tables()) {
    if (!old) continue;
    for (const int error : {EIO, EACCES, ESTALE, ETIMEDOUT, EISDIR, ELOOP, ENOMEM}) {
      Restore(old);
      FaultyDisk disk;
      disk.Arm({FaultKind::Once, 0, error});
      const FileSystemObject files(disk);
      RecordStore store(files, settings_);
      EXPECT_EQ(store.ReadTableText(kFile), "") << "half a table is no table";
      EXPECT_FALSE(store.WriteTable(kFile, RewrittenText("", BlankRows::Keep, [](auto) { return RowChange::Keep(); })));
      EXPECT_EQ(folder_.Content(kFile), old);
    }
  }
}

}  // namespace
}  // namespace kontorwerk
