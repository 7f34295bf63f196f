// Reading a measurement of about 60,000 rows.
#include <benchmark/benchmark.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "files/impedance_file.h"
#include "support/desk.h"
#include "transducer/impedance_import.h"

namespace zefirondo {
namespace {

/// A resonance at 32 Hz over a rising modulus, 1.4 MB.
std::string SampleMeasurement() {
  std::string text = ";Freq(Hz)  Impedance(Ohm)\r\n";
  double f = 0.3662;
  while (text.size() < 1400000) {
    f += 0.3324;
    const double q = 3.8 * (f / 32 - 32 / f);
    char line[64];
    const int length = std::snprintf(line, sizeof line, "%.4f  %.6f\r\n", f, 6 + 0.001 * f + 52 / std::sqrt(1 + q * q));
    text.append(line, static_cast<std::size_t>(length));
  }
  return text;
}

class Measurement {
 public:
  Measurement() : path_(folder_.Write("measurement.ovl", SampleMeasurement())) {}
  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  TemporaryFolder folder_;
  std::filesystem::path path_;
};

const Measurement& Sample() {
  static const Measurement measurement;
  return measurement;
}

void ReadMeasurement(benchmark::State& run) {
  const std::filesystem::path path = Sample().path();
  for (auto _ : run) {
    Curve hertz;
    Curve ohm;
    RowReader reader(path);
    reader.ReadLine();
    ImpedanceStore store(hertz, ohm);
    ReadImpedanceRows(reader, [&](const Row& row) { store.Add(row); });
    benchmark::DoNotOptimize(ohm.data());
  }
}
BENCHMARK(ReadMeasurement);

void ReadByStream(benchmark::State& run) {
  const std::filesystem::path path = Sample().path();
  for (auto _ : run) {
    std::ifstream file(path);
    std::string heading;
    std::getline(file, heading);
    std::vector<double> hertz;
    std::vector<double> ohm;
    double f = 0;
    double z = 0;
    while (file >> f >> z) {
      hertz.push_back(f);
      ohm.push_back(z);
    }
    benchmark::DoNotOptimize(ohm.data());
  }
}
BENCHMARK(ReadByStream);

/// The whole file into memory, then std::from_chars alone.
void ReadByFromChars(benchmark::State& run) {
  const std::filesystem::path path = Sample().path();
  for (auto _ : run) {
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    std::string text(std::filesystem::file_size(path), '\0');
    text.resize(std::fread(text.data(), 1, text.size(), file));
    std::fclose(file);
    std::vector<double> hertz;
    std::vector<double> ohm;
    const char* at = text.data() + text.find('\n') + 1;
    const char* const end = text.data() + text.size();
    while (at < end) {
      double values[2] = {0, 0};
      for (double& value : values) {
        while (at < end && (*at == ' ' || *at == '\r' || *at == '\n')) ++at;
        at = std::from_chars(at, end, value).ptr;
      }
      while (at < end && (*at == '\r' || *at == '\n')) ++at;
      hertz.push_back(values[0]);
      ohm.push_back(values[1]);
    }
    benchmark::DoNotOptimize(ohm.data());
  }
}
BENCHMARK(ReadByFromChars);

/// Reading and all four passes, as the import does them, to the fields of the sheet.
void ImportMeasurement(benchmark::State& run) {
  for (auto _ : run) {
    run.PauseTiming();
    Desk desk;
    desk.BeginImpedance();
    desk.sheet.mnuimporta.enabled = true;
    desk.state.txtrvc = "5.8";
    desk.platform.files.emplace_back(Sample().path());
    run.ResumeTiming();
    ImportImpedance(desk.program);
  }
}
BENCHMARK(ImportMeasurement);

}  // namespace
}  // namespace zefirondo
