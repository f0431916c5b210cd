// Finding files by the paths of the program and saving them safely. The calls of a save go through Disk; looking
// for names goes through the standard library.
#include "store/FileSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <system_error>
#include <tuple>
#include <utility>

#include "store/CodePage.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

namespace fs = std::filesystem;

// Unfinished writes. No mask of the program takes this name, and a leading dot hides it from the user.
constexpr std::string_view kTemporaryPrefix = ".kontorwerk-";
constexpr std::string_view kTemporarySuffix = ".part";
constexpr std::size_t kTemporaryLetters = 6;

constexpr int kNameAttempts = 100;
constexpr int kWriteAttempts = 3;
constexpr int kRenameAttempts = 5;
constexpr int kMostLinks = 40;
// Parts of a text are collected to pieces of this size; a part that is longer is written as it is.
constexpr std::size_t kWriteBuffer = 256 * 1024;

// --- Paths ---------------------------------------------------------------------------------------------------------

std::string HomeFolder() {
  const char* home = std::getenv("HOME");
  return home != nullptr && *home != '\0' ? home : "/";
}

bool IsFolderAt(const std::string& machinePath) {
  std::error_code error;
  return fs::is_directory(machinePath, error);
}

std::string MountFolder(char letter) {
  const std::string lower = LCase(std::string_view(&letter, 1));
  const std::string media = Concat("/media/", lower);
  return IsFolderAt(media) ? media : Concat("/mnt/", lower);
}

bool StartsWithDrive(std::string_view path) {
  return path.size() >= 2 && path[1] == ':' && LCase(path.substr(0, 1)) != UCase(path.substr(0, 1)) &&
         static_cast<unsigned char>(path[0]) < 0x80;
}

// The path with slashes and without a drive, every part in the case in which it was given.
std::string WithSlashes(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) return {};
  std::string slashed = ToUtf8(path);
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  if (!StartsWithDrive(path)) return slashed;
  const std::string folder = UCase(path.substr(0, 1)) == "C" ? HomeFolder() : MountFolder(path[0]);
  const std::string_view rest = std::string_view(slashed).substr(2);
  return Concat(folder, rest.empty() || rest.front() == '/' ? "" : "/", rest);
}

// A path as it exists. Not `certain` if the machine could not tell, for example because a network folder did not
// answer: then the file must count as there but unreadable, never as missing.
struct FoundPath {
  std::string path;
  bool certain = true;
};

enum class Presence { There, Missing, Unknown };

Presence PresenceOf(const std::string& machinePath) {
  std::error_code error;
  const fs::file_status status = fs::symlink_status(machinePath, error);
  if (status.type() == fs::file_type::not_found) return Presence::Missing;
  return status.type() == fs::file_type::none ? Presence::Unknown : Presence::There;
}

// Calls `visit` with each entry of a folder; false if the folder could not be read to its end.
template <typename Visit>
bool ForEachEntry(const std::string& folder, std::error_code& error, Visit visit) {
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) visit(*entry);
  return !error;
}

// The name in `folder` that differs from `name` by its case only, the first in order if there are several; empty
// if there is none.
FoundPath NameInOtherCase(const std::string& folder, const std::string& name) {
  FoundPath found;
  const std::optional<std::string> text = FromUtf8(name);
  if (!text) return found;
  const std::string wanted = LCase(*text);
  std::error_code error;
  ForEachEntry(folder, error, [&](const fs::directory_entry& entry) {
    std::string candidate = entry.path().filename().string();
    const std::optional<std::string> candidateText = FromUtf8(candidate);
    if (!candidateText || LCase(*candidateText) != wanted) return;
    if (found.path.empty() || candidate < found.path) found.path = std::move(candidate);
  });
  const bool readable = error != std::errc::permission_denied && error != std::errc::not_a_directory;
  found.certain = !error || !readable;
  return found;
}

// Walks down the parts of the path and takes each as it exists.
FoundPath FindPath(const std::string& slashed) {
  if (slashed.empty()) return {};
  const Presence exact = PresenceOf(slashed);
  if (exact != Presence::Missing) return {slashed, exact == Presence::There};
  std::string found = slashed.front() == '/' ? "/" : "";
  for (std::size_t start = found.size(); start < slashed.size();) {
    const std::size_t end = std::min(slashed.find('/', start), slashed.size());
    const std::string name = slashed.substr(start, end - start);
    const Presence presence = PresenceOf(found + name);
    if (presence == Presence::Unknown) return {found + slashed.substr(start), false};
    if (presence == Presence::Missing) {
      const FoundPath other = NameInOtherCase(found.empty() ? "." : found, name);
      if (other.path.empty()) return {found + slashed.substr(start), other.certain};
      found += other.path;
    } else {
      found += name;
    }
    if (end < slashed.size()) found += '/';
    start = end + 1;
  }
  return {found, true};
}

FoundPath Find(std::string_view path) { return FindPath(WithSlashes(path)); }

