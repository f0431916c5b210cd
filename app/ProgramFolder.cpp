#include "app/ProgramFolder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace kontorwerk {

namespace {

namespace fs = std::filesystem;

fs::path UserFolder() {
  if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/') return fs::path(data) / "kontorwerk";
  const char* home = std::getenv("HOME");
  return fs::path(home && *home == '/' ? home : "/") / ".local/share/kontorwerk";
}

}  // namespace

std::string FindProgramFolder() {
  std::error_code error;
  const fs::path executable = fs::read_symlink("/proc/self/exe", error);
  if (!error && access(executable.parent_path().c_str(), W_OK) == 0) return executable.parent_path().string();
  const fs::path folder = UserFolder();
  fs::create_directories(folder, error);
  // What lies beside the executable for every user goes along.
  for (const char* name : {"OK.wav", "Fehler.wav", "Handbuch.pdf"})
    fs::copy_file(executable.parent_path() / name, folder / name, fs::copy_options::skip_existing, error);
  return folder.string();
}

}  // namespace kontorwerk
