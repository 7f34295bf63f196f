#include "fire/sample_files.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <utility>

namespace zefirondo {
namespace {

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

const std::string& Example(const std::string& name) {
  static std::vector<std::pair<std::string, std::string>> kept;
  for (const auto& [known, bytes] : kept) {
    if (known == name) return bytes;
  }
  return kept.emplace_back(name, ReadAll(std::filesystem::path(ZEFIRONDO_EXAMPLES) / name)).second;
}

std::string RowText(double first, double second) {
  char buffer[80];
  std::snprintf(buffer, sizeof buffer, "%.6g %.6g\r\n", first, second);
  return buffer;
}

/// A measured impedance with a peak somewhere, and a heading long enough for an import to take the file.
std::string Impedance(Dice& dice) {
  std::string rows;
  const double resonance = dice.Between(12, 90);
  const double peak = dice.Between(8, 200);
  for (double f = 5; f < 20000; f *= 1.01) {
    const double detune = 5 * (f / resonance - resonance / f);
    rows += RowText(f, 5.5 + peak / (1 + detune * detune) + f / 4000);
  }
  return std::string(170000, ';') + "\r\n" + rows;
}

std::string PhaseRows(Dice& dice) {
  std::string rows;
  const double slope = dice.Between(-0.4, 0.4);
  for (double f = 10; f < 20000; f *= 1.05) rows += RowText(f, std::remainder(f * slope, 360));
  return rows;
}

std::string Trace(Dice& dice) {
  std::string text = " " + std::to_string(dice.Below(2) == 0 ? 255 : 16711680) + " \r\n";
  for (double x = 10; x < 74; x += 0.3) text += RowText(x, 40 + 10 * std::sin(x / 5));
  return text;
}

/// Bytes that were good once.
std::string Damaged(Dice& dice, std::string bytes) {
  if (bytes.empty()) return bytes;
  static const std::vector<std::string> kStrange{
      "-1",       "0",      "1e308", "-1e308", "9e999", "abc",    "\xFF\xFE",
      "\r\n\r\n", "7.9e28", "32768", ";",      ",,",    "1e-320", "99999999999999999999"};
  switch (dice.Below(4)) {
    case 0: bytes.resize(dice.Below(bytes.size())); break;
    case 1:
      for (std::size_t i = 0; i < 4; ++i) bytes[dice.Below(bytes.size())] = static_cast<char>(dice.Below(256));
      break;
    case 2: bytes.insert(dice.Below(bytes.size()), dice.Of(kStrange)); break;
    default: {  // another value behind some "=" or blank
      const std::size_t from = bytes.find_first_of("= ", dice.Below(bytes.size()));
      if (from == std::string::npos) break;
      const std::size_t to = std::min(bytes.find_first_of("\r\n ", from + 1), bytes.size());
      bytes.replace(from + 1, to - from - 1, dice.Of(kStrange));
    }
  }
  return bytes;
}

}  // namespace

void SampleFiles::Write(const std::string& name, const std::string& bytes) {
  names_.push_back(name);
  std::ofstream(folder_ / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void SampleFiles::LayOut(Dice& dice) {
  std::error_code ignored;
  for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
    std::filesystem::remove_all(entry.path(), ignored);
  }
  names_.clear();
  Write("vented.pro", Example("maestrale-22.pro"));
  Write("closed.pro", Example("ponente-17.pro"));
  Write("woofer.wdr", Example("tramontana-26.wdr"));
  Write("woofer.ovl", Impedance(dice));
  Write("room.ovl", Example("small-room.ovl").substr(0, dice.Percent(50) ? 4000 : std::string::npos));
  Write("curve.trc", Trace(dice));
  Write("phase.trc", " 255 \r\n" + PhaseRows(dice));
  Write("empty.trc", "");
  for (const char* const name : {"vented.pro", "closed.pro", "woofer.wdr", "curve.trc", "room.ovl"}) {
    Write("damaged-" + std::string(name), Damaged(dice, ReadAll(folder_ / name)));
  }
  Write("damaged-woofer.ovl", Damaged(dice, Impedance(dice)));
  std::filesystem::create_directory(folder_ / "folder.pro", ignored);
  std::filesystem::create_symlink("curve.trc", folder_ / "link.trc", ignored);
  std::filesystem::create_symlink("circle.pro", folder_ / "circle.pro", ignored);
  std::filesystem::create_symlink("/dev/full", folder_ / "full.trc", ignored);
}

std::filesystem::path SampleFiles::Choose(Dice& dice, const std::string& filter) const {
  static const std::vector<std::string> kStrange{"folder.pro",
                                                 "link.trc",
                                                 "circle.pro",
                                                 "full.trc",
                                                 "missing.pro",
                                                 "missing/below.ovl",
                                                 "woofer.ovl/x.pro",
                                                 "new.pro",
                                                 "new.trc",
                                                 "new",
                                                 "n\xC3\xA9\xE2\x82\xAC.pro",
                                                 "\xFF.trc",
                                                 std::string(300, 'n') + ".pro"};
  if (dice.Percent(15)) return folder_ / dice.Of(kStrange);
  std::vector<std::string> fitting;
  for (const std::string& name : names_) {
    if (filter.find(name.substr(name.size() - 4)) != std::string::npos) fitting.push_back(name);
  }
  return folder_ / (fitting.empty() || dice.Percent(10) ? dice.Of(names_) : dice.Of(fitting));
}

std::filesystem::path SampleFiles::RandomProject(Dice& dice) const { return Choose(dice, "(*.pro)|*.pro"); }

std::string SampleFiles::ClipboardText(Dice& dice) {
  switch (dice.Below(8)) {
    case 0: return "";
    case 1: return "something else";
    case 2: return "1 2 3 4";
    case 3: return Damaged(dice, ";Freq(Hz) Phase\r\n" + PhaseRows(dice));
    default: return ";Freq(Hz) Phase\r\n" + PhaseRows(dice);
  }
}

}  // namespace zefirondo
