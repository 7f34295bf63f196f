// What holds after every event, whatever a person did.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "fire/chance_platform.h"
#include "fire/event.h"

namespace zefirondo {

class Invariants {
 public:
  Invariants(Program& program, ChancePlatform& platform) : program_(program), platform_(platform) {}

  /// Takes note of what stands before an event.
  void BeforeEvent(const Event& event);
  /// What does not hold behind it; empty when all does.
  [[nodiscard]] std::string AfterEvent();
  /// The same for the start of a program, whose command line may have named a project.
  [[nodiscard]] std::string AfterStart(bool with_project);

 private:
  struct Seen {  // of a curve that was looked through
    const double* data = nullptr;
    std::size_t size = 0;
    double first = 0.0, middle = 0.0, last = 0.0;
    friend bool operator==(const Seen&, const Seen&) = default;
  };

  void Check();
  void Require(bool holds, std::string_view what);
  void CheckImport();
  void CheckWiring();
  void CheckTabs();
  void CheckBoxTabs();
  void CheckModified();
  void CheckRecord();
  void CheckValue(const ValueRef& value, std::string_view name);
  void CheckCurve(const Curve& curve, std::string_view name);
  void CheckSurfaces();
  void CheckWindows();
  void CheckFocus();
  void CheckControls();
  void CheckEnd();
  void CheckLastWords();
  [[nodiscard]] bool Chose(const Control& control) const;
  [[nodiscard]] bool Clicked(const Control& control) const;
  [[nodiscard]] bool TookProposal() const;

  Program& program_;
  ChancePlatform& platform_;
  Event event_;
  bool opening_ = false;  // a project may have been opened
  double fs_ = 0.0, zmax_ = 0.0;
  std::string wiring_ = "biamp";
  std::size_t box_tabs_ = 0;
  bool modified_ = false;
  std::string selected_;
  std::map<std::string, Seen, std::less<>> seen_;
  std::string failure_;
};

/// The numbers and curves of the record by name.
[[nodiscard]] const std::vector<std::string_view>& RecordNumbers();

}  // namespace zefirondo
