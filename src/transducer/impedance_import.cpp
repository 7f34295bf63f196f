#include "transducer/impedance_import.h"

#include <array>
#include <cmath>

#include "core/events.h"
#include "core/focus.h"
#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/window_life.h"
#include "files/impedance_file.h"

namespace zefirondo {
namespace {

constexpr double kPeakAbove = 10.0;  // Hz, both bounds excluded
constexpr double kPeakBelow = 300.0;
constexpr double kHighest = 20000.0;
constexpr double kLargestMinimum = 500.0;  // ohm
constexpr double kAroundExpected = 10.0;   // Hz

/// The steps of the search, in the order in which they run.
class Search {
 public:
  Search(const Curve& hertz, const Curve& ohm, const ShowSteps& show) : f_(hertz), z_(ohm), show_(show) {}

  ImpedancePoints points;

  /// One row of one pass is done.
  void Step() { show_(++steps_); }

  /// Of equal peaks the first in file order wins.
  void TakePeak(double f, double z) {
    if (f > kPeakAbove && f < kPeakBelow && z > points.Zmax) {
      points.Zmax = z;
      points.Fs = f;
    }
  }

  /// The zero slot takes part in this pass and in the two that follow.
  void FindMinimum() {
    points.Zmin = kLargestMinimum;
    for (std::size_t i = 0; i < f_.size(); ++i) {
      if (f_[i] <= kHighest && z_[i] < points.Zmin && f_[i] > points.Fs) points.Zmin = z_[i];
      Step();
    }
  }

  void FindLevel(double rvc) {
    root_ = SquareRoot(Divide(points.Zmax, rvc));
    points.Zc = root_ * rvc;
  }

  void FindUpper() {
    previous_ = f_.size() - 1;
    for (std::size_t i = 0; i < f_.size(); ++i) {
      Step();
      const bool falls = z_[i] <= points.Zc && points.Zc <= z_[previous_];
      if (f_[previous_] <= kHighest && falls && f_[previous_] > points.Fs) {
        points.Fh = (f_[previous_] + f_[i]) / 2;
        return;
      }
      previous_ = i;
    }
  }

  /// Starts with the row at which the search for Fh stopped.
  void FindLower() {
    const double expected = Divide(points.Fs * points.Fs, points.Fh);
    for (std::size_t i = 0; i < f_.size(); ++i) {
      Step();
      const bool rises = z_[previous_] <= points.Zc && points.Zc <= z_[i];
      const bool near = expected - kAroundExpected < f_[previous_] && f_[previous_] < expected + kAroundExpected;
      if (near && rises && f_[previous_] < points.Fs) {
        points.Fl = (f_[previous_] + f_[i]) / 2;
        break;
      }
      previous_ = i;
    }
    points.Bw = points.Fh - points.Fl;
  }

  void FindQms() { points.Qms = Divide(root_ * points.Fs, points.Bw); }

 private:
  const Curve& f_;
  const Curve& z_;
  const ShowSteps& show_;
  std::size_t steps_ = 0;
  double root_ = 0.0;
  std::size_t previous_ = 0;
};

/// The number of steps that the four passes will make, by the length of the file in bytes. A short file has 0,
/// and so fails in its first step, as wanted.
double EstimateSteps(double length) {
  struct Estimate {
    double from;
    double divisor;
  };
  static constexpr std::array<Estimate, 3> kEstimates{{{1391953, 10.7}, {666921, 10.5}, {168661, 10.0}}};
  for (const Estimate& estimate : kEstimates) {
    if (length >= estimate.from) return std::floor(length / estimate.divisor);
  }
  return 0;
}

/// Moves the bar of the sheet; the screen hears of each whole percent once.
class Progress {
 public:
  Progress(Program& program, double estimate) : program_(program), estimate_(estimate) {}

  void Show(std::size_t steps) {
    const auto count = static_cast<double>(steps);
    if (count < next_) return;
    const double percent = RoundHalfEven(Divide(count * 100, estimate_));
    next_ = (percent + 0.5) * estimate_ / 100;
    if (percent >= 100 || percent == shown_) return;
    shown_ = percent;
    program_.windows.frmthsm.prgbar.progress = static_cast<int>(percent);
    program_.platform.ShowProgress();
  }

