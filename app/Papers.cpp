#include "app/Papers.h"

#include <cstdlib>
#include <utility>

#include "platform/word/WordProcessor.h"
#include "store/CodePage.h"

namespace kontorwerk {

namespace {

std::string CacheFolder(const std::string& programFolder) {
  if (const char* cache = std::getenv("XDG_CACHE_HOME"); cache && *cache == '/')
    return std::string(cache) + "/kontorwerk";
  if (const char* home = std::getenv("HOME"); home && *home == '/') return std::string(home) + "/.cache/kontorwerk";
  return programFolder + "/.cache";
}

}  // namespace

std::unique_ptr<WordXChange> MakePapers(const FileSystemObject& files, const std::string& programFolder,
                                        std::function<bool(std::string_view path)> open) {
  const std::string folder = FromUtf8(programFolder).value_or(programFolder) + "\\";
  return MakeWordProcessor(files, CacheFolder(programFolder), folder, std::move(open));
}

}  // namespace kontorwerk
