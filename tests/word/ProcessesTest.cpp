// Running other programs: arguments untouched, limits kept, nothing left behind.
#include "platform/word/Processes.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/word/WordSupport.h"

namespace kontorwerk {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using testing_support::Script;
using testing_support::TestFolder;

ProcessResult RunIt(std::vector<std::string> arguments, milliseconds limit = milliseconds(20000)) {
  ProcessCall call;
  call.arguments = std::move(arguments);
  call.limit = limit;
  return RunProcess(call);
}

TEST(Processes, OutputAndExitCodeComeBack) {
  const ProcessResult result = RunIt({"/bin/sh", "-c", "echo out; echo err >&2; exit 3"});
  EXPECT_EQ(result.end, ProcessEnd::Exited);
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_EQ(result.output, "out\nerr\n");
}

TEST(Processes, ArgumentsReachTheProgramAsTheyAre) {
  const TestFolder folder;
  const std::string script = Script(folder, "show", "for a in \"$@\"; do printf '%s|' \"$a\"; done");
  EXPECT_EQ(RunIt({script, "a b", "$HOME", "`id`", "\"'", "-x", ""}).output, "a b|$HOME|`id`|\"'|-x||");
}

TEST(Processes, TheEnvironmentIsOursWithTheCallsOwnOnTop) {
  ProcessCall call;
  call.arguments = {"/bin/sh", "-c", "echo $LC_ALL:${PATH:+set}; pwd"};
  call.environment = {"LC_ALL=C.UTF-8"};
  call.folder = "/";
  EXPECT_EQ(RunProcess(call).output, "C.UTF-8:set\n/\n");
}

TEST(Processes, AMissingProgramIsNotStarted) {
  EXPECT_EQ(RunIt({"/nowhere/program"}).end, ProcessEnd::NotStarted);
  EXPECT_EQ(RunIt({}).end, ProcessEnd::NotStarted);
}

TEST(Processes, AProcessEndedByASignalHasFailed) {
  EXPECT_EQ(RunIt({"/bin/sh", "-c", "kill -9 $$"}).end, ProcessEnd::Failed);
}

// True once no process carries `mark` in its command line any more.
bool AllGone(const std::string& mark) {
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    std::ifstream file(entry.path() / "cmdline", std::ios::binary);
    const std::string line{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (line.find(mark) != std::string::npos) return false;
  }
  return true;
}

TEST(Processes, AHungProcessIsKilledWithAllItsChildren) {
  if (!std::filesystem::exists("/proc/self/cmdline")) GTEST_SKIP() << "needs /proc";
  const TestFolder folder;
  const std::string mark = folder.Path().filename().string();
  const std::string child = Script(folder, "child", "while true; do sleep 1; done");
  const std::string script = Script(folder, "hang", child + " & " + child + " & wait");
  const auto start = steady_clock::now();
  EXPECT_EQ(RunIt({script}, milliseconds(300)).end, ProcessEnd::TimedOut);
  EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(10));
  // Killed children are taken away by the system; that may need a moment.
  const auto deadline = steady_clock::now() + std::chrono::seconds(5);
  while (!AllGone(mark) && steady_clock::now() < deadline) continue;
  EXPECT_TRUE(AllGone(mark));
}

TEST(Processes, ChildrenLeftByAProcessThatEndedAreKilledToo) {
  if (!std::filesystem::exists("/proc/self/cmdline")) GTEST_SKIP() << "needs /proc";
  const TestFolder folder;
  const std::string child = Script(folder, "child", "while true; do sleep 1; done");
  EXPECT_EQ(RunIt({Script(folder, "leave", child + " & exit 0")}).end, ProcessEnd::Exited);
  const auto deadline = steady_clock::now() + std::chrono::seconds(5);
  while (!AllGone(folder.Path().filename().string()) && steady_clock::now() < deadline) continue;
  EXPECT_TRUE(AllGone(folder.Path().filename().string()));
}

TEST(Processes, ProgramsAreFoundByPathAndByName) {
  const TestFolder folder;
  const std::string script = Script(folder, "kontorwerk-tool", "true");
  folder.Put("kontorwerk-text", "no program");
  EXPECT_EQ(FindProgram(script), script);
  EXPECT_EQ(FindProgram("kontorwerk-tool"), "");
  EXPECT_EQ(FindProgram("kontorwerk-tool", {"/nowhere", folder.Path().string()}), script);
  EXPECT_EQ(FindProgram("kontorwerk-text", {folder.Path().string()}), "");
  EXPECT_FALSE(FindProgram("sh").empty());
}

TEST(Processes, ALockIsHeldByOneAtATime) {
  const TestFolder folder;
  const std::string path = (folder.Path() / "lock").string();
  {
    const FileLock first(path, steady_clock::now());
    EXPECT_TRUE(first.IsHeld());
    EXPECT_FALSE(FileLock(path, steady_clock::now() + milliseconds(30)).IsHeld());
  }
  EXPECT_TRUE(FileLock(path, steady_clock::now()).IsHeld());
  EXPECT_FALSE(FileLock("/nowhere/lock", steady_clock::now()).IsHeld());
}

TEST(Processes, ATemporaryFolderGoesWithItsContent) {
  const TestFolder parent;
  std::string path;
  {
    const TemporaryFolder folder(parent.Path().string() + "/new");
    path = folder.Path();
    ASSERT_TRUE(WriteWholeFile(path + "/file", "x"));
  }
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(Processes, OldLeftoversAreRemovedAndNothingElse) {
  const TestFolder parent;
  for (const char* name : {"job-old", "job-new", "other-old"}) std::filesystem::create_directory(parent.Path() / name);
  const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(2);
  std::filesystem::last_write_time(parent.Path() / "job-old", old);
  std::filesystem::last_write_time(parent.Path() / "other-old", old);
  TemporaryFolder::RemoveLeftovers(parent.Path().string());
  EXPECT_EQ(parent.Names(), (std::vector<std::string>{"job-new", "other-old"}));
}

}  // namespace
}  // namespace kontorwerk