 private:
  Program& program_;
  double estimate_;
  double next_ = 0;  // the count from which the percentage may be another one
  double shown_ = -1;
};

FileDialog MeasurementDialog(const Program& program) {
  FileDialog dialog;
  dialog.filter = program.Text(470) + " (*.ovl)|*.ovl|File di testo (*.txt)|*.txt";
  dialog.default_extension = ".ovl";
  dialog.folder = program.state.FilePath;
  return dialog;
}

void ReadMeasurement(Program& program, Search& search, RowReader& reader) {
  ProjectState& s = program.state;
  reader.ReadLine();
  ImpedanceStore store(s.ImpFreq, s.ImpZ);
  ReadImpedanceRows(reader, [&](const Row& row) {
    store.Add(row);
    search.TakePeak(row.first, row.second);
    search.Step();
  });
  if (store.IsEmpty()) throw RunTimeError(ErrorNumber::IndexOutOfRange);  // no row was kept
}

/// The results in the order in which they are written: a failure on the way leaves those before it.
void ShowPoints(Program& program, Search& search) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  const ImpedancePoints& found = search.points;
  AssignNumber(program, sheet.txtzmax, found.Zmax);
  s.ImpScaleTop = ToInteger(std::floor(found.Zmax) + 10);
  AssignNumber(program, sheet.txtfs, found.Fs);
  AssignText(program, sheet.txtfstrasdu, s.txtfs);
  s.Fs = found.Fs;
  s.Zmax = found.Zmax;
  s.Bw = found.Bw;
  AssignNumber(program, sheet.txtfl, found.Fl);
  AssignNumber(program, sheet.txtfh, found.Fh);
  AssignNumber(program, sheet.txtbw, found.Bw);
  search.FindQms();
  AssignNumber(program, sheet.txtqmesin, found.Qms);
}

void Import(Program& program, const std::filesystem::path& path) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  sheet.prgbar.progress = 0;
  sheet.prgbar.visible = true;
  RowReader reader(path);
  Progress progress(program, EstimateSteps(reader.length()));
  const ShowSteps show = [&](std::size_t steps) { progress.Show(steps); };
  Search search(s.ImpFreq, s.ImpZ, show);
  ReadMeasurement(program, search, reader);
  search.FindMinimum();
  search.FindLevel(ReadNumber(s.txtrvc));
  AssignNumber(program, sheet.txtzmin, search.points.Zmin);
  search.FindUpper();
  search.FindLower();
  ShowPoints(program, search);
}

}  // namespace

ImpedancePoints FindImpedancePoints(const Curve& hertz, const Curve& ohm, double rvc, const ShowSteps& show) {
  if (hertz.empty() || ohm.size() < hertz.size()) throw RunTimeError(ErrorNumber::IndexOutOfRange);
  Search search(hertz, ohm, show);
  for (std::size_t i = 0; i + 1 < hertz.size(); ++i) {
    search.TakePeak(hertz[i], ohm[i]);
    search.Step();
  }
  search.FindMinimum();
  search.FindLevel(rvc);
  search.FindUpper();
  search.FindLower();
  search.FindQms();
  return search.points;
}

void ImportImpedance(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  if (sheet.selected_tab != "par") SelectTab(program, "par");
  if (s.DataImported) program.Message(MessageIcon::Warning, program.Text(184), program.Text(186));
  try {
    const auto path = program.platform.ChooseFile(MeasurementDialog(program));
    if (!path) return;
    s.FilePath = path->string();
    s.ImpFileTitle = path->filename().string();
    Import(program, *path);
  } catch (const RunTimeError& error) {
    sheet.prgbar.visible = false;
    program.ErrorMessage(program.Text(135) + error.what());
    return;
  }
  GiveFocus(program, sheet.txtrvc);
  sheet.prgbar.visible = false;
  sheet.mnugrafico.enabled = sheet.mnuannullasequenza.enabled = true;
  sheet.mnuimporta.enabled = false;
  CloseWindow(program, "frmgrafico");
  OpenWindow(program, "frmgrafico");
}

void ConnectImpedanceImport(Program& program) { program.windows.frmthsm.mnuimporta.on.click = ImportImpedance; }

}  // namespace zefirondo
