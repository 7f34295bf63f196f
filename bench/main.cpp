// Runs the benchmarks and prints the ratios that have to hold.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <map>
#include <string>

namespace {

/// Keeps the time of each benchmark while it prints as usual.
class Keeper : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) times[run.benchmark_name()] = run.GetAdjustedCPUTime();
    ConsoleReporter::ReportRuns(runs);
  }

  std::map<std::string, double> times;
};

struct Ratio {
  const char* what;
  const char* measured;
  const char* against;
  double bound;
};

constexpr std::array kRatios = std::to_array<Ratio>({
    {"vented sweep / plain growing loop", "SweepVentedBox", "SweepVentedPlain", 0.6},
    {"closed sweep / plain growing loop", "SweepClosedBox", "SweepClosedPlain", 0.6},
    {"whole redesign / one sweep", "WholeRedesign", "SweepVentedBox", 2.0},
    {"all curves / their functions alone", "AllCurves", "AllCurvesFunctions", 1.5},
    {"reading a measurement / ifstream >>", "ReadMeasurement", "ReadByStream", 0.2},
    {"reading a measurement / from_chars", "ReadMeasurement", "ReadByFromChars", 1.5},
    {"whole import / reading alone", "ImportMeasurement", "ReadMeasurement", 2.0},
});

}  // namespace

int main(int count, char** words) {
  benchmark::Initialize(&count, words);
  Keeper keeper;
  benchmark::RunSpecifiedBenchmarks(&keeper);
  std::printf("\n%-42s %8s %8s\n", "Ratio", "is", "at most");
  for (const Ratio& ratio : kRatios) {
    const auto measured = keeper.times.find(ratio.measured);
    const auto against = keeper.times.find(ratio.against);
    if (measured == keeper.times.end() || against == keeper.times.end()) continue;
    const double is = measured->second / against->second;
    std::printf("%-42s %8.2f %8.2f%s\n", ratio.what, is, ratio.bound, is > ratio.bound ? "  MISSED" : "");
  }
  return 0;
}