// Where a chain of symbolic links ends, whether that exists or not; empty for a circle.
std::string BehindLinks(std::string path) {
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error))) return path;
    const fs::path target = fs::read_symlink(path, error);
    if (error) return {};
    path = (fs::path(path).parent_path() / target).string();
  }
  return {};
}

std::string FolderOf(const std::string& machinePath) {
  const std::string folder = fs::path(machinePath).parent_path().string();
  return folder.empty() ? "." : folder;
}

// --- Saving --------------------------------------------------------------------------------------------------------

std::string TemporaryName() {
  static std::mt19937_64 generator{std::random_device{}()};
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
  std::uniform_int_distribution<std::size_t> letter(0, kLetters.size() - 1);
  std::string middle;
  while (middle.size() < kTemporaryLetters) middle.push_back(kLetters[letter(generator)]);
  return Concat(kTemporaryPrefix, middle, kTemporarySuffix);
}

bool IsTemporaryName(std::string_view name) {
  return name.size() == kTemporaryPrefix.size() + kTemporaryLetters + kTemporarySuffix.size() &&
         name.substr(0, kTemporaryPrefix.size()) == kTemporaryPrefix &&
         name.substr(name.size() - kTemporarySuffix.size()) == kTemporarySuffix;
}

// A save in its steps. Invariants: (1) the target is touched by one rename only, and that after its new content
// has been written whole, synced and closed without an error; (2) the temporary file is removed on each way out
// that did not rename it.
class Save {
 public:
  using Parts = std::vector<std::string_view>;

  Save(Disk& disk, std::string target) : disk_(disk), target_(std::move(target)), folder_(FolderOf(target_)) {}

  bool Run(const Parts& parts) {
    for (int attempt = 0; attempt < kWriteAttempts; ++attempt) {
      if (!WriteTemporary(parts)) return false;
      const int error = RenameWithRetry();
      if (error == 0) return disk_.SyncFolder(folder_) == 0;
      disk_.Remove(temporary_);
      // Another workstation has just cleaned up behind a crash and taken our file with it: once more.
      if (error != ENOENT) return false;
    }
    return false;
  }

 private:
  bool WriteTemporary(const Parts& parts) {
    const int handle = CreateTemporary();
    if (handle < 0) return false;
    // Best effort: a file system without rights of its own refuses, and the save is good all the same.
    if (PresenceOf(target_) == Presence::There) disk_.CopyPermissions(target_, temporary_);
    const bool written = WriteAll(handle, parts) && disk_.Sync(handle) == 0;
    const bool closed = disk_.Close(handle) == 0;
    if (!written || !closed) disk_.Remove(temporary_);
    return written && closed;
  }

  int CreateTemporary() {
    for (int attempt = 0; attempt < kNameAttempts; ++attempt) {
      temporary_ = Concat(folder_, "/", TemporaryName());
      int error = 0;
      const int handle = disk_.Create(temporary_, error);
      if (handle >= 0 || error != EEXIST) return handle;
    }
    return -1;
  }

  bool WriteAll(int handle, const Parts& parts) {
    std::string buffer;
    for (const std::string_view part : parts) {
      if (buffer.size() + part.size() <= kWriteBuffer) {
        buffer.append(part);
      } else if (!WritePiece(handle, std::exchange(buffer, {})) || !WritePiece(handle, part)) {
        return false;
      }
    }
    return WritePiece(handle, buffer);
  }

  bool WritePiece(int handle, std::string_view text) {
    while (!text.empty()) {
      int error = 0;
      const long written = disk_.Write(handle, text.data(), text.size(), error);
      if (written <= 0 || static_cast<std::size_t>(written) > text.size()) return false;
      text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }

  // A scanner or another workstation may hold the target for a moment.
  int RenameWithRetry() {
    int error = disk_.Rename(temporary_, target_);
    for (int attempt = 1; attempt < kRenameAttempts && error != 0 && error != ENOENT; ++attempt) {
      disk_.Pause();
      error = disk_.Rename(temporary_, target_);
    }
    return error;
  }

  Disk& disk_;
  const std::string target_;
  const std::string folder_;
  std::string temporary_;
};

// A save may make a file or replace one: no folder, no device, and no file that nobody may write, its owner
// included, for that one the user has protected.
bool MayBeReplaced(const std::string& machinePath) {
  std::error_code error;
  const fs::file_status status = fs::status(machinePath, error);
  if (status.type() == fs::file_type::not_found) return true;
  constexpr fs::perms kAnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  return fs::is_regular_file(status) && (status.permissions() & kAnyWrite) != fs::perms::none;
}

std::optional<std::uint64_t> SizeAt(const fs::path& machinePath) {
  std::error_code error;
  if (!fs::is_regular_file(machinePath, error)) return std::nullopt;
  const std::uintmax_t size = fs::file_size(machinePath, error);
  return error ? std::nullopt : std::optional<std::uint64_t>(size);
}

std::optional<FolderEntry> EntryOf(const fs::directory_entry& entry) {
  const std::string name = entry.path().filename().string();
  const std::optional<std::string> text = FromUtf8(name);
  if (!text || IsTemporaryName(name)) return std::nullopt;
  std::error_code error;
  if (entry.is_directory(error)) return FolderEntry{*text, 0, true};
  const std::optional<std::uint64_t> size = SizeAt(entry.path());
  return size ? std::optional(FolderEntry{*text, *size, false}) : std::nullopt;
}

}  // namespace

