#include "files/phase_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <string_view>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/text.h"
#include "files/row_reader.h"

namespace zefirondo {
namespace {

constexpr std::string_view kHeading = ";Freq(Hz)";
constexpr double kPlotShift = 10;

void AddZeroSlots(PhaseCurve& curve) {
  curve.x.push_back(0.0);
  curve.hertz.push_back(0.0);
  curve.degrees.push_back(0.0);
}

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

using FilePointer = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a file for writing over its beginning; without waiting, so that a pipe cannot hold the program.
FilePointer OpenForWritingOver(const std::filesystem::path& path) {
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666);
  if (descriptor < 0) throw RunTimeError(ErrorNumber::PathAccess);
  struct stat info {};
  std::FILE* const file =
      ::fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode) ? ::fdopen(descriptor, "wb") : nullptr;
  if (file == nullptr) {
    ::close(descriptor);
    throw RunTimeError(ErrorNumber::PathAccess);
  }
  return FilePointer(file);
}

}  // namespace

std::filesystem::path SequencePath(const Program& program, int number) {
  return program.folder / ("Sequenza" + std::to_string(number) + ".ovl");
}

void StageSequence(const std::filesystem::path& path, const std::string& text) {
  FilePointer file = OpenForWritingOver(path);
  const std::string bytes = ToCodePage(text);
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  if (!written || std::fclose(file.release()) != 0) throw RunTimeError(ErrorNumber::DiskFull);
}

bool HasSequenceHeading(const std::filesystem::path& path) {
  RowReader reader(path);
  return std::string_view(reader.ReadLine()).substr(0, kHeading.size()) == kHeading;
}

PhaseCurve ReadSequence(const std::filesystem::path& path) {
  RowReader reader(path);
  reader.ReadLine();
  PhaseCurve curve;
  while (!reader.AtEnd()) {
    const Row row = reader.ReadRow();
    RequireRoom(curve.x.size());
    curve.x.push_back(20 * Log10(row.first) - kPlotShift);
    curve.hertz.push_back(row.first);
    curve.degrees.push_back(row.second);
  }
  AddZeroSlots(curve);
  return curve;
}

bool ImportPhaseTrace(Program& program, PhaseCurve& curve) {
  FileDialog dialog;
  dialog.filter = "Tracciato (*.trc)|*.trc|";
  dialog.default_extension = ".trc";
  dialog.folder = program.Folder(469);
  try {
    const auto path = program.platform.ChooseFile(dialog);
    if (!path) return false;
    program.state.FilePath = path->string();
    RowReader reader(*path);
    reader.ReadLine();  // the colour
    while (!reader.AtEnd()) {
      const Row row = reader.ReadRow();
      RequireRoom(curve.x.size());
      curve.x.push_back(row.first);
      curve.hertz.push_back(Power(10.0, (row.first + kPlotShift) / 20));
      curve.degrees.push_back(row.second);
    }
    AddZeroSlots(curve);
    return true;
  } catch (const RunTimeError& error) {
    program.ErrorMessage(program.Text(135) + error.what());
    return false;
  }
}

}  // namespace zefirondo
