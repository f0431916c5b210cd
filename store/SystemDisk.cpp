// The disk of the machine through POSIX. The only file of the store that calls the operating system directly;
// what a call means for a save is decided in FileSystem.cpp.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <thread>

#include "store/FileSystem.h"

namespace kontorwerk {
namespace {

constexpr std::chrono::milliseconds kRenamePause(50);
constexpr std::size_t kReadBeyondEnd = 4096;
// A text grows by so much at a time: what its growing sets to zero is then still in the processor's cache when the
// read overwrites it.
constexpr std::size_t kReadBlock = 256 * 1024;
// From this size on the memory of a text is asked for in large pages.
constexpr std::size_t kLargeText = 8 * 1024 * 1024;

// Calls again as long as a signal interrupts.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

int ErrorOf(int result) { return result < 0 ? errno : 0; }

// Reads up to `size` bytes to the end of `content`; the errno value, `taken` is what came.
int ReadPart(int handle, std::size_t size, std::string& content, std::size_t& taken) {
  const std::size_t start = content.size();
  taken = 0;
  while (taken < size) {
    content.resize(std::max(content.size(), start + taken + std::min(kReadBlock, size - taken)));
    char* const place = content.data() + start + taken;
    const std::size_t room = content.size() - start - taken;
    const ssize_t count = Uninterrupted([&] { return ::read(handle, place, room); });
    if (count < 0) return errno;
    if (count == 0) break;
    taken += static_cast<std::size_t>(count);
  }
  content.resize(start + taken);
  return 0;
}

// Fetching the memory of a large table page by page takes longer than reading it. A system without large pages goes on
// as before.
void AskForLargePages(const std::string& content) {
#ifdef MADV_HUGEPAGE
  if (content.capacity() < kLargeText) return;
  const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  const auto begin = (reinterpret_cast<std::uintptr_t>(content.data()) + page - 1) / page * page;
  const auto end = (reinterpret_cast<std::uintptr_t>(content.data()) + content.capacity()) / page * page;
  ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
#else
  static_cast<void>(content);
#endif
}

int ReadHandle(int handle, std::string& content) {
  struct stat status {};
  if (::fstat(handle, &status) < 0) return errno;
  if (S_ISDIR(status.st_mode)) return EISDIR;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  const auto expected = static_cast<std::size_t>(status.st_size);
  content.reserve(content.size() + expected + kReadBeyondEnd);
  AskForLargePages(content);
  std::size_t taken = 0;
  if (const int error = ReadPart(handle, expected, content, taken); error != 0) return error;
  if (taken < expected) return EIO;
  // What another workstation has added since the size was asked for belongs to the file as well.
  do {
    if (const int error = ReadPart(handle, kReadBeyondEnd, content, taken); error != 0) return error;
  } while (taken == kReadBeyondEnd);
  return 0;
}

class SystemDisk final : public Disk {
 public:
  int Create(const std::string& path, int& error) override {
    const int handle =
        Uninterrupted([&] { return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666); });
    error = ErrorOf(handle);
    return handle;
  }

  long Write(int handle, const char* data, std::size_t size, int& error) override {
    const ssize_t written = Uninterrupted([&] { return ::write(handle, data, size); });
    error = written < 0 ? errno : 0;
    return written;
  }

  int Sync(int handle) override {
    return ErrorOf(Uninterrupted([&] { return ::fsync(handle); }));
  }

  int Close(int handle) override {
    // An interrupted close has closed all the same.
    const int error = ErrorOf(::close(handle));
    return error == EINTR ? 0 : error;
  }

  int CopyPermissions(const std::string& from, const std::string& to) override {
    struct stat old {};
    struct stat fresh {};
    if (::stat(from.c_str(), &old) < 0 || ::stat(to.c_str(), &fresh) < 0) return errno;
    // The group first: a change of the group may take rights away.
    int error = 0;
    if (old.st_gid != fresh.st_gid) error = ErrorOf(::chown(to.c_str(), static_cast<uid_t>(-1), old.st_gid));
    if (::chmod(to.c_str(), old.st_mode & 07777U) < 0) error = errno;
    return error;
  }

  int Rename(const std::string& from, const std::string& to) override {
    return ErrorOf(::rename(from.c_str(), to.c_str()));
  }

  int Remove(const std::string& path) override { return ErrorOf(::unlink(path.c_str())); }

  int SyncFolder(const std::string& folder) override {
    const int handle = Uninterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (handle < 0) return errno;
    int error = Sync(handle);
    // Some network file systems cannot sync a folder and need not: their server does it with the rename.
    if (error == EINVAL || error == ENOTSUP) error = 0;
    Close(handle);
    return error;
  }

  int Read(const std::string& path, std::string& content) override {
    // Without blocking, so that a pipe of that name does not hold up the program.
    const int handle = Uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); });
    if (handle < 0) return errno;
    const int error = ReadHandle(handle, content);
    Close(handle);
    return error;
  }

  void Pause() override { std::this_thread::sleep_for(kRenamePause); }
};

}  // namespace

std::unique_ptr<Disk> MakeSystemDisk() { return std::make_unique<SystemDisk>(); }

}  // namespace kontorwerk