FileSystemObject::FileSystemObject(Disk& disk) : disk_(disk) {}

std::string FileSystemObject::MachinePath(std::string_view path) const { return Find(path).path; }

ReadResult FileSystemObject::Read(std::string_view path) const {
  const FoundPath found = Find(path);
  if (!found.certain) return {ReadStatus::Failed, {}};
  if (found.path.empty()) return {};
  ReadResult result;
  const int error = disk_.Read(found.path, result.text);
  if (error == 0) {
    result.status = ReadStatus::Read;
  } else {
    result.status = error == ENOENT || error == ENOTDIR ? ReadStatus::Missing : ReadStatus::Failed;
    result.text.clear();
  }
  return result;
}

bool FileSystemObject::Write(std::string_view path, std::string_view text) const { return WriteParts(path, {text}); }

bool FileSystemObject::WriteParts(std::string_view path, const std::vector<std::string_view>& parts) const {
  const FoundPath found = Find(path);
  const std::string target = BehindLinks(found.path);
  if (!found.certain || target.empty() || target.back() == '/') return false;
  return MayBeReplaced(target) && Save(disk_, target).Run(parts);
}

bool FileSystemObject::Exists(std::string_view path) const {
  std::error_code error;
  return fs::exists(MachinePath(path), error);
}

bool FileSystemObject::IsFolder(std::string_view path) const { return IsFolderAt(MachinePath(path)); }

std::optional<std::uint64_t> FileSystemObject::Size(std::string_view path) const { return SizeAt(MachinePath(path)); }

std::vector<FolderEntry> FileSystemObject::List(std::string_view folder) const {
  std::vector<std::pair<std::string, FolderEntry>> entries;
  std::error_code error;
  const bool complete = ForEachEntry(MachinePath(folder), error, [&](const fs::directory_entry& found) {
    if (std::optional<FolderEntry> entry = EntryOf(found)) entries.emplace_back(UCase(entry->name), std::move(*entry));
  });
  if (!complete) return {};
  std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
    return std::tie(a.first, a.second.name) < std::tie(b.first, b.second.name);
  });
  std::vector<FolderEntry> result;
  result.reserve(entries.size());
  for (auto& entry : entries) result.push_back(std::move(entry.second));
  return result;
}

bool FileSystemObject::CreateFolder(std::string_view path) const {
  const std::string folder = MachinePath(path);
  std::error_code error;
  return !folder.empty() && (fs::create_directory(folder, error) || IsFolderAt(folder));
}

bool FileSystemObject::Copy(std::string_view from, std::string_view to) const {
  const ReadResult source = Read(from);
  return source.status == ReadStatus::Read && Write(to, source.text);
}

bool FileSystemObject::Remove(std::string_view path) const {
  const FoundPath found = Find(path);
  return found.certain && !found.path.empty() && disk_.Remove(found.path) == 0;
}

bool FileSystemObject::Rename(std::string_view from, std::string_view to) const {
  const FoundPath source = Find(from);
  FoundPath target = Find(to);
  if (!source.certain || !target.certain || source.path.empty() || target.path.empty()) return false;
  if (source.path == target.path) {
    // The same file: only the case of its name may change.
    target.path = (fs::path(source.path).parent_path() / fs::path(WithSlashes(to)).filename()).string();
  } else if (PresenceOf(target.path) != Presence::Missing) {
    return false;
  }
  return disk_.Rename(source.path, target.path) == 0 && disk_.SyncFolder(FolderOf(target.path)) == 0;
}

void FileSystemObject::RemoveLeftovers(std::string_view folder) const {
  std::vector<std::string> leftovers;
  std::error_code error;
  ForEachEntry(MachinePath(folder), error, [&](const fs::directory_entry& entry) {
    if (IsTemporaryName(entry.path().filename().string())) leftovers.push_back(entry.path().string());
  });
  for (const std::string& leftover : leftovers) disk_.Remove(leftover);
}

std::uint64_t ListFolder(const FileSystemObject& files, std::string_view folder, std::string_view patterns) {
  const std::vector<FolderEntry> entries = files.List(folder);
  std::uint64_t total = 0;
  for (const std::string_view pattern : Split(patterns, ",")) {
    const std::string wanted = LCase(pattern);
    const bool isMask = Left(wanted, 1) == "*";
    for (const FolderEntry& entry : entries) {
      const std::string name = LCase(entry.name);
      const bool counts = isMask ? Right(name, 3) == Right(wanted, 3) : name == wanted;
      if (counts && !entry.isFolder) total += files.Size(Concat(folder, entry.name)).value_or(0);
    }
  }
  return total;
}

}  // namespace kontorwerk
