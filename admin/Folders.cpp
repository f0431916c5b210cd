#include "admin/Folders.h"

#include <algorithm>
#include <cstdint>

#include "store/Numbers.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

constexpr std::string_view kSeparators = "\\/";
constexpr std::string_view kNewFolder = "Neuer Ordner";
constexpr int kDriveLength = 2;

bool IsDrive(std::string_view path) { return Len(path) == kDriveLength && path[1] == ':'; }

}  // namespace

std::vector<std::string> Drives(const FileSystemObject& files) {
  std::vector<std::string> drives = {"C:"};
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const std::string drive = {letter, ':'};
    if (letter != 'C' && files.IsFolder(Concat(drive, "\\"))) drives.push_back(drive);
  }
  if (files.IsFolder("/")) drives.emplace_back("/");
  return drives;
}

std::string DriveOf(std::string_view path) {
  if (IsDrive(Left(path, kDriveLength))) return UCase(Left(path, kDriveLength));
  return Left(path, 1) == "/" || Left(path, 1) == "\\" ? "/" : std::string();
}

std::vector<std::string> Subfolders(const FileSystemObject& files, std::string_view folder) {
  std::vector<std::string> names;
  for (const FolderEntry& entry : files.List(folder))
    if (entry.isFolder && !entry.name.starts_with('.')) names.push_back(entry.name);
  return names;
}

std::string FolderPath(std::string_view path) {
  return !path.empty() && kSeparators.find(path.back()) != std::string_view::npos ? std::string(path)
                                                                                  : Concat(path, "\\");
}

std::string PlainPath(std::string_view path) {
  std::string_view plain = path;
  while (plain.size() > 1 && kSeparators.find(plain.back()) != std::string_view::npos) plain.remove_suffix(1);
  return IsDrive(plain) ? Concat(plain, "\\") : std::string(plain);
}

std::string FolderAbove(std::string_view path) {
  const std::string plain = PlainPath(path);
  const std::size_t separator = plain.find_last_of(kSeparators);
  if (separator == std::string::npos || plain.size() == 1 || separator + 1 == plain.size()) return {};
  return PlainPath(Left(plain, static_cast<int>(separator) + 1));
}

std::string NewFolderName(const std::vector<std::string>& subfolders) {
  const std::string prefix = LCase(kNewFolder);
  const auto count = std::count_if(subfolders.begin(), subfolders.end(),
                                   [&](const std::string& name) { return LCase(name).starts_with(prefix); });
  return count == 0 ? std::string(kNewFolder) : Concat(kNewFolder, " ", NumberText(std::int64_t{count} + 1));
}

}  // namespace kontorwerk
