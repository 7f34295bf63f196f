// A whole program at a desk without a screen, for tests: acts by name, and what was printed.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/acts.h"
#include "core/program.h"
#include "runner/queued_platform.h"

namespace zefirondo {

/// A folder of its own that goes with the test.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  /// Writes a file with these bytes into the folder.
  [[nodiscard]] std::filesystem::path Write(const std::string& name, std::string_view bytes) const;

 private:
  std::filesystem::path path_;
};

[[nodiscard]] std::string ReadFileBytes(const std::filesystem::path& path);

class Desk {
 public:
  explicit Desk(Language language = Language::English, double screen_width = 1920);

  std::string out;  // every line that the platform printed
  TemporaryFolder folder;
  QueuedPlatform platform;
  Program program;
  ProjectState& state;
  Sheet& sheet;

  /// Starts the program.
  void Begin(const std::string& command_line = {});
  /// Starts it, and a project with entered parameters.
  void BeginParameters();
  /// Starts it, and a project with an imported impedance.
  void BeginImpedance();
  /// Fills every field that a computation needs, for a woofer made up for tests, with Fs 35 Hz, Re 5.6 ohm,
  /// Qms 4.2, Qes 0.45, Bl 9.5 T·m, D 210 mm, Mms 0.038 kg, Xmax 5 mm, 100 W, 90 dB; the page "par" is shown.
  void FillWoofer();
  /// A designed project: the proposal of a vented box is taken, or refused texts of other parameters given first.
  void DesignVented();
  /// Qes 0.9 makes the proposal a closed box, which is taken.
  void DesignClosed();

  /// The control with this name, as scripts give it.
  Control& operator[](std::string_view name);
  [[nodiscard]] std::string Text(std::string_view name) { return *(*this)[name].text; }

  Outcome Choose(std::string_view entry);
  Outcome Set(std::string_view field, const std::string& text);
  /// Types characters; "\n" is Enter, "\t" is Tab, "\b" is backspace.
  Outcome Type(std::string_view field, std::string_view keys);
  Outcome Pick(std::string_view combo, const std::string& item);
  Outcome Click(std::string_view control);
  Outcome Focus(std::string_view control);
  Outcome Leave();
  Outcome Tab(std::string_view key);

  /// What the platform printed since the last call.
  std::string TakeOut();
};

}  // namespace zefirondo
