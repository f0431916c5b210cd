// The whole program: its settings, its tables, and all screens, wired together. What the surroundings are is the
// caller's choice.
#pragma once

#include <memory>

#include "platform/Context.h"

namespace kontorwerk {

struct ProgramScreens;

class Program {
 public:
  // All three must outlive the program.
  Program(Desktop& desktop, Platform& platform, const FileSystemObject& files);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Loads the control centre; its start-up runs inside the call and may end the program.
  void Start();

 private:
  Settings settings_;
  RecordStore store_;
  Context context_;
  std::unique_ptr<ProgramScreens> screens_;
};

}  // namespace kontorwerk
