// The whole program in one place: the project, the windows, and what a person's acts work on.
#pragma once

#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "core/messages.h"
#include "core/platform.h"
#include "core/project_state.h"
#include "core/windows/frmAbout.h"
#include "core/windows/frmFase.h"
#include "core/windows/frmFaseSh.h"
#include "core/windows/frmairspeed.h"
#include "core/windows/frmalfa.h"
#include "core/windows/frmbox.h"
#include "core/windows/frmcalcolatrice.h"
#include "core/windows/frmdimensioni.h"
#include "core/windows/frmescursione.h"
#include "core/windows/frmfasecompl.h"
#include "core/windows/frmfiltri.h"
#include "core/windows/frmgrafcassa.h"
#include "core/windows/frmgrafico.h"
#include "core/windows/frmopzioni.h"
#include "core/windows/frmsommadelay.h"
#include "core/windows/frmspl.h"
#include "core/windows/frmsplMax.h"
#include "core/windows/frmthsm.h"
#include "core/windows/frmvalc.h"
#include "core/windows/frmvalf.h"
#include "core/windows/frmwooferconn.h"
#include "core/windows/mdithsm.h"

namespace zefirondo {

/// Every window, as data. They stand here from the start; opening one puts it back to its design.
struct Windows {
  MainFrame mdithsm;
  Sheet frmthsm;
  BoxResponse frmgrafcassa;
  DimensionEntry frmdimensioni;
  ProjectOptions frmopzioni;
  WooferWiringChoice frmwooferconn;
  BoxTypeChoice frmbox;
  AlignmentChart frmalfa;
  ImpedanceGraph frmgrafico;
  CapacitorTool frmvalc;
  InductorTool frmvalf;
  SplGraph frmspl;
  SplMaxGraph frmsplMax;
  ExcursionGraph frmescursione;
  AirSpeedGraph frmairspeed;
  PhaseGraph frmFase;
  FilterDesigner frmfiltri;
  PhaseOffsetTool frmFaseSh;
  PhaseOffsetEntry frmfasecompl;
  DelayEntry frmsommadelay;
  Calculator frmcalcolatrice;
  About frmAbout;

  explicit Windows(ProjectState& state);

  [[nodiscard]] std::vector<Window*> All();
};

enum class RunState { NotStarted, Running, Ended, EndedByFailure };

struct Program {
  ProjectState state;
  Windows windows;
  Platform& platform;
  Language language;
  std::filesystem::path folder;  // the folder of the program; projects, traces and measurements lie below it

  std::string command_line;  // the path of a project to open, as the desktop handed it over

  std::vector<Window*> all;    // every window, in a fixed order
  std::vector<Window*> order;  // the open windows, front first, the frame last
  Window* active = nullptr;    // the window that was activated last
  Control* focus = nullptr;    // the control that has the focus
  Control* held = nullptr;     // the control that kept the focus during the act that runs
  std::deque<int> keys;        // queued keystrokes
  RunState run = RunState::NotStarted;

  Program(Platform& platform, Language language, std::filesystem::path folder);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() = default;

  [[nodiscard]] std::string Text(int id) const { return std::string(MessageText(id, language)); }
  [[nodiscard]] Window* FindWindow(std::string_view name) const;

  /// A folder of the program by the number of its text: created when it is first needed, a failure is ignored.
  [[nodiscard]] std::filesystem::path Folder(int id) const;

  /// A message with the button OK alone.
  void Message(MessageIcon icon, const std::string& text, const std::string& title);
  /// A failure message: title "Error" and the stop icon.
  void ErrorMessage(const std::string& text);
};

/// Ends the program at once. Thrown by `EndNow` only; the place that runs events takes it in.
struct ProgramEnd {};
[[noreturn]] void EndNow(Program& program, bool failed);

/// Puts a text into a control: does nothing when the text is the same; otherwise stores it and runs the change
/// routine of the control at once, inside the assignment.
void AssignText(Program& program, Control& control, const std::string& text);

/// Puts a number into a control, as `FormatNumber` shows it.
void AssignNumber(Program& program, Control& control, double value);

/// Marks the project as changed: the only way to do so.
void MarkModified(Program& program);

/// Sets the six flags of open graph windows to false.
void ClearGraphFlags(ProjectState& state);

}  // namespace zefirondo
