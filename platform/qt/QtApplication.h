// The program with its windows: sets up the toolkit, the look, the German texts, the windows over a desktop, the real
// clock, and the surroundings. The main makes one, then the screens, then calls Run.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Desktop.h"
#include "platform/Platform.h"
#include "store/FileSystem.h"

namespace kontorwerk {

class QtApplication {
 public:
  // `programFolder` is the program's own folder, in the program's form with its closing backslash. `desktop` and
  // `files` must outlive the object. One a process.
  QtApplication(int& argc, char** argv, Desktop& desktop, const FileSystemObject& files, std::string programFolder);
  ~QtApplication();
  QtApplication(const QtApplication&) = delete;
  QtApplication& operator=(const QtApplication&) = delete;

  [[nodiscard]] Platform& Surroundings();
  // What Surroundings().WordProcessor() gives; to be set before Run, must outlive the object.
  void SetWordProcessor(WordXChange& word);
  // Shows a file (program's form) in the program that the desktop has for it; false if that cannot be started.
  bool OpenFile(std::string_view path);

  // Checks the forms of all screens against them: with a fault it tells all of them, on the standard error output and
  // in a box, and gives 3. Otherwise `start` runs inside the event loop, which ends with Platform::Quit; gives its
  // status.
  [[nodiscard]] int Run(const std::function<void()>& start);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace kontorwerk
