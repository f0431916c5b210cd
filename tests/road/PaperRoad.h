// The road of a document from the screen to the paper: plays scripts through the operator's real windows with papers
// that are really made, in a small firm of its own, and reads what lies there afterwards.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tests/store/TestFolder.h"
#include "tests/word/CupsServer.h"

namespace kontorwerk::testing_support {

// One run of the operator. Texts are UTF-8 unless said otherwise.
class RoadRun {
 public:
  [[nodiscard]] const std::string& Output() const { return output_; }
  [[nodiscard]] int ExitCode() const { return exitCode_; }
  // A file below the program's folder, each of its Windows-1252 bytes a character; empty if there is none.
  [[nodiscard]] std::string File(const std::string& name) const;
  [[nodiscard]] std::string Path(const std::string& name) const { return (folder_.Path() / name).string(); }
  // The names in `belege`, where the firm keeps its papers, in order.
  [[nodiscard]] std::vector<std::string> Papers() const;
  // The pages' text of a paper's PDF file, `name` without its ending.
  [[nodiscard]] std::string Paper(const std::string& name) const;
  // The same of the document beside it, set anew by LibreOffice.
  [[nodiscard]] std::string DocumentPaper(const std::string& name) const;
  // The values of `key` in the record's events of that word-processor operation, in order.
  [[nodiscard]] std::vector<std::string> Words(std::string_view operation, std::string_view key) const;

 private:
  friend class PaperRoad;
  TestFolder folder_;
  std::string output_;
  int exitCode_ = -1;
};

// What the firm of a run is like.
struct RoadFirm {
  bool oneFormForAll = false;  // Einheitsbelege
  bool collate = false;        // Sortieren
};

enum class RoadMode { WindowsAndPaper, HeadlessRecord };

struct RoadPlay {
  RoadFirm firm = {};
  RoadMode mode = RoadMode::WindowsAndPaper;
  std::string firstInPath = {};  // a folder that goes before the PATH of this run
};

// The print system, the cache of LibreOffice and the firm that all cases share.
class PaperRoad {
 public:
  static PaperRoad& Shared();
  static void Close();

  // Runs the steps behind the firm's start, with customer 00100 taken over into a new document.
  void Play(RoadRun& run, std::string_view steps, const RoadPlay& play = {});

  [[nodiscard]] CupsServer& Cups() { return cups_; }
  [[nodiscard]] std::string CacheFolder() const { return cache_.Path().string(); }

 private:
  CupsServer cups_;
  TestFolder cache_;
};

// A text as a quoted argument of a step.
[[nodiscard]] std::string Quoted(std::string_view text);
// The steps that type a position into its row; an empty quantity or price is left out.
[[nodiscard]] std::string TypedRow(int row, std::string_view quantity, std::string_view text, std::string_view price);
// The steps that save and print as a delivery note and invoice: `choice` is the entry of the question.
[[nodiscard]] std::string PrintBoth(std::string_view printer, int copies, int choice, bool withoutPrices = false);
// Text without its blanks and line ends: a long line is broken where the paper ends.
[[nodiscard]] std::string WithoutBlanks(std::string_view text);

// A test that needs LibreOffice and the tools that read PDF files.
class PaperTest : public ::testing::Test {
 protected:
  void SetUp() override;
};

// ... and a printer.
class PrinterTest : public PaperTest {
 protected:
  void SetUp() override;
  static CupsServer& Cups() { return PaperRoad::Shared().Cups(); }
};

}  // namespace kontorwerk::testing_support

// Fails unless `text` holds `part`.
#define EXPECT_HOLDS(text, part) \
  EXPECT_NE((text).find(part), std::string::npos) << "no " << (part) << " in:\n" << (text)
#define EXPECT_LACKS(text, part) EXPECT_EQ((text).find(part), std::string::npos) << (part) << " is in:\n" << (text)
