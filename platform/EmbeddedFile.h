// Files that travel inside the program: the default templates of documents.
#pragma once

#include <string_view>
#include <vector>

namespace kontorwerk {

struct EmbeddedFile {
  std::string_view name;  // UTF-8
  std::string_view bytes;
};

// The templates for every kind of paper, under the names that the data folder uses.
[[nodiscard]] const std::vector<EmbeddedFile>& DefaultTemplates();

}  // namespace kontorwerk
