// A data folder with tables, on a disk that can be made to fail, for the operations of documents.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "store/RecordStore.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk::testing_support {

class DocumentFolder : public ::testing::Test {
 protected:
  DocumentFolder() { settings_.DBPath = folder_.DataPath(); }

  // The lines with their ends.
  void PutTable(std::string_view fileName, const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    folder_.Put(std::string(fileName), text);
  }
  [[nodiscard]] std::string Table(std::string_view fileName) const {
    return folder_.Content(std::string(fileName)).value_or("(missing)");
  }
  // Blank lines left out.
  [[nodiscard]] std::vector<std::string> Lines(std::string_view fileName) const {
    std::vector<std::string> lines;
    ForEachRow(Table(fileName), [&lines](std::string_view line) { lines.emplace_back(line); });
    return lines;
  }

  TestFolder folder_;
  FaultyDisk disk_;
  FileSystemObject files_{disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
};

}  // namespace kontorwerk::testing_support
