// The word processor as both mains set it up: LibreOffice's work files lie in the user's cache folder, PDF files that
// were never saved elsewhere beside the program.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/WordXChange.h"
#include "store/FileSystem.h"

namespace kontorwerk {

// `programFolder` is UTF-8 and absolute; `open` shows a finished document to the user.
[[nodiscard]] std::unique_ptr<WordXChange> MakePapers(
    const FileSystemObject& files, const std::string& programFolder,
    std::function<bool(std::string_view path)> open = [](std::string_view) { return false; });

}  // namespace kontorwerk
