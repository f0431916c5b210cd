// A folder of its own for one test, gone with the object, and plain file access beside the code under test.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk::testing_support {

class TestFolder {
 public:
  TestFolder()
      : path_(std::filesystem::temp_directory_path() / ("kontorwerk-test-" + std::to_string(std::random_device{}()))) {
    std::filesystem::create_directories(path_);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  ~TestFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  // The path in the program's form: with a closing backslash.
  [[nodiscard]] std::string DataPath() const { return path_.string() + "\\"; }
  [[nodiscard]] std::string DataPath(std::string_view name) const { return DataPath() + std::string(name); }

  void Put(const std::string& name, std::string_view content) const {
    std::ofstream file(path_ / name, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
  }
  // Nothing if there is no such file.
  [[nodiscard]] std::optional<std::string> Content(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    if (!file) return std::nullopt;
    std::string content(std::filesystem::file_size(path_ / name), '\0');
    file.read(content.data(), static_cast<std::streamsize>(content.size()));
    return content;
  }
  // Every name in the folder, hidden ones too, in order.
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace kontorwerk::testing_support
