// A disk that counts the calls of a save and breaks one of them on demand, and that watches the order of the calls:
// a file may be renamed into place only when everything written to it has been synced and it has been closed, both
// without an error.
// It syncs nothing for real, so that a sweep over thousands of faults stays quick.
#pragma once

#include <algorithm>
#include <cerrno>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "store/FileSystem.h"

namespace kontorwerk::testing_support {

enum class Call { Create, CopyPermissions, Write, Sync, Close, Rename, Remove, SyncFolder, Read };

enum class FaultKind {
  None,
  Once,        // one call fails
  ForGood,     // this call and each one after it fails
  ShortWrite,  // one write takes half of what it is given
  Killed,      // from this call on nothing happens any more
  KilledHalf,  // as Killed, but a write has got half of its bytes out
};

struct Fault {
  FaultKind kind = FaultKind::None;
  std::size_t call = 0;  // counted from 0
  int error = EIO;
};

class FaultyDisk final : public Disk {
 public:
  FaultyDisk() : disk_(MakeSystemDisk()) {}
  FaultyDisk(const FaultyDisk&) = delete;
  FaultyDisk& operator=(const FaultyDisk&) = delete;
  ~FaultyDisk() override {
    for (const int handle : open_) disk_->Close(handle);
  }

  void Arm(Fault fault) {
    fault_ = fault;
    calls_.clear();
    fired_ = 0;
    orderBroken_ = false;
    folderDirty_ = false;
  }
  [[nodiscard]] const std::vector<Call>& Calls() const { return calls_; }
  [[nodiscard]] std::size_t Fired() const { return fired_; }
  [[nodiscard]] bool OrderBroken() const { return orderBroken_; }
  [[nodiscard]] bool FolderDirty() const { return folderDirty_; }
  [[nodiscard]] int Pauses() const { return pauses_; }
  // Each write takes at most so many bytes; 0 for no limit.
  void LimitWrites(std::size_t most) { mostBytes_ = most; }

  int Create(const std::string& path, int& error) override {
    if (Fails(Call::Create, error)) return -1;
    const int handle = disk_->Create(path, error);
    if (handle >= 0) open_.insert(handle);
    path_ = path;
    clean_ = true;
    return handle;
  }
  long Write(int handle, const char* data, std::size_t size, int& error) override {
    const bool half = fault_.call == calls_.size() && size > 1 &&
                      (fault_.kind == FaultKind::ShortWrite || fault_.kind == FaultKind::KilledHalf);
    if (Fails(Call::Write, error)) {
      if (half) disk_->Write(handle, data, size / 2, error);
      return -1;
    }
    clean_ = false;
    if (half) {
      ++fired_;
      size /= 2;
    }
    return disk_->Write(handle, data, mostBytes_ == 0 ? size : std::min(size, mostBytes_), error);
  }
  int Sync(int) override {
    int error = 0;
    if (Fails(Call::Sync, error)) return error;
    clean_ = true;
    return 0;
  }
  int Close(int handle) override {
    int error = 0;
    const bool fails = Fails(Call::Close, error);
    // A close that reports an error has closed all the same; a killed process leaves it to the system.
    open_.erase(handle);
    disk_->Close(handle);
    if (fails) clean_ = false;
    return fails ? error : 0;
  }
  int CopyPermissions(const std::string& from, const std::string& to) override {
    int error = 0;
    return Fails(Call::CopyPermissions, error) ? error : disk_->CopyPermissions(from, to);
  }
  int Rename(const std::string& from, const std::string& to) override {
    int error = 0;
    if (Fails(Call::Rename, error)) return error;
    if (from == path_ && (!clean_ || !open_.empty())) orderBroken_ = true;
    folderDirty_ = true;
    return disk_->Rename(from, to);
  }
  int Remove(const std::string& path) override {
    int error = 0;
    return Fails(Call::Remove, error) ? error : disk_->Remove(path);
  }
  int SyncFolder(const std::string&) override {
    int error = 0;
    if (Fails(Call::SyncFolder, error)) return error;
    folderDirty_ = false;
    return 0;
  }
  int Read(const std::string& path, std::string& content) override {
    int error = 0;
    if (!Fails(Call::Read, error)) return disk_->Read(path, content);
    content = "half a ta";  // what came before the error must never be taken for the table
    return error;
  }
  void Pause() override { ++pauses_; }

 private:
  bool Fails(Call call, int& error) {
    const std::size_t number = calls_.size();
    calls_.push_back(call);
    const bool killed = fault_.kind == FaultKind::Killed || fault_.kind == FaultKind::KilledHalf;
    const bool fails = fault_.kind == FaultKind::Once
                           ? number == fault_.call
                           : (fault_.kind == FaultKind::ForGood || killed) && number >= fault_.call;
    if (!fails) return false;
    ++fired_;
    error = killed ? EIO : fault_.error;
    return true;
  }

  std::unique_ptr<Disk> disk_;
  Fault fault_;
  std::vector<Call> calls_;
  std::set<int> open_;
  std::string path_;
  std::size_t fired_ = 0;
  std::size_t mostBytes_ = 0;
  int pauses_ = 0;
  bool clean_ = true;
  bool orderBroken_ = false;
  bool folderDirty_ = false;
};

}  // namespace kontorwerk::testing_support
