#include "shell/Templates.h"

#include "platform/EmbeddedFile.h"
#include "store/CodePage.h"
#include "store/Text.h"

namespace kontorwerk {

void ProvideTemplates(const FileSystemObject& files, const Settings& settings) {
  for (const EmbeddedFile& file : DefaultTemplates()) {
    const auto name = FromUtf8(file.name);
    if (!name) continue;
    const std::string path = Concat(settings.DBPath, *name);
    // A template that cannot be written is missing later, and the print then says so.
    if (!files.Exists(path)) (void)files.Write(path, file.bytes);
  }
}

}  // namespace kontorwerk
