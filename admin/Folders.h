// Folders as the folder chooser walks through them: drives, subfolders, one level up, a new folder's name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/FileSystem.h"

namespace kontorwerk {

// Stands in a list of folders for the one above.
inline constexpr std::string_view kFolderAbove = "..";

// The drives at hand, "C:" in front of the mounted ones by their letters; "/" where the machine has such a root.
[[nodiscard]] std::vector<std::string> Drives(const FileSystemObject& files);
// The entry of Drives that a path lies on; empty for a relative path.
[[nodiscard]] std::string DriveOf(std::string_view path);
// The names of the folders in `folder`, in their order; hidden ones (with a leading point) are left out.
[[nodiscard]] std::vector<std::string> Subfolders(const FileSystemObject& files, std::string_view folder);
// The path with exactly one separator behind it, a backslash unless there is one of either kind already.
[[nodiscard]] std::string FolderPath(std::string_view path);
// The path without closing separators, but "C:\" and "/" as they are.
[[nodiscard]] std::string PlainPath(std::string_view path);
// The folder above, plain; empty for a drive, for "/" and for a single relative name.
[[nodiscard]] std::string FolderAbove(std::string_view path);
// "Neuer Ordner", or with a number behind it, one more than there are folders whose name begins so.
[[nodiscard]] std::string NewFolderName(const std::vector<std::string>& subfolders);

}  // namespace kontorwerk
