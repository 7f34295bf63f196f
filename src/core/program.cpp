#include "core/program.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "core/numbers.h"

namespace zefirondo {

Windows::Windows(ProjectState& state)
    : mdithsm(state),
      frmthsm(state),
      frmgrafcassa(state),
      frmdimensioni(state),
      frmopzioni(state),
      frmwooferconn(state),
      frmbox(state),
      frmalfa(state),
      frmgrafico(state),
      frmvalc(state),
      frmvalf(state),
      frmspl(state),
      frmsplMax(state),
      frmescursione(state),
      frmairspeed(state),
      frmFase(state),
      frmfiltri(state),
      frmFaseSh(state),
      frmfasecompl(state),
      frmsommadelay(state),
      frmcalcolatrice(state),
      frmAbout(state) {}

std::vector<Window*> Windows::All() {
  return {&mdithsm.window,         &frmthsm.window,       &frmgrafcassa.window, &frmdimensioni.window,
          &frmopzioni.window,      &frmwooferconn.window, &frmbox.window,       &frmalfa.window,
          &frmgrafico.window,      &frmvalc.window,       &frmvalf.window,      &frmspl.window,
          &frmsplMax.window,       &frmescursione.window, &frmairspeed.window,  &frmFase.window,
          &frmfiltri.window,       &frmFaseSh.window,     &frmfasecompl.window, &frmsommadelay.window,
          &frmcalcolatrice.window, &frmAbout.window};
}

Program::Program(Platform& the_platform, Language the_language, std::filesystem::path the_folder)
    : windows(state), platform(the_platform), language(the_language), folder(std::move(the_folder)) {
  all = windows.All();
  for (Window* const window : all) ApplyDesign(*window, language);
}

Window* Program::FindWindow(std::string_view name) const {
  const auto found = std::find_if(all.begin(), all.end(), [&](const Window* window) { return window->name == name; });
  return found == all.end() ? nullptr : *found;
}

std::filesystem::path Program::Folder(int id) const {
  std::string name = Text(id);
  if (!name.empty() && name.front() == '\\') name.erase(0, 1);
  std::filesystem::path path = folder / name;
  std::error_code ignored;
  std::filesystem::create_directories(path, ignored);
  return path;
}

void Program::Message(MessageIcon icon, const std::string& text, const std::string& title) {
  platform.ShowMessage({icon, title, text, MessageButtons::Ok});
}

void Program::ErrorMessage(const std::string& text) { Message(MessageIcon::Stop, text, Text(108)); }

void EndNow(Program& program, bool failed) {
  program.run = failed ? RunState::EndedByFailure : RunState::Ended;
  throw ProgramEnd{};
}

void AssignText(Program& program, Control& control, const std::string& text) {
  if (*control.text == text) return;
  *control.text = text;
  control.selection_start = control.selection_length = 0;
  if (control.on.change != nullptr) control.on.change(program);
}

void AssignNumber(Program& program, Control& control, double value) {
  AssignText(program, control, FormatNumber(value));
}

void MarkModified(Program& program) {
  program.state.ProjectModified = true;
  program.windows.frmthsm.mnusalvadir.enabled = true;
}

void ClearGraphFlags(ProjectState& state) {
  state.GrafCassaOpen = state.GrafFaseOpen = state.GrafSplOpen = false;
  state.GrafSplMaxOpen = state.GrafEscursioneOpen = state.GrafAirspeedOpen = false;
}

}  // namespace zefirondo
