#include "bench/Measure.h"

#include <benchmark/benchmark.h>

#include <map>
#include <utility>

#include "bench/Fail.h"
#include "bench/Yardsticks.h"
#include "store/Text.h"

namespace kontorwerk::bench {
namespace {

// What the measures of a subject have given for a size so far.
std::map<std::string, long>& Results() {
  static std::map<std::string, long> results;
  return results;
}

void Compare(benchmark::State& state, const std::string& subject, long parameter, std::optional<long> result) {
  if (!result) return;
  const auto [entry, isNew] = Results().emplace(Concat(subject, "/", std::to_string(parameter)), *result);
  if (isNew || entry->second == *result) return;
  state.SkipWithError(Concat("gives ", std::to_string(*result), " instead of ", std::to_string(entry->second)).c_str());
}

void Register(const std::string& subject, std::string_view measure, long parameter, int rounds,
              std::function<void()> prepare, std::function<std::optional<long>()> operation) {
  auto* registered = benchmark::RegisterBenchmark(Concat(subject, "/", measure, "/", std::to_string(parameter)).c_str(),
                                                  [=](benchmark::State& state) {
                                                    if (prepare) prepare();
                                                    std::optional<long> result;
                                                    for ([[maybe_unused]] auto _ : state) result = operation();
                                                    Compare(state, subject, parameter, result);
                                                  });
  registered->UseRealTime()->Unit(benchmark::kMillisecond);
  if (rounds > 0) registered->Iterations(rounds);
}

}  // namespace

Subject& Subject::WithSinglePieces() {
  singlePieces_ = true;
  return *this;
}

Subject& Subject::Preparing(std::function<void(Firm& firm)> prepare) {
  prepare_ = std::move(prepare);
  return *this;
}

Subject& Subject::Rounds(int rounds) {
  rounds_ = rounds;
  return *this;
}

Subject& Subject::Measure(std::string_view measure, Operation operation) { return Add(measure, prepare_, operation); }

Subject& Subject::MeasureSqlite(std::string_view measure, const Operation& operation) {
  return Add(
      measure, [](Firm& firm) { (void)firm.Twin(); }, operation);
}

Subject& Subject::Add(std::string_view measure, const Preparation& prepare, const Operation& operation) {
  for (const long rows : sizes_) {
    const auto firm = [rows, single = singlePieces_]() -> Firm& {
      return single ? Firm::OfSinglePieces(rows) : Firm::Of(rows);
    };
    Register(
        name_, measure, rows, rounds_,
        [firm, prepare] {
          Firm& made = firm();
          if (prepare) prepare(made);
        },
        [firm, operation] { return operation(firm()); });
  }
  return *this;
}

Subject& Subject::BesideScan(std::vector<std::string_view> tables) {
  return Measure(kScan, [tables = std::move(tables)](Firm& firm) -> std::optional<long> {
    for (const std::string_view table : tables)
      if (ReadAndScan(firm.TablePath(table)) < 0) Fail("a table cannot be read");
    return std::nullopt;
  });
}

Subject& Subject::BesideGrep(std::string_view table, std::string_view text) {
  return Measure(kGrep, [=](Firm& firm) { return Grep(firm.TablePath(table), text); });
}

Subject& Subject::BesideSqliteSearch(std::string_view twinTable, std::string_view text) {
  MeasureSqlite(kSqliteLine, [=](Firm& firm) { return firm.Twin().RowsLike(twinTable, text); });
  return MeasureSqlite(kSqliteColumns, [=](Firm& firm) { return firm.Twin().RowsLikeInColumns(twinTable, text); });
}

Subject& Subject::BesideCopy(std::string_view table) {
  return Measure(kCopy, [=](Firm& firm) -> std::optional<long> {
    const auto copy = firm.WorkshopTablePath(table);
    if (!SyncedCopy(copy, copy)) Fail("a table cannot be copied");
    return std::nullopt;
  });
}

void MeasureAlone(const std::string& subject, std::string_view measure, long parameter, int rounds,
                  std::function<std::optional<long>()> operation, std::function<void()> prepare) {
  Register(subject, measure, parameter, rounds, std::move(prepare), std::move(operation));
}

}  // namespace kontorwerk::bench
