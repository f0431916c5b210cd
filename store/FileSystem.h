// The only way to a file. Paths come in the program's form (D:\Daten\, C:\Belege) in Windows-1252 or as absolute
// paths of the machine; names are found whatever their case. A file is written whole or not at all.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

// The calls to the operating system that a save consists of, so that tests can make each of them fail.
// Paths are UTF-8 of the machine; results are 0 or an errno value.
class Disk {
 public:
  virtual ~Disk() = default;
  // A new file for writing at `path`; the handle or -1.
  virtual int Create(const std::string& path, int& error) = 0;
  // Writes from `data`; the number of bytes taken or -1.
  virtual long Write(int handle, const char* data, std::size_t size, int& error) = 0;
  virtual int Sync(int handle) = 0;
  virtual int Close(int handle) = 0;
  // Gives `to` the access rights and the group of `from`, as far as the file system allows.
  virtual int CopyPermissions(const std::string& from, const std::string& to) = 0;
  virtual int Rename(const std::string& from, const std::string& to) = 0;
  virtual int Remove(const std::string& path) = 0;
  virtual int SyncFolder(const std::string& folder) = 0;
  // The whole content appended to `content`, read in one go; EIO if less came than the file's size says.
  virtual int Read(const std::string& path, std::string& content) = 0;
  // Waits a moment between two tries of a rename.
  virtual void Pause() = 0;
};

[[nodiscard]] std::unique_ptr<Disk> MakeSystemDisk();

enum class ReadStatus {
  Read,     // the text is the file's whole content
  Missing,  // no such file; the text is empty
  Failed,   // an input error or a short read, or not a file; the text is empty
};

struct ReadResult {
  ReadStatus status = ReadStatus::Missing;
  std::string text;
};

struct FolderEntry {
  std::string name;  // Windows-1252; names that do not fit are left out of listings
  std::uint64_t size = 0;
  bool isFolder = false;
};

class FileSystemObject {
 public:
  // The disk must outlive the object.
  explicit FileSystemObject(Disk& disk);

  // The machine's path (UTF-8) of a path in the program's form: backslashes become slashes, and each part that
  // exists in another case is taken as it exists (the exact name goes first). Drive C: is the user's home folder,
  // another drive X: is /media/x or /mnt/x, whichever is there. A path without drive and leading slash starts at
  // the process's current folder. Empty for a path that no file can have.
  [[nodiscard]] std::string MachinePath(std::string_view path) const;

  [[nodiscard]] ReadResult Read(std::string_view path) const;
  // Replaces the file by `text` or leaves it as it was: temporary file in the same folder, written, counted,
  // synced, closed, renamed over the target (bounded retry), folder synced. An existing file keeps the case of its
  // name, its access rights and, where it is a symbolic link, its real place. False on any failure, also for a
  // folder and for a file without any write permission; the old file is then as it was, save for one case: if
  // only the last step failed, the new text is in place but may not survive a power failure.
  [[nodiscard]] bool Write(std::string_view path, std::string_view text) const;
  // The same with a text in parts, which are never joined in memory: the parts of a large table are mostly its old text.
  [[nodiscard]] bool WriteParts(std::string_view path, const std::vector<std::string_view>& parts) const;
  // True for files and folders.
  [[nodiscard]] bool Exists(std::string_view path) const;
  [[nodiscard]] bool IsFolder(std::string_view path) const;
  // Nothing if there is no such file or it is a folder.
  [[nodiscard]] std::optional<std::uint64_t> Size(std::string_view path) const;
  // Files and folders of a folder in the order of their names, upper case like lower case; empty if it cannot be
  // read. Files of an unfinished Write are left out.
  [[nodiscard]] std::vector<FolderEntry> List(std::string_view folder) const;
  // True if the folder is there afterwards. Its parent must exist.
  [[nodiscard]] bool CreateFolder(std::string_view path) const;
  // Copies safely, as Write does, over an existing file too.
  [[nodiscard]] bool Copy(std::string_view from, std::string_view to) const;
  // Files only.
  [[nodiscard]] bool Remove(std::string_view path) const;
  // False if another file of the new name exists: nothing is overwritten.
  [[nodiscard]] bool Rename(std::string_view from, std::string_view to) const;
  // Removes what an interrupted Write left in the folder. A Write that is running at another workstation notices
  // that its temporary file is gone and begins anew.
  void RemoveLeftovers(std::string_view folder) const;

 private:
  Disk& disk_;
};

// The sum of the file sizes in `folder` (which ends with a backslash) for comma-separated names and masks, all
// compared in lower case. Kept: a mask compares the last three characters only, and a file that fits two
// patterns counts twice.
[[nodiscard]] std::uint64_t ListFolder(const FileSystemObject& files, std::string_view folder,
                                       std::string_view patterns);

}  // namespace kontorwerk
