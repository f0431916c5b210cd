// Processes, locks and folders of the operating system (POSIX).
#include "platform/word/Processes.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <thread>

extern char** environ;

namespace kontorwerk {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPause{5};
constexpr int kNotStartedCode = 127;
constexpr std::size_t kLongestOutput = 64 * 1024;
constexpr std::string_view kFolderPrefix = "job-";

// Everything the child needs, made before the fork: behind it nothing may be allocated.
struct PreparedCall {
  explicit PreparedCall(const ProcessCall& call) : folder(call.folder) {
    for (const std::string& argument : call.arguments) arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    for (const std::string& entry : call.environment) environment.push_back(const_cast<char*>(entry.c_str()));
    for (char** entry = environ; *entry != nullptr; ++entry)
      if (!IsReplaced(call, *entry)) environment.push_back(*entry);
    environment.push_back(nullptr);
  }
  static bool IsReplaced(const ProcessCall& call, std::string_view entry) {
    const std::string_view name = entry.substr(0, entry.find('=') + 1);
    return std::any_of(call.environment.begin(), call.environment.end(),
                       [&](const std::string& own) { return own.starts_with(name); });
  }
  const std::string& folder;
  std::vector<char*> arguments;
  std::vector<char*> environment;
};

[[noreturn]] void BecomeChild(const PreparedCall& call, int outputHandle, pid_t parent) {
  setpgid(0, 0);
#ifdef __linux__
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(kNotStartedCode);
#else
  (void)parent;
#endif
  const int input = open("/dev/null", O_RDONLY);
  if (input >= 0) dup2(input, STDIN_FILENO);
  dup2(outputHandle, STDOUT_FILENO);
  dup2(outputHandle, STDERR_FILENO);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  signal(SIGPIPE, SIG_DFL);
  if (!call.folder.empty() && chdir(call.folder.c_str()) != 0) _exit(kNotStartedCode);
  execve(call.arguments[0], call.arguments.data(), call.environment.data());
  _exit(kNotStartedCode);
}

// Waits until the process has ended, without taking its result: its number stays taken, so that the group can be
// killed safely. False if the time was up or it cannot be waited for.
bool WaitForEnd(pid_t process, Clock::time_point deadline) {
  while (true) {
    siginfo_t info{};
    const int result = waitid(P_PID, static_cast<id_t>(process), &info, WEXITED | WNOHANG | WNOWAIT);
    if (result == 0 && info.si_pid == process) return true;
    if (result != 0 && errno != EINTR) return false;
    if (Clock::now() >= deadline) return false;
    std::this_thread::sleep_for(kPause);
  }
}

void RemoveOlderThan(const std::string& folder, std::chrono::hours age, bool (*isMeant)(const fs::path&)) {
  std::error_code error;
  const auto limit = fs::file_time_type::clock::now() - age;
  std::vector<fs::path> old;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    if (isMeant(entry->path()) && fs::last_write_time(entry->path(), ignored) < limit) old.push_back(entry->path());
  }
  for (const fs::path& path : old) fs::remove_all(path, error);
}

std::string ReadOutput(std::FILE* file) {
  std::string output(kLongestOutput, '\0');
  std::rewind(file);
  output.resize(std::fread(output.data(), 1, output.size(), file));
  return output;
}

}  // namespace

ProcessResult RunProcess(const ProcessCall& call) {
  ProcessResult result;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(std::tmpfile(), &std::fclose);
  if (call.arguments.empty() || output == nullptr) return result;
  const PreparedCall prepared(call);
  const auto deadline = Clock::now() + call.limit;
  const pid_t parent = getpid();
  const pid_t child = fork();
  if (child < 0) return result;
  if (child == 0) BecomeChild(prepared, fileno(output.get()), parent);
  setpgid(child, child);  // in case the child has not come to it yet

  const bool hasEnded = WaitForEnd(child, deadline);
  kill(-child, SIGKILL);
  int status = 0;
  pid_t waited = 0;
  while ((waited = waitpid(child, &status, 0)) < 0 && errno == EINTR) continue;
  result.end = hasEnded ? ProcessEnd::Failed : ProcessEnd::TimedOut;
  if (hasEnded && waited == child && WIFEXITED(status)) {
    result.exitCode = WEXITSTATUS(status);
    result.end = result.exitCode == kNotStartedCode ? ProcessEnd::NotStarted : ProcessEnd::Exited;
  }
  result.output = ReadOutput(output.get());
  return result;
}

bool StartDetached(const std::vector<std::string>& arguments) {
  if (arguments.empty() || access(arguments[0].c_str(), X_OK) != 0) return false;
  ProcessCall call;
  call.arguments = arguments;
  const PreparedCall prepared(call);
  const pid_t middle = fork();
  if (middle < 0) return false;
  if (middle == 0) {
    setsid();
    if (fork() != 0) _exit(0);
    execve(prepared.arguments[0], prepared.arguments.data(), prepared.environment.data());
    _exit(kNotStartedCode);
  }
  int status = 0;
  while (waitpid(middle, &status, 0) < 0 && errno == EINTR) continue;
  return true;
}

std::string FindProgram(std::string_view name, const std::vector<std::string>& folders) {
  const auto canRun = [](const std::string& path) {
    std::error_code error;
    return fs::is_regular_file(path, error) && access(path.c_str(), X_OK) == 0;
  };
  if (name.find('/') != std::string_view::npos) return canRun(std::string(name)) ? std::string(name) : std::string();
  const char* const variable = std::getenv("PATH");
  std::vector<std::string> places;
  for (std::string_view rest = variable == nullptr ? "" : variable; !rest.empty();) {
    const std::size_t colon = std::min(rest.find(':'), rest.size());
    places.emplace_back(rest.substr(0, colon));
    rest.remove_prefix(std::min(colon + 1, rest.size()));
  }
  places.insert(places.end(), folders.begin(), folders.end());
  for (const std::string& place : places) {
    std::string path = place + "/" + std::string(name);
    if (!place.empty() && canRun(path)) return path;
  }
  return {};
}

FileLock::FileLock(const std::string& path, Clock::time_point deadline) {
  handle_ = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  while (handle_ >= 0 && flock(handle_, LOCK_EX | LOCK_NB) != 0) {
    if ((errno == EWOULDBLOCK || errno == EINTR) && Clock::now() < deadline) {
      std::this_thread::sleep_for(kPause);
      continue;
    }
    close(handle_);
    handle_ = -1;
  }
}

FileLock::~FileLock() {
  if (handle_ >= 0) close(handle_);
}

TemporaryFolder::TemporaryFolder(const std::string& parent) {
  std::error_code error;
  fs::create_directories(parent, error);
  std::string path = parent + "/" + std::string(kFolderPrefix) + "XXXXXX";
  if (mkdtemp(path.data()) != nullptr) path_ = path;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code error;
  if (!path_.empty()) fs::remove_all(path_, error);
}

void TemporaryFolder::RemoveLeftovers(const std::string& parent) {
  RemoveOlderThan(parent, std::chrono::hours(1),
                  [](const fs::path& path) { return path.filename().string().starts_with(kFolderPrefix); });
}

void RemoveOldFiles(const std::string& folder, std::chrono::hours age) {
  RemoveOlderThan(folder, age, [](const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
  });
}

std::optional<std::string> ReadWholeFile(const std::string& path) {
  std::error_code error;
  if (!fs::is_regular_file(path, error)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file.is_open() || file.bad()) return std::nullopt;
  return content;
}

bool WriteWholeFile(const std::string& path, std::string_view content) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  file.close();
  return !file.fail();
}

}  // namespace kontorwerk
