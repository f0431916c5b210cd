// The program: finds its own folder, puts windows, word processor and screens together, and starts.
#include <filesystem>
#include <string>
#include <system_error>

#include "app/Papers.h"
#include "app/ProgramFolder.h"
#include "platform/Desktop.h"
#include "platform/qt/QtApplication.h"
#include "shell/Program.h"
#include "store/CodePage.h"

int main(int argc, char** argv) {
  using namespace kontorwerk;
  const std::string folder = FindProgramFolder();
  std::error_code error;
  // Relative paths of the settings start at the program's folder.
  std::filesystem::current_path(folder, error);

  Desktop desktop;
  const auto disk = MakeSystemDisk();
  const FileSystemObject files(*disk);
  QtApplication application(argc, argv, desktop, files, FromUtf8(folder).value_or(folder) + "\\");
  const auto papers = MakePapers(files, folder, [&](std::string_view path) { return application.OpenFile(path); });
  application.SetWordProcessor(*papers);
  Program program(desktop, application.Surroundings(), files);
  return application.Run([&] { program.Start(); });
}
