// The whole program on the tables of a firm, without windows: what a user waits for from a click to the filled screen.
#pragma once

#include <memory>
#include <ostream>
#include <string_view>

#include "bench/Firm.h"
#include "platform/Desktop.h"
#include "platform/Screen.h"
#include "platform/headless/EventLog.h"
#include "platform/headless/HeadlessDriver.h"
#include "platform/headless/OperatorPlatform.h"
#include "shell/Program.h"

namespace kontorwerk::bench {

class HeadlessProgram {
 public:
  explicit HeadlessProgram(const Firm& firm);

  // To the open control centre, reminders counted and the day's appointments listed.
  void Start();
  // The screen of that name; the process ends without one.
  template <typename ScreenType>
  [[nodiscard]] ScreenType& Get(std::string_view name) {
    return static_cast<ScreenType&>(Find(name));
  }
  [[nodiscard]] HeadlessDriver& Hand() { return driver_; }
  [[nodiscard]] Desktop& Screens() { return desktop_; }
  [[nodiscard]] OperatorPlatform& Surroundings() { return platform_; }

 private:
  [[nodiscard]] Screen& Find(std::string_view name);

  std::ostream nowhere_{nullptr};
  EventLog log_{nowhere_};
  Desktop desktop_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  OperatorPlatform platform_;
  HeadlessDriver driver_{desktop_};
  Program program_;
};

}  // namespace kontorwerk::bench
