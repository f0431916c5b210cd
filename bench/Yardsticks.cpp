#include "bench/Yardsticks.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace kontorwerk::bench {
namespace {

// A descriptor that is closed with its scope.
class Handle {
 public:
  explicit Handle(int number) : number_(number) {}
  ~Handle() {
    if (number_ >= 0) ::close(number_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

struct Content {
  std::unique_ptr<char[]> bytes;  // null if the file cannot be read
  std::size_t size = 0;
};

Content ReadPlainly(const std::filesystem::path& file) {
  const Handle handle(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (::fstat(handle.Number(), &status) < 0) return {};
  Content content;
  content.bytes = std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(status.st_size));
  while (content.size < static_cast<std::size_t>(status.st_size)) {
    const ssize_t count = ::read(handle.Number(), content.bytes.get() + content.size,
                                 static_cast<std::size_t>(status.st_size) - content.size);
    if (count <= 0) return {};
    content.size += static_cast<std::size_t>(count);
  }
  return content;
}

bool WriteSynced(const std::filesystem::path& file, const Content& content) {
  const Handle handle(::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
  for (std::size_t written = 0; written < content.size;) {
    const ssize_t count = ::write(handle.Number(), content.bytes.get() + written, content.size - written);
    if (count <= 0) return false;
    written += static_cast<std::size_t>(count);
  }
  return ::fsync(handle.Number()) == 0;
}

bool SyncFolder(const std::filesystem::path& folder) {
  const Handle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return ::fsync(handle.Number()) == 0;
}

}  // namespace

long ReadAndScan(const std::filesystem::path& file) {
  const Content content = ReadPlainly(file);
  if (!content.bytes) return -1;
  long lines = 0;
  const char* const end = content.bytes.get() + content.size;
  for (const char* place = content.bytes.get(); place < end; ++place, ++lines) {
    place = static_cast<const char*>(std::memchr(place, '\n', static_cast<std::size_t>(end - place)));
    if (place == nullptr) break;
  }
  return lines;
}

long Grep(const std::filesystem::path& file, std::string_view text) {
  std::array<int, 2> pipe{};
  if (::pipe2(pipe.data(), O_CLOEXEC) != 0) return -1;
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
  std::string program = "grep", options = "-ciF", end = "--", wanted(text), path = file.string();
  const std::array<char*, 6> arguments = {program.data(), options.data(), end.data(),
                                          wanted.data(),  path.data(),    nullptr};
  std::string locale = "LC_ALL=C";
  const std::array<char*, 2> environment = {locale.data(), nullptr};
  pid_t child = 0;
  const int error = ::posix_spawnp(&child, "grep", &actions, nullptr, arguments.data(), environment.data());
  ::posix_spawn_file_actions_destroy(&actions);
  const Handle reading(pipe[0]);
  ::close(pipe[1]);
  if (error != 0) return -1;
  std::array<char, 32> answer{};
  const ssize_t length = ::read(reading.Number(), answer.data(), answer.size() - 1);
  ::waitpid(child, nullptr, 0);
  return length > 0 ? std::atol(answer.data()) : -1;
}

bool SyncedCopy(const std::filesystem::path& from, const std::filesystem::path& to) {
  const Content content = ReadPlainly(from);
  if (!content.bytes) return false;
  const std::filesystem::path temporary = to.string() + ".part";
  return WriteSynced(temporary, content) && ::rename(temporary.c_str(), to.c_str()) == 0 &&
         SyncFolder(to.parent_path());
}

}  // namespace kontorwerk::bench
