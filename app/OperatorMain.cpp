// The operator's main: reads the command line, puts the screens, the surroundings of a script and a driver together,
// runs the script.
//
//   kontorwerk-operator [--screens headless|qt] [--shots DIR] [--print] --program-folder DIR SCRIPT
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "app/Papers.h"
#include "platform/headless/HeadlessDriver.h"
#include "platform/headless/Operator.h"
#include "platform/headless/OperatorPlatform.h"
#include "platform/headless/WordRecorder.h"
#include "platform/qt/QtDriver.h"
#include "shell/Program.h"

namespace {

using namespace kontorwerk;
namespace fs = std::filesystem;

struct CommandLine {
  bool windows = false;
  bool print = false;
  fs::path shots;
  fs::path programFolder;
  std::string script;
};

std::optional<CommandLine> ParseCommandLine(int argc, char** argv) {
  CommandLine line;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    const bool more = i + 1 < argc;
    if (argument == "--screens" && more) {
      const std::string_view kind = argv[++i];
      if (kind != "headless" && kind != "qt") return std::nullopt;
      line.windows = kind == "qt";
    } else if (argument == "--shots" && more) {
      line.shots = argv[++i];
    } else if (argument == "--program-folder" && more) {
      line.programFolder = argv[++i];
    } else if (argument == "--print") {
      line.print = true;
    } else if (line.script.empty() && (argument == "-" || !argument.starts_with("-"))) {
      line.script = argument;
    } else {
      return std::nullopt;
    }
  }
  if (line.programFolder.empty() || line.script.empty()) return std::nullopt;
  return line;
}

std::optional<std::string> ReadScript(const std::string& name) {
  if (name == "-") return std::string(std::istreambuf_iterator<char>(std::cin), {});
  std::ifstream file(name, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

// The run ends from inside a handler, possibly below the event loop of the windows: nothing is unwound.
[[noreturn]] void EndProcess(int status) {
  std::cout.flush();
  std::fflush(nullptr);
  std::_Exit(status);
}

int Run(const CommandLine& line, int argc, char** argv, const std::string& script) {
  EventLog log(std::cout);
  Desktop desktop;
  const auto disk = MakeSystemDisk();
  const FileSystemObject files(*disk);
  const auto papers = MakePapers(files, line.programFolder.string());
  WordRecorder word(log, *papers, line.print ? PaperRoute::Print : PaperRoute::Record);
  OperatorPlatform platform(log, line.programFolder.string(), &word);
  desktop.AddObserver(platform);
  std::unique_ptr<Driver> driver = std::make_unique<HeadlessDriver>(desktop);
  if (line.windows) driver = MakeQtDriver(argc, argv, desktop);
  Program program(desktop, platform, files);
  Operator oper(desktop, platform, files, *driver, log, {line.windows ? line.shots.string() : std::string()});
  oper.onStart = [&] { program.Start(); };
  oper.onEnd = EndProcess;
  oper.Run(script);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  auto line = ParseCommandLine(argc, argv);
  if (!line) {
    std::cerr << "kontorwerk-operator [--screens headless|qt] [--shots DIR] [--print] --program-folder DIR SCRIPT\n";
    return 2;
  }
  const auto script = ReadScript(line->script);
  std::error_code error;
  line->programFolder = fs::absolute(line->programFolder, error);
  if (!line->shots.empty()) {
    line->shots = fs::absolute(line->shots, error);
    fs::create_directories(line->shots, error);
  }
  fs::create_directories(line->programFolder, error);
  // Relative paths of settings and scripts start at the program's folder.
  fs::current_path(line->programFolder, error);
  if (error || !script) {
    std::cerr << (script ? "the program folder cannot be used\n" : "the script cannot be read\n");
    return 2;
  }
  return Run(*line, argc, argv, *script);
}
