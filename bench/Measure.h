// How a measurement is told: a subject ("customer search, one hit"), and for each size the program's operation with its
// yardsticks beside it. Their names become "subject/measure/rows", which tools/bench turns into the table.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/Firm.h"

namespace kontorwerk::bench {

// The program's own measure, and the yardsticks that most subjects share.
inline constexpr std::string_view kProgram = "program";
inline constexpr std::string_view kScan = "read + scan";
inline constexpr std::string_view kGrep = "grep";
inline constexpr std::string_view kSqlite = "SQLite";
inline constexpr std::string_view kSqliteLine = "SQLite line";
inline constexpr std::string_view kSqliteColumns = "SQLite columns";
inline constexpr std::string_view kCopy = "synced copy";

// Runs once in each measured round. What it gives is compared with what the subject's other measures give for the same
// size, so that a yardstick cannot quietly do other work; nothing where there is nothing to compare.
using Operation = std::function<std::optional<long>(Firm& firm)>;

class Subject {
 public:
  explicit Subject(std::string name, std::vector<long> sizes = kSizes)
      : name_(std::move(name)), sizes_(std::move(sizes)) {}

  // Firms of single pieces instead of whole firms.
  Subject& WithSinglePieces();
  // Runs before each measurement, unmeasured.
  Subject& Preparing(std::function<void(Firm& firm)> prepare);
  // A measurement is so many rounds, for operations that write or start processes.
  Subject& Rounds(int rounds);
  Subject& Measure(std::string_view measure, Operation operation);
  // The same with an operation on the firm's twin, which is made before the measurement.
  Subject& MeasureSqlite(std::string_view measure, const Operation& operation);

  // The file read and searched for line ends; of several files all of them.
  Subject& BesideScan(std::vector<std::string_view> tables);
  Subject& BesideGrep(std::string_view table, std::string_view text);
  // LIKE over the line and over the columns of a table of the twin.
  Subject& BesideSqliteSearch(std::string_view twinTable, std::string_view text);
  // The table copied within the workshop.
  Subject& BesideCopy(std::string_view table);

 private:
  using Preparation = std::function<void(Firm& firm)>;
  Subject& Add(std::string_view measure, const Preparation& prepare, const Operation& operation);

  std::string name_;
  std::vector<long> sizes_;
  Preparation prepare_;
  int rounds_ = 0;
  bool singlePieces_ = false;
};

// Operations and programs outside the firms, with their own parameter in place of the number of rows; 0 rounds lets the
// library choose. `prepare` runs before each measurement, unmeasured.
void MeasureAlone(const std::string& subject, std::string_view measure, long parameter, int rounds,
                  std::function<std::optional<long>()> operation, std::function<void()> prepare = {});

}  // namespace kontorwerk::bench
