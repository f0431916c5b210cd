// The benchmarks without windows; options are those of Google Benchmark.
#include <benchmark/benchmark.h>

#include <string_view>

#include "bench/Subjects.h"

int main(int argc, char** argv) {
  using namespace kontorwerk::bench;
  if (argc > 1 && std::string_view(argv[1]) == "--memory") return RunMemoryJob(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  AddPartnerSubjects();
  AddStockSubjects();
  AddStartSubjects();
  AddScreenSubjects();
  AddMemorySubjects();
  AddDocumentSubjects();
  AddPaperSubjects();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
