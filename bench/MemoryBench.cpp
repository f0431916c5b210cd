// The most memory a process ever holds while it searches or saves: each job runs in a process of its own and tells its
// high-water mark. The measure is that mark per byte of the table.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <ostream>
#include <string>

#include "bench/Fail.h"
#include "bench/Firm.h"
#include "bench/Rows.h"
#include "bench/Subjects.h"
#include "partners/KDsuchen.h"
#include "partners/PartnerScreens.h"
#include "partners/PartnerTable.h"
#include "platform/Context.h"
#include "platform/headless/EventLog.h"
#include "platform/headless/OperatorPlatform.h"
#include "store/Text.h"

namespace kontorwerk::bench {
namespace {

constexpr long kRows = 100000;
constexpr double kBytesOfAKilobyte = 1024;

// The screens of the customers alone: a start would read tables that have nothing to do with them.
void Search(Firm& firm, std::string_view text) {
  std::ostream nowhere(nullptr);
  EventLog log(nowhere);
  OperatorPlatform platform(log, firm.ProgramFolder().string(), nullptr);
  Desktop desktop;
  Settings settings;
  Context context{desktop, platform, firm.Store().Files(), firm.Store(), settings};
  const PartnerScreens screens(context);
  auto& search = static_cast<KDsuchen&>(*desktop.Find("KDsuchen"));
  search.Show();
  search.Fields.Box(partner::kName).UserText(text);
  search.Command1.UserClick();
  if (search.Suchergebnis.RowCount() == 0) Fail("the search has found nothing");
}

void Save(Firm& firm) {
  Partner partner = ReadPartner(CustomerRow(kRows / 2, kRows), CustomerKind());
  if (!ReplacePartner(firm.WorkshopStore(), CustomerKind(), partner)) Fail("the customer was not saved");
}

// In bytes.
double HighWaterMark() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word != "VmHWM:") continue;
    double kilobytes = 0;
    status >> kilobytes;
    return kilobytes * kBytesOfAKilobyte;
  }
  Fail("the high-water mark is unknown");
}

// Runs `--memory JOB FOLDER` of this program and reads the number that it prints.
double HighWaterMarkOf(const std::string& job, const Firm& firm) {
  const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
  const std::string command = Concat("'", program, "' --memory ", job, " '", firm.ProgramFolder().string(), "'");
  std::FILE* pipe = ::popen(command.c_str(), "r");
  std::array<char, 64> answer{};
  const bool told = pipe != nullptr && std::fgets(answer.data(), answer.size(), pipe) != nullptr;
  if (pipe == nullptr || ::pclose(pipe) != 0 || !told) Fail("a memory job has failed");
  return std::atof(answer.data());
}

void AddJob(const std::string& name, const std::string& job) {
  benchmark::RegisterBenchmark(Concat("Memory, ", name, "/memory/", std::to_string(kRows)).c_str(),
                               [job](benchmark::State& state) {
                                 Firm& firm = Firm::Of(kRows);
                                 firm.Restock(table::kCustomers);
                                 const auto size = std::filesystem::file_size(firm.TablePath(table::kCustomers));
                                 double mark = 0;
                                 for ([[maybe_unused]] auto _ : state) mark = HighWaterMarkOf(job, firm);
                                 state.counters["fileMB"] = static_cast<double>(size) / 1e6;
                                 state.counters["peakMB"] = mark / 1e6;
                               })
      ->Iterations(1)
      ->UseRealTime()
      ->Unit(benchmark::kMillisecond);
}

}  // namespace

int RunMemoryJob(int argc, char** argv) {
  if (argc < 4) Fail("--memory JOB FOLDER");
  const std::string_view job = argv[2];
  Firm firm(argv[3], kRows);
  if (job == "search") Search(firm, kRareText);
  if (job == "list") Search(firm, "");
  if (job == "save") Save(firm);
  std::cout << static_cast<long>(HighWaterMark()) << '\n';
  return 0;
}

void AddMemorySubjects() {
  AddJob("customer search, one hit", "search");
  AddJob("customer search, every customer listed", "list");
  AddJob("save a changed customer", "save");
  AddJob("program without any work", "nothing");
}

}  // namespace kontorwerk::bench
