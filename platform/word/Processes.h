// Programs run beside ours, and the few other things that only the operating system gives: locks between processes and
// folders of one's own. The only file of this folder that calls the system directly. Paths and arguments are UTF-8.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

enum class ProcessEnd {
  Exited,      // by itself
  Failed,      // by a signal, or it could not be waited for
  TimedOut,    // killed by us when the time was up
  NotStarted,  // no such program, or it may not be run
};

struct ProcessResult {
  ProcessEnd end = ProcessEnd::NotStarted;
  int exitCode = -1;   // of an Exited process
  std::string output;  // standard output and standard error as they came, the first 64 KB
};

struct ProcessCall {
  std::vector<std::string> arguments;    // the program's path first; never seen by a shell
  std::vector<std::string> environment;  // NAME=value, on top of our own
  std::string folder;                    // where it runs; empty for our own folder
  std::chrono::milliseconds limit{30000};
};

// Runs the program and waits for its end, at most `limit`. It runs in a process group of its own, and whatever of the
// group is left at the end is killed: nothing stays behind, also if our own program dies in between (Linux).
[[nodiscard]] ProcessResult RunProcess(const ProcessCall& call);
// Starts the program and lets it go; true if it could be started.
[[nodiscard]] bool StartDetached(const std::vector<std::string>& arguments);

// The full path of a program: as it is if it holds a slash, else from PATH and then from `folders`.
// Empty if there is none that can be run.
[[nodiscard]] std::string FindProgram(std::string_view name, const std::vector<std::string>& folders = {});

// Held by one process at a time; let go at the end of the object or of the process.
class FileLock {
 public:
  // Waits at most until `deadline`.
  FileLock(const std::string& path, std::chrono::steady_clock::time_point deadline);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  [[nodiscard]] bool IsHeld() const { return handle_ >= 0; }

 private:
  int handle_ = -1;
};

// A new folder below `parent` that only the user can enter; removed with all its content at the end of the object.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(const std::string& parent);
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  // Empty if it could not be made.
  [[nodiscard]] const std::string& Path() const { return path_; }
  // Removes folders in `parent` that a run left when it was killed (untouched for an hour).
  static void RemoveLeftovers(const std::string& parent);

 private:
  std::string path_;
};

// Removes the files in `folder` that nobody has changed for `age`.
void RemoveOldFiles(const std::string& folder, std::chrono::hours age);

// The whole file, or nothing if it cannot be read.
[[nodiscard]] std::optional<std::string> ReadWholeFile(const std::string& path);
[[nodiscard]] bool WriteWholeFile(const std::string& path, std::string_view content);

}  // namespace kontorwerk
