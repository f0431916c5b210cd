// What the program's operations are held against: the least that has to be done with the same file by anybody.
#pragma once

#include <filesystem>
#include <string_view>

namespace kontorwerk::bench {

// Reads the whole file into fresh memory with plain read calls and looks for its line feeds by memchr; their number, or
// -1 if it cannot be read.
[[nodiscard]] long ReadAndScan(const std::filesystem::path& file);

// `grep -ciF` as a process of its own, in the C locale, its quickest: the number of lines that hold the text.
[[nodiscard]] long Grep(const std::filesystem::path& file, std::string_view text);

// The same bytes read, written to a temporary file beside `to`, synced, renamed over it, and the folder synced.
bool SyncedCopy(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace kontorwerk::bench
